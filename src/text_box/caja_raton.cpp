// The mouse in a box. Nothing done with it is announced as a key.
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include "text_box/caja_texto.h"

void CajaTexto::Elegir(const std::optional<GestosRaton::Eleccion>& eleccion) {
  if (!eleccion) return;
  cursor_.Elegir(eleccion->ancla.value_or(Ancla()), eleccion->cursor);
  CursorMovido();
}

void CajaTexto::mousePressEvent(QMouseEvent* evento) {
  const QPoint punto = evento->position().toPoint();
  if (evento->button() == Qt::MiddleButton) return edicion_.PegarPrimaria(encuadre_.EnPunto(punto));
  if (evento->button() != Qt::LeftButton) return;
  const auto eleccion =
      gestos_.Pulsar(punto, cursor_.Elegido(), evento->modifiers() & Qt::ShiftModifier);
  if (eleccion) documento_.CerrarGrupo();
  Elegir(eleccion);
}

void CajaTexto::mouseMoveEvent(QMouseEvent* evento) {
  if (!(evento->buttons() & Qt::LeftButton)) return;
  const QPoint punto = evento->position().toPoint();
  if (gestos_.EmpiezaArrastre(punto)) return ArrastrarTexto();
  Elegir(gestos_.Extender(punto));
}

// The farther outside the pointer is, the faster the text rolls.
void CajaTexto::RodarAlArrastrar() {
  const QPoint punto = viewport()->mapFromGlobal(QCursor::pos());
  const QPoint fuera = gestos_.Fuera(punto);
  if (fuera.y() != 0) {
    RodarFilas(fuera.y() / encuadre_.Tabla().AltoFila() + (fuera.y() > 0 ? 1 : -1));
  }
  if (fuera.x() != 0) RodarX(encuadre_.X() + fuera.x());
  Elegir(gestos_.Extender(punto));
}

void CajaTexto::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return;
  const GestosRaton::Gesto gesto = gestos_.Soltar();
  if (gesto == GestosRaton::Gesto::QuizaArrastrar) {
    documento_.CerrarGrupo();
    cursor_.Llevar(encuadre_.EnPunto(evento->position().toPoint()), Seleccion::Quitar);
    CursorMovido();
  } else if (gesto == GestosRaton::Gesto::Elegir) {
    edicion_.Ofrecer();
  }
}

void CajaTexto::mouseDoubleClickEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return mousePressEvent(evento);
  documento_.CerrarGrupo();
  Elegir(gestos_.PulsarDoble(evento->position().toPoint()));
}

void CajaTexto::wheelEvent(QWheelEvent* evento) {
  evento->accept();
  const auto [filas, pixeles] =
      rueda_.Girar(*evento, encuadre_.Tabla().AltoFila(), horizontalScrollBar()->singleStep());
  RodarFilas(filas);
  RodarX(encuadre_.X() + pixeles);
}
