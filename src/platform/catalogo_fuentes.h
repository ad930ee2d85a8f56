// What fonts the system has. The toolkit reads it with the first text that is measured or drawn,
// and takes the longer the more there are: the first pictures of the windows do without. When they
// are drawn, a thread reads it ahead; who needs a font before it is done waits.
#pragma once

#include <thread>

#include <QObject>

class CatalogoFuentes : public QObject {
  Q_OBJECT

 public:
  CatalogoFuentes();
  bool Leido() const { return leido_; }  // true also where it is not read ahead
  void Adelantar();                      // now: the first picture needs it

 signals:
  void Llegado();  // read from now on

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void Leer();

  bool leido_;
  bool adelantado_ = false;
  std::jthread lectura_;
};
