#include "main_window/etiqueta_total.h"

#include <QPainter>

#include "platform/dibujos.h"

void EtiquetaTotal::Contar(int total) {
  setText(QStringLiteral("%1").arg(total, 2, 10, QChar(u'0')));
}

QPixmap EtiquetaTotal::Dibujado() const {
  return Escrito(text(), size(), devicePixelRatioF());
}

void EtiquetaTotal::paintEvent(QPaintEvent* evento) {
  const QPixmap dibujo = Dibujado();
  if (dibujo.isNull()) return QLabel::paintEvent(evento);
  QPainter(this).drawPixmap(0, 0, dibujo);
}
