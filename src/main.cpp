#include <QApplication>

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  return 0;
}
