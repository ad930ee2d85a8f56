// The main function of every test program.
#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
