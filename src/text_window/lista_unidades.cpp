#include "text_window/lista_unidades.h"

#include <algorithm>

#include <QSignalBlocker>

namespace {

constexpr int PapelRaiz = Qt::UserRole;

}  // namespace

ListaUnidades::ListaUnidades(Unidades& unidades, QWidget* padre)
    : QComboBox(padre), unidades_(unidades) {
  connect(this, &QComboBox::currentIndexChanged, this, &ListaUnidades::Cambiada);
  const QSignalBlocker callada(this);
  Llenar(unidades_.Listar().front());
}

Unidad ListaUnidades::Actual() const {
  return {currentText(), currentData(PapelRaiz).toString()};
}

void ListaUnidades::PonerActual(const Unidad& unidad) {
  const QSignalBlocker callada(this);
  Llenar(unidad);
}

void ListaUnidades::Refrescar() {
  PonerActual(Actual());
}

void ListaUnidades::Llenar(const Unidad& actual) {
  std::vector<Unidad> unidades = unidades_.Listar();
  auto suya = std::find(unidades.begin(), unidades.end(), actual);
  if (suya == unidades.end()) suya = unidades.insert(unidades.end(), actual);
  clear();
  for (const Unidad& una : unidades) addItem(una.nombre, una.raiz);
  setCurrentIndex(static_cast<int>(suya - unidades.begin()));
}

void ListaUnidades::showPopup() {
  Refrescar();
  QComboBox::showPopup();
}
