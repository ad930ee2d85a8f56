// The floor of every start of a Qt Widgets program: as many empty windows as its argument says, at
// most two, in the places and sizes of the program's own. With a second argument the first shows
// that text.
#include <array>
#include <cstdlib>
#include <iterator>

#include <QApplication>
#include <QLabel>
#include <QWidget>

int main(int argc, char** argv) {
  const int cuantas = argc > 1 ? std::atoi(argv[1]) : 1;
  const QApplication aplicacion(argc, argv);
  constexpr std::array lugares{QRect(41, 41, 150, 327), QRect(213, 95, 560, 453)};
  std::array<QWidget, std::size(lugares)> ventanas;
  if (argc > 2) {
    (new QLabel(QString::fromLatin1(argv[2]), ventanas.data()))->setGeometry(13, 122, 20, 14);
  }
  for (int i = 0; i < cuantas && i < static_cast<int>(ventanas.size()); ++i) {
    ventanas[i].setGeometry(lugares[i]);
    ventanas[i].show();
  }
  return QApplication::exec();
}
