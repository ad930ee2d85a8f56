// LblTotal: the count of the list, in two digits or more. That of an empty list is a picture drawn
// when the program is built: every start shows it, and letters wait for the system's fonts.
#pragma once

#include <QLabel>
#include <QPixmap>

class EtiquetaTotal : public QLabel {
 public:
  explicit EtiquetaTotal(QWidget* padre) : QLabel(padre) { Contar(0); }
  void Contar(int total);
  bool TieneDibujo() const { return !Dibujado().isNull(); }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QPixmap Dibujado() const;  // null where the text is of letters
};
