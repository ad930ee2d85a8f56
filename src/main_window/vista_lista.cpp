#include "main_window/vista_lista.h"

#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/tecla_inicial.h"

namespace {

bool Recorre(int tecla) {
  switch (tecla) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return false;
  }
}

}  // namespace

VistaLista::VistaLista(QWidget* padre) : QListView(padre) {
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerItem);
  setFrameShape(NoFrame);
  QPalette colores = palette();
  colores.setColor(QPalette::Base, Qt::black);
  colores.setColor(QPalette::Text, Qt::yellow);
  colores.setColor(QPalette::Highlight, Qt::yellow);
  colores.setColor(QPalette::HighlightedText, Qt::black);
  setPalette(colores);
}

int VistaLista::IndiceSeleccionado() const {
  const QModelIndexList seleccion = selectionModel()->selectedIndexes();
  return seleccion.isEmpty() ? -1 : seleccion.constFirst().row();
}

void VistaLista::Seleccionar(int indice) {
  const QModelIndex entrada = model()->index(indice, 0);
  selectionModel()->setCurrentIndex(entrada, QItemSelectionModel::ClearAndSelect);
  scrollTo(entrada);
}

void VistaLista::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Delete) {
    emit TeclaPulsada(CodigoSuprimir);
    return;
  }
  const int antes = IndiceSeleccionado();
  if (!SeleccionarPorTecla(*this, *evento)) QListView::keyPressEvent(evento);
  const int ahora = IndiceSeleccionado();
  if (ahora >= 0 && ahora != antes) {
    emit Elegida();
  } else if (ahora >= 0 && Recorre(evento->key())) {
    emit Insistida();
  }
}

// A press beside the entries changes nothing.
void VistaLista::mousePressEvent(QMouseEvent* evento) {
  pulsada_ = evento->button() == Qt::LeftButton && indexAt(evento->position().toPoint()).isValid();
  if (pulsada_) QListView::mousePressEvent(evento);
}

void VistaLista::mouseReleaseEvent(QMouseEvent* evento) {
  QListView::mouseReleaseEvent(evento);
  if (std::exchange(pulsada_, false) && IndiceSeleccionado() >= 0) emit Elegida();
}

void VistaLista::mouseDoubleClickEvent(QMouseEvent* evento) {
  mousePressEvent(evento);
}
