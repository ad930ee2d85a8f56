#include "main_window/lista_archivos.h"

#include <algorithm>
#include <utility>

#include "shared/constantes.h"

ListaArchivos::ListaArchivos(QObject* padre) : QAbstractListModel(padre) {}

bool ListaArchivos::Llena() const {
  return Total() >= MaximoArchivos;
}

const QString& ListaArchivos::Rutas(int indice) const {
  return entradas_[orden_[indice]].ruta;
}

const QString& ListaArchivos::Nombre(int indice) const {
  return entradas_[orden_[indice]].nombre;
}

bool ListaArchivos::VaAntes(const Entrada& una, const Entrada& otra) {
  const int comparadas = una.clave.compare(otra.clave);
  return comparadas != 0 ? comparadas < 0 : una.nombre < otra.nombre;
}

int ListaArchivos::Lugar(const Entrada& entrada) const {
  const auto lugar = std::upper_bound(
      orden_.begin(), orden_.end(), entrada,
      [this](const Entrada& nueva, int otra) { return VaAntes(nueva, entradas_[otra]); });
  return static_cast<int>(lugar - orden_.begin());
}

int ListaArchivos::Buscar(const QString& ruta) const {
  const auto [desde, hasta] = por_ruta_.equal_range(AMayusculas(ruta));
  const auto igual = std::find_if(
      desde, hasta, [&](int entrada) { return MismoArchivo(entradas_[entrada].ruta, ruta); });
  if (igual == hasta) {
    return -1;
  }
  return static_cast<int>(std::find(orden_.begin(), orden_.end(), *igual) - orden_.begin());
}

int ListaArchivos::Agregar(const QString& ruta) {
  const QString nombre = ruta.mid(ruta.lastIndexOf(SeparadorRuta) + 1);
  Entrada entrada{ruta, nombre, orden_nombres_.Clave(nombre)};
  const int indice = Lugar(entrada);
  beginInsertRows({}, indice, indice);
  entradas_.push_back(std::move(entrada));
  const int numero = static_cast<int>(entradas_.size()) - 1;
  orden_.insert(orden_.begin() + indice, numero);
  por_ruta_.insert(AMayusculas(ruta), numero);
  endInsertRows();
  return indice;
}

void ListaArchivos::Quitar(int indice) {
  beginRemoveRows({}, indice, indice);
  const int numero = orden_[indice];
  por_ruta_.remove(AMayusculas(entradas_[numero].ruta), numero);
  orden_.erase(orden_.begin() + indice);
  if (orden_.empty()) {
    entradas_.clear();
  }
  endRemoveRows();
}

int ListaArchivos::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : Total();
}

QVariant ListaArchivos::data(const QModelIndex& indice, int papel) const {
  return indice.isValid() && papel == Qt::DisplayRole ? Nombre(indice.row()) : QVariant();
}
