#include "text_box/bytes.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace {

constexpr std::size_t Apunte = std::size_t{64} << 10;  // what is typed lies together
constexpr std::size_t Margen = std::size_t{1} << 20;   // to see a file's end without more memory

bool Sigue(const Pieza& uno, const Pieza& otro) {
  return uno.almacen == otro.almacen && uno.bytes.data() + uno.bytes.size() == otro.bytes.data();
}

std::vector<Pieza> Sacar(std::vector<Pieza>::iterator desde, std::vector<Pieza>::iterator hasta) {
  return {std::make_move_iterator(desde), std::make_move_iterator(hasta)};
}

}  // namespace

void Anadir(std::vector<Pieza>& piezas, Pieza otro) {
  if (piezas.empty() || !Sigue(piezas.back(), otro)) return piezas.push_back(std::move(otro));
  std::string_view& bytes = piezas.back().bytes;
  bytes = {bytes.data(), bytes.size() + otro.bytes.size()};
}

// The piece that holds `pos`; the number of pieces at the end of the text.
std::size_t Bytes::Indice(Posicion pos) const {
  const auto siguiente = std::upper_bound(inicios_.begin(), inicios_.end(), pos);
  return static_cast<std::size_t>(siguiente - inicios_.begin()) - 1;
}

Bytes::PiezaSituada Bytes::Donde(Posicion pos) const {
  if (piezas_.empty()) return {};
  const std::size_t indice = std::min(Indice(pos), piezas_.size() - 1);
  const Posicion inicio = inicios_[indice];
  return {inicio, inicios_[indice + 1], piezas_[indice].bytes.data() + (pos - inicio)};
}

std::vector<Pieza> Bytes::Piezas(Posicion desde, Posicion hasta) const {
  std::vector<Pieza> piezas;
  for (std::size_t i = Indice(desde); desde < hasta; ++i) {
    const Posicion fin = std::min(hasta, inicios_[i + 1]);
    const auto delante = static_cast<std::size_t>(desde - inicios_[i]);
    const auto largo = static_cast<std::size_t>(fin - desde);
    piezas.push_back({piezas_[i].bytes.substr(delante, largo), piezas_[i].almacen});
    desde = fin;
  }
  return piezas;
}

std::vector<std::string_view> Bytes::Tramos(Posicion desde, Posicion hasta) const {
  std::vector<std::string_view> tramos;
  for (const Pieza& pieza : Piezas(desde, hasta)) tramos.push_back(pieza.bytes);
  return tramos;
}

void Bytes::Copiar(Posicion desde, Posicion hasta, char* destino) const {
  while (desde < hasta) {
    const PiezaSituada hallada = Donde(desde);
    const Posicion fin = std::min(hasta, hallada.fin);
    destino = std::copy_n(hallada.datos, fin - desde, destino);
    desde = fin;
  }
}

std::vector<Pieza> Bytes::Sustituir(Posicion pos, Posicion quitados, std::vector<Pieza> nuevos) {
  const std::size_t desde = Partir(pos);
  const std::size_t hasta = Partir(pos + quitados);
  const auto primero = piezas_.begin() + static_cast<std::ptrdiff_t>(desde);
  const auto ultimo = piezas_.begin() + static_cast<std::ptrdiff_t>(hasta);
  std::vector<Pieza> viejos = Sacar(primero, ultimo);
  std::vector<Pieza> resto = Sacar(ultimo, piezas_.end());
  piezas_.erase(primero, piezas_.end());
  const std::size_t cambiados = desde == 0 ? 0 : desde - 1;
  for (Pieza& nuevo : nuevos) Anadir(piezas_, std::move(nuevo));
  for (Pieza& otro : resto) Anadir(piezas_, std::move(otro));
  Contar(cambiados);
  return viejos;
}

// Makes a piece start at `pos`; its index.
std::size_t Bytes::Partir(Posicion pos) {
  const std::size_t indice = Indice(pos);
  if (indice == piezas_.size() || inicios_[indice] == pos) return indice;
  Pieza& pieza = piezas_[indice];
  const auto corte = static_cast<std::size_t>(pos - inicios_[indice]);
  Pieza detras{pieza.bytes.substr(corte), pieza.almacen};
  pieza.bytes = pieza.bytes.substr(0, corte);
  const auto siguiente = static_cast<std::ptrdiff_t>(indice) + 1;
  piezas_.insert(piezas_.begin() + siguiente, std::move(detras));
  inicios_.insert(inicios_.begin() + siguiente, pos);
  return indice + 1;
}

// Where the pieces start, from number `desde` on.
void Bytes::Contar(std::size_t desde) {
  inicios_.resize(piezas_.size() + 1);
  for (std::size_t i = desde; i < piezas_.size(); ++i) {
    inicios_[i + 1] = inicios_[i] + static_cast<Posicion>(piezas_[i].bytes.size());
  }
}

bool Bytes::Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos) {
  auto guardados = Guardar(nuevos);
  if (guardados) Sustituir(pos, quitados, std::move(*guardados));
  return guardados.has_value();
}

std::optional<std::vector<Pieza>> Bytes::Guardar(std::string_view bytes) {
  if (bytes.empty()) return std::vector<Pieza>{};
  if (!apuntes_ || apuntes_->Libre().size() < bytes.size()) {
    auto otro = Almacen::Hacer(std::max(Apunte, bytes.size()));
    if (!otro) return std::nullopt;
    apuntes_ = std::move(otro);
  }
  char* const donde = apuntes_->Libre().data();
  std::memcpy(donde, bytes.data(), bytes.size());
  apuntes_->Usar(bytes.size());
  return std::vector<Pieza>{{{donde, bytes.size()}, apuntes_}};
}

std::span<char> Bytes::ReservarFinal(std::size_t n) {
  if (!carga_ || carga_->Libre().size() < n) carga_ = Almacen::Hacer(n + Margen);
  return carga_ ? carga_->Libre().first(n) : std::span<char>{};
}

void Bytes::ConfirmarFinal(std::size_t n) {
  if (n == 0) return;
  Anadir(piezas_, {{carga_->Libre().data(), n}, carga_});
  carga_->Usar(n);
  Contar(piezas_.size() == 1 ? 0 : piezas_.size() - 2);
}
