#include "main_window/lista_archivos.h"

#include <algorithm>
#include <numeric>
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

int ListaArchivos::IndicePara(const Entrada& entrada) const {
  const auto sitio = std::upper_bound(
      orden_.begin(), orden_.end(), entrada,
      [this](const Entrada& nueva, int otra) { return VaAntes(nueva, entradas_[otra]); });
  return static_cast<int>(sitio - orden_.begin());
}

int ListaArchivos::Buscar(const QString& ruta) const {
  const int numero = Numero(ruta, AMayusculas(ruta));
  if (numero < 0) return -1;
  return static_cast<int>(std::find(orden_.begin(), orden_.end(), numero) - orden_.begin());
}

int ListaArchivos::Numero(const QString& ruta, const QString& mayusculas) const {
  const auto [desde, hasta] = por_ruta_.equal_range(mayusculas);
  const auto igual = std::find_if(
      desde, hasta, [&](int entrada) { return MismoArchivo(entradas_[entrada].ruta, ruta); });
  return igual == hasta ? -1 : *igual;
}

ListaArchivos::Entrada ListaArchivos::Nueva(const QString& ruta) const {
  const QString nombre = ruta.mid(ruta.lastIndexOf(SeparadorRuta) + 1);
  return {ruta, nombre, orden_nombres_.Clave(nombre)};
}

void ListaArchivos::Anotar(Entrada entrada, const QString& mayusculas) {
  por_ruta_.insert(mayusculas, static_cast<int>(entradas_.size()));
  entradas_.push_back(std::move(entrada));
}

int ListaArchivos::Agregar(const QString& ruta) {
  Entrada entrada = Nueva(ruta);
  const int indice = IndicePara(entrada);
  beginInsertRows({}, indice, indice);
  orden_.insert(orden_.begin() + indice, static_cast<int>(entradas_.size()));
  Anotar(std::move(entrada), AMayusculas(ruta));
  endInsertRows();
  return indice;
}

// All are taken in at first, so that those left out are counted once each.
int ListaArchivos::AgregarVarios(const QStringList& rutas) {
  const auto primera_nueva = static_cast<int>(entradas_.size());
  for (const QString& ruta : rutas) {
    const QString mayusculas = AMayusculas(ruta);
    if (Numero(ruta, mayusculas) < 0) Anotar(Nueva(ruta), mayusculas);
  }
  const auto nuevas = static_cast<int>(entradas_.size()) - primera_nueva;
  const int sobran = std::max(Total() + nuevas - MaximoArchivos, 0);
  for (int i = 0; i < sobran; ++i) OlvidarUltima();
  if (nuevas > sobran) Intercalar(primera_nueva);
  return sobran;
}

void ListaArchivos::OlvidarUltima() {
  const auto numero = static_cast<int>(entradas_.size()) - 1;
  por_ruta_.remove(AMayusculas(entradas_.back().ruta), numero);
  entradas_.pop_back();
}

// The entries from `primera_nueva` on come into the order, behind those that are equal to them.
void ListaArchivos::Intercalar(int primera_nueva) {
  emit layoutAboutToBeChanged();
  const QModelIndexList antes = persistentIndexList();
  std::vector<int> numeros;
  for (const QModelIndex& indice : antes) numeros.push_back(orden_[indice.row()]);
  const auto va_antes = [this](int una, int otra) {
    return VaAntes(entradas_[una], entradas_[otra]);
  };
  const auto viejas = static_cast<std::ptrdiff_t>(orden_.size());
  orden_.resize(orden_.size() + entradas_.size() - primera_nueva);
  std::iota(orden_.begin() + viejas, orden_.end(), primera_nueva);
  std::stable_sort(orden_.begin() + viejas, orden_.end(), va_antes);
  std::inplace_merge(orden_.begin(), orden_.begin() + viejas, orden_.end(), va_antes);
  std::vector<int> indices(entradas_.size());
  for (int i = 0; i < Total(); ++i) indices[orden_[i]] = i;
  QModelIndexList despues;
  for (const int numero : numeros) despues << index(indices[numero], 0);
  changePersistentIndexList(antes, despues);
  emit layoutChanged();
}

void ListaArchivos::Quitar(int indice) {
  beginRemoveRows({}, indice, indice);
  const int numero = orden_[indice];
  por_ruta_.remove(AMayusculas(entradas_[numero].ruta), numero);
  orden_.erase(orden_.begin() + indice);
  if (orden_.empty()) entradas_.clear();
  endRemoveRows();
}

int ListaArchivos::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : Total();
}

QVariant ListaArchivos::data(const QModelIndex& indice, int papel) const {
  return indice.isValid() && papel == Qt::DisplayRole ? Nombre(indice.row()) : QVariant();
}
