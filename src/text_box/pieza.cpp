#include "text_box/pieza.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace {

constexpr Posicion Bocado = 1 << 20;
constexpr std::size_t MayorUnion = 1024;  // putting bytes in front moves the others

}  // namespace

Posicion Pieza::Tamano() const {
  return grande_ ? grande_->Tamano() : static_cast<Posicion>(chica_.size());
}

bool Pieza::Sacar(Bytes& texto, Posicion pos, Posicion cuantos) {
  if (cuantos < Bocado) {
    chica_.resize(static_cast<std::size_t>(cuantos));
    texto.Copiar(pos, pos + cuantos, chica_.data());
    texto.Quitar(pos, cuantos);
    return true;
  }
  auto grande = std::make_unique<Bytes>();
  std::span<char> sitio = grande->ReservarFinal(static_cast<std::size_t>(cuantos));
  if (sitio.empty()) return false;
  while (!sitio.empty()) {
    const Posicion n = std::min(Bocado, static_cast<Posicion>(sitio.size()));
    texto.Copiar(pos, pos + n, sitio.data());
    texto.Quitar(pos, n);
    sitio = sitio.subspan(static_cast<std::size_t>(n));
    grande->ConfirmarFinal(static_cast<std::size_t>(n));
  }
  grande_ = std::move(grande);
  return true;
}

bool Pieza::Meter(Bytes& texto, Posicion pos) {
  if (!texto.Prever(static_cast<std::size_t>(Tamano()))) return false;
  while (grande_ && grande_->Tamano() > 0) {
    const std::string_view trozo = grande_->Tramos(0, std::min(Bocado, grande_->Tamano()))[1];
    const auto n = static_cast<Posicion>(trozo.size());
    if (!texto.Reemplazar(pos, 0, trozo)) return false;  // there is room
    grande_->Quitar(0, n);
    pos += n;
  }
  grande_.reset();
  const bool metida = texto.Reemplazar(pos, 0, chica_);
  if (metida) chica_.clear();
  return metida;
}

bool Pieza::Unir(const Pieza& otra, bool delante) {
  if (grande_ || otra.grande_ || chica_.size() + otra.chica_.size() > MayorUnion) return false;
  chica_.insert(delante ? 0 : chica_.size(), otra.chica_);
  return true;
}

bool Canjear(Bytes& texto, Posicion pos, Posicion quitados, std::string_view nuevos,
             Pieza& sacada) {
  const auto puestos = static_cast<Posicion>(nuevos.size());
  if (!texto.Reemplazar(pos, 0, nuevos)) return false;
  if (sacada.Sacar(texto, pos + puestos, quitados)) return true;
  texto.Quitar(pos, puestos);
  return false;
}

bool Canjear(Bytes& texto, Posicion pos, Posicion quitados, Pieza& nueva, Pieza& sacada) {
  const Posicion puestos = nueva.Tamano();
  if (!texto.Prever(static_cast<std::size_t>(puestos))) return false;
  // Taking out first frees what the other needs; with the room there, putting in cannot fail.
  return sacada.Sacar(texto, pos, quitados) && nueva.Meter(texto, pos);
}
