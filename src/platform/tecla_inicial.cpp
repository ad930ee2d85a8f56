#include "platform/tecla_inicial.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace {

enum class Extremo { Ninguno, Primero, Ultimo };

Extremo ExtremoDe(int tecla) {
  switch (tecla) {
    case Qt::Key_Down:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
      return Extremo::Primero;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_End:
      return Extremo::Ultimo;
    default:
      return Extremo::Ninguno;
  }
}

}  // namespace

// A list that has the keyboard starts from an entry that it has chosen unseen: an arrow would skip
// it or stay on it, and a letter would look for it last.
bool SeleccionarPorTecla(QAbstractItemView& lista, const QKeyEvent& evento) {
  const int entradas = lista.model()->rowCount();
  if (entradas == 0 || lista.selectionModel()->hasSelection()) return false;
  const Extremo extremo = ExtremoDe(evento.key());
  if (extremo == Extremo::Ninguno) {
    if (!evento.text().trimmed().isEmpty()) lista.selectionModel()->clearCurrentIndex();
    return false;
  }
  const int fila = extremo == Extremo::Primero ? 0 : entradas - 1;
  const QModelIndex entrada = lista.model()->index(fila, 0);
  lista.selectionModel()->setCurrentIndex(entrada, QItemSelectionModel::ClearAndSelect);
  lista.scrollTo(entrada);
  return true;
}
