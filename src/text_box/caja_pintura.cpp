// What is seen of a box: its rows, text under composition, the caret.
#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleHints>

#include "text_box/caja_texto.h"
#include "text_box/pintor_texto.h"

void CajaTexto::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pintor(viewport());
  pintor.fillRect(viewport()->rect(), aspecto_.fondo);
  PintarFilas(pintor);
  if (cursor_encendido_ && hasFocus() && !soltar_) PintarCursor(pintor, RectanguloCursor());
  if (soltar_) PintarCursor(pintor, encuadre_.Rectangulo({*soltar_, false}));
}

void CajaTexto::PintarFilas(QPainter& pintor) {
  if (Vacia() && composicion_.Vacia()) return;
  PintorTexto filas(pintor, documento_.Texto(), encuadre_, aspecto_);
  const Renglones& reparto = encuadre_.Reparto();
  const Posicion compuesta = composicion_.Vacia() ? -1 : encuadre_.FilaDe(cursor_.Donde());
  PintorTexto::Fila fila{encuadre_.Arriba(), Encuadre::Margen, Desde(), Hasta()};
  while (fila.y < viewport()->height() && fila.inicio >= 0) {
    if (fila.inicio == compuesta) {
      PintarCompuesta(pintor, filas, fila);
    } else {
      filas.Pintar(fila);
    }
    fila.y += encuadre_.Tabla().AltoFila();
    fila.inicio = reparto.Siguiente(fila.inicio);
  }
}

// The row with the text under composition: what follows the caret makes room for it.
void CajaTexto::PintarCompuesta(QPainter& pintor, PintorTexto& filas,
                                const PintorTexto::Fila& fila) {
  const QRect cursor = encuadre_.Rectangulo(cursor_.Donde());
  const int ancho = qCeil(composicion_.Ancho());
  pintor.save();
  pintor.setClipRect(QRect(0, cursor.top(), cursor.left(), cursor.height()));
  filas.Pintar(fila);
  pintor.setClipRect(
      QRect(cursor.left() + ancho, cursor.top(), viewport()->width(), cursor.height()));
  pintor.translate(ancho, 0);
  filas.Pintar(fila);
  pintor.restore();
  pintor.setPen(aspecto_.texto);
  composicion_.Pintar(pintor, cursor.topLeft());
}

void CajaTexto::PintarCursor(QPainter& pintor, const QRect& sitio) const {
  pintor.fillRect(sitio, aspecto_.cursor);
}

// An empty rectangle where an input method hides the caret, or its row is not known yet.
QRect CajaTexto::RectanguloCursor() const {
  if (!encuadre_.Cerca(cursor_.Donde())) return {};
  const QRect sitio = encuadre_.Rectangulo(cursor_.Donde());
  if (composicion_.Vacia()) return sitio;
  const std::optional<qreal> x = composicion_.XCursor();
  return x ? sitio.translated(qRound(*x), 0) : QRect();
}

// The caret is lit again after each movement.
void CajaTexto::ReiniciarParpadeo() {
  reloj_parpadeo_.stop();
  cursor_encendido_ = hasFocus();
  const int periodo = QGuiApplication::styleHints()->cursorFlashTime();
  if (cursor_encendido_ && periodo > 1) reloj_parpadeo_.start(periodo / 2, this);
}

void CajaTexto::focusInEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusInEvent(evento);
  ReiniciarParpadeo();
  viewport()->update();
}

void CajaTexto::focusOutEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusOutEvent(evento);
  ReiniciarParpadeo();
  viewport()->update();
}
