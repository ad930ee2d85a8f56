#include "text_box/bytes.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace {

constexpr std::size_t Apunte = std::size_t{64} << 10;  // what is typed lies together
constexpr std::size_t Margen = std::size_t{1} << 20;   // to see a file's end without more memory

bool Sigue(const Trozo& uno, const Trozo& otro) {
  return uno.almacen == otro.almacen && uno.bytes.data() + uno.bytes.size() == otro.bytes.data();
}

std::vector<Trozo> Sacar(std::vector<Trozo>::iterator desde, std::vector<Trozo>::iterator hasta) {
  return {std::make_move_iterator(desde), std::make_move_iterator(hasta)};
}

}  // namespace

void Anadir(std::vector<Trozo>& trozos, Trozo otro) {
  if (trozos.empty() || !Sigue(trozos.back(), otro)) return trozos.push_back(std::move(otro));
  std::string_view& bytes = trozos.back().bytes;
  bytes = {bytes.data(), bytes.size() + otro.bytes.size()};
}

// The piece that holds `pos`; the number of pieces at the end of the text.
std::size_t Bytes::Indice(Posicion pos) const {
  const auto siguiente = std::upper_bound(inicios_.begin(), inicios_.end(), pos);
  return static_cast<std::size_t>(siguiente - inicios_.begin()) - 1;
}

Bytes::Lugar Bytes::Donde(Posicion pos) const {
  if (trozos_.empty()) return {};
  const std::size_t indice = std::min(Indice(pos), trozos_.size() - 1);
  const Posicion inicio = inicios_[indice];
  return {inicio, inicios_[indice + 1], trozos_[indice].bytes.data() + (pos - inicio)};
}

std::vector<Trozo> Bytes::Trozos(Posicion desde, Posicion hasta) const {
  std::vector<Trozo> trozos;
  for (std::size_t i = Indice(desde); desde < hasta; ++i) {
    const Posicion fin = std::min(hasta, inicios_[i + 1]);
    const auto delante = static_cast<std::size_t>(desde - inicios_[i]);
    const auto largo = static_cast<std::size_t>(fin - desde);
    trozos.push_back({trozos_[i].bytes.substr(delante, largo), trozos_[i].almacen});
    desde = fin;
  }
  return trozos;
}

std::vector<std::string_view> Bytes::Tramos(Posicion desde, Posicion hasta) const {
  std::vector<std::string_view> tramos;
  for (const Trozo& trozo : Trozos(desde, hasta)) tramos.push_back(trozo.bytes);
  return tramos;
}

void Bytes::Copiar(Posicion desde, Posicion hasta, char* destino) const {
  while (desde < hasta) {
    const Lugar lugar = Donde(desde);
    const Posicion fin = std::min(hasta, lugar.fin);
    destino = std::copy_n(lugar.datos, fin - desde, destino);
    desde = fin;
  }
}

std::vector<Trozo> Bytes::Sustituir(Posicion pos, Posicion quitados, std::vector<Trozo> nuevos) {
  const std::size_t desde = Partir(pos);
  const std::size_t hasta = Partir(pos + quitados);
  const auto primero = trozos_.begin() + static_cast<std::ptrdiff_t>(desde);
  const auto ultimo = trozos_.begin() + static_cast<std::ptrdiff_t>(hasta);
  std::vector<Trozo> viejos = Sacar(primero, ultimo);
  std::vector<Trozo> resto = Sacar(ultimo, trozos_.end());
  trozos_.erase(primero, trozos_.end());
  const std::size_t cambiados = desde == 0 ? 0 : desde - 1;
  for (Trozo& nuevo : nuevos) Anadir(trozos_, std::move(nuevo));
  for (Trozo& otro : resto) Anadir(trozos_, std::move(otro));
  Contar(cambiados);
  return viejos;
}

// Makes a piece start at `pos`; its index.
std::size_t Bytes::Partir(Posicion pos) {
  const std::size_t indice = Indice(pos);
  if (indice == trozos_.size() || inicios_[indice] == pos) return indice;
  Trozo& trozo = trozos_[indice];
  const auto corte = static_cast<std::size_t>(pos - inicios_[indice]);
  Trozo detras{trozo.bytes.substr(corte), trozo.almacen};
  trozo.bytes = trozo.bytes.substr(0, corte);
  const auto lugar = static_cast<std::ptrdiff_t>(indice) + 1;
  trozos_.insert(trozos_.begin() + lugar, std::move(detras));
  inicios_.insert(inicios_.begin() + lugar, pos);
  return indice + 1;
}

// Where the pieces start, from number `desde` on.
void Bytes::Contar(std::size_t desde) {
  inicios_.resize(trozos_.size() + 1);
  for (std::size_t i = desde; i < trozos_.size(); ++i) {
    inicios_[i + 1] = inicios_[i] + static_cast<Posicion>(trozos_[i].bytes.size());
  }
}

bool Bytes::Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos) {
  auto guardados = Guardar(nuevos);
  if (guardados) Sustituir(pos, quitados, std::move(*guardados));
  return guardados.has_value();
}

std::optional<std::vector<Trozo>> Bytes::Guardar(std::string_view bytes) {
  if (bytes.empty()) return std::vector<Trozo>{};
  if (!apuntes_ || apuntes_->Libre().size() < bytes.size()) {
    auto otro = Almacen::Hacer(std::max(Apunte, bytes.size()));
    if (!otro) return std::nullopt;
    apuntes_ = std::move(otro);
  }
  char* const donde = apuntes_->Libre().data();
  std::memcpy(donde, bytes.data(), bytes.size());
  apuntes_->Usar(bytes.size());
  return std::vector<Trozo>{{{donde, bytes.size()}, apuntes_}};
}

std::span<char> Bytes::ReservarFinal(std::size_t n) {
  if (!carga_ || carga_->Libre().size() < n) carga_ = Almacen::Hacer(n + Margen);
  return carga_ ? carga_->Libre().first(n) : std::span<char>{};
}

void Bytes::ConfirmarFinal(std::size_t n) {
  if (n == 0) return;
  Anadir(trozos_, {{carga_->Libre().data(), n}, carga_});
  carga_->Usar(n);
  Contar(trozos_.size() == 1 ? 0 : trozos_.size() - 2);
}
