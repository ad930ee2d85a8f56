#include "platform/imagen.h"

#include <utility>

#include <QMouseEvent>
#include <QPainter>

#include "platform/accesibles.h"
#include "platform/dibujos.h"

Imagen::Imagen(QWidget* padre, QString dibujo) : QWidget(padre), dibujo_(std::move(dibujo)) {
  setMouseTracking(true);
  HacerAccesibles();
}

void Imagen::mouseMoveEvent(QMouseEvent* /*evento*/) {
  emit RatonMovido();
}

void Imagen::mousePressEvent(QMouseEvent* evento) {
  presionada_ = presionada_ || evento->button() == Qt::LeftButton;
  evento->accept();
}

// Its first press was the whole gesture: the second one would run a command on what the first has
// brought under it.
void Imagen::mouseDoubleClickEvent(QMouseEvent* evento) {
  presionada_ = false;
  evento->accept();
}

void Imagen::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton && std::exchange(presionada_, false) &&
      rect().contains(evento->position().toPoint())) {
    emit Pulsada();
  }
}

void Imagen::paintEvent(QPaintEvent* /*evento*/) {
  if (dibujo_.isEmpty()) return;
  const qreal escala = devicePixelRatioF();
  if (pintada_.deviceIndependentSize() != QSizeF(size()) || pintada_.devicePixelRatio() != escala) {
    pintada_ = Dibujo(dibujo_, size(), escala);
  }
  QPainter(this).drawPixmap(0, 0, pintada_);
}
