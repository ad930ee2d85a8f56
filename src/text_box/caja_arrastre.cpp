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
  arrastre->setMimeData(edicion_.DatosElegidos());
  const Qt::DropActions acciones = SoloLectura() ? Qt::CopyAction : Qt::CopyAction | Qt::MoveAction;
  const Qt::DropAction hecha =
      arrastre->exec(acciones, SoloLectura() ? Qt::CopyAction : Qt::MoveAction);
  if (!caja) return;
  const bool aqui = arrastre->target() == this || arrastre->target() == viewport();
  if (hecha == Qt::MoveAction && !aqui) edicion_.Eliminar();
}

bool CajaTexto::AceptaTexto(const QDropEvent& evento) const {
  return !SoloLectura() && TraeTexto(evento.mimeData());
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
  if (propio && evento->dropAction() == Qt::MoveAction) return edicion_.MoverElegido(pos);
  edicion_.Soltar(*evento->mimeData(), pos);
  setFocus(Qt::MouseFocusReason);
}
