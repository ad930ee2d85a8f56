// Text dragged out of a box, into it, and within it.
#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>

#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

void CajaTexto::ArrastrarTexto() {
  auto* arrastre = new QDrag(this);
  const QPointer<CajaTexto> caja(this);  // its window may be closed meanwhile
  arrastre->setParent(qApp);             // the drag goes on then
  arrastre->setMimeData(DatosElegidos());
  const Qt::DropActions acciones = solo_lectura_ ? Qt::CopyAction : Qt::CopyAction | Qt::MoveAction;
  const Qt::DropAction hecha =
      arrastre->exec(acciones, solo_lectura_ ? Qt::CopyAction : Qt::MoveAction);
  if (!caja) return;
  const bool aqui = arrastre->target() == this || arrastre->target() == viewport();
  if (hecha == Qt::MoveAction && !aqui) Eliminar();
}

bool CajaTexto::AceptaTexto(const QDropEvent& evento) const {
  return !solo_lectura_ && TraeTexto(evento.mimeData());
}

void CajaTexto::dragEnterEvent(QDragEnterEvent* evento) {
  dragMoveEvent(evento);
}

void CajaTexto::dragMoveEvent(QDragMoveEvent* evento) {
  soltar_.reset();
  if (AceptaTexto(*evento)) {
    soltar_ = encuadre_.EnPunto(evento->position().toPoint()).pos;
    evento->acceptProposedAction();
  } else {
    evento->ignore();
  }
  DibujarCambios();
}

void CajaTexto::dragLeaveEvent(QDragLeaveEvent* /*evento*/) {
  soltar_.reset();
  DibujarCambios();
}

void CajaTexto::dropEvent(QDropEvent* evento) {
  soltar_.reset();
  DibujarCambios();
  if (!AceptaTexto(*evento)) return evento->ignore();
  evento->acceptProposedAction();
  const Posicion pos = encuadre_.EnPunto(evento->position().toPoint()).pos;
  const bool propio = evento->source() == this || evento->source() == viewport();
  if (propio && evento->dropAction() == Qt::MoveAction) return MoverElegido(pos);
  if (Cambiar(pos, pos, Recibir(*evento->mimeData()), Agrupacion::Sola)) {
    PonerCursor(cursor_.Pos(), pos);
  }
  setFocus(Qt::MouseFocusReason);
}

// One replacement, so one step of undo: the selection and what lies between it and `pos` change
// places.
void CajaTexto::MoverElegido(Posicion pos) {
  const Posicion desde = Desde();
  const Posicion hasta = Hasta();
  if (pos >= desde && pos <= hasta) return;
  const bool atras = pos < desde;
  const Extracto elegido = documento_.Extraer(desde, hasta);
  const Extracto paso = atras ? documento_.Extraer(pos, desde) : documento_.Extraer(hasta, pos);
  const Posicion inicio = std::min(pos, desde);
  const Posicion llegada = atras ? pos : inicio + paso.tamano;
  if (Cambiar(inicio, std::max(pos, hasta), atras ? Juntar(elegido, paso) : Juntar(paso, elegido),
              Agrupacion::Sola)) {
    PonerCursor(llegada + elegido.tamano, llegada);
  }
}
