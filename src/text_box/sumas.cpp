#include "text_box/sumas.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::size_t PorGrupo = Sumas::PorGrupo;

// Runs through groups, then through the blocks of one, as long as `queda_atras` says that all of
// what was summed up so far, with the next, lies before what is sought.
template <typename Grupo, typename QuedaAtras>
Sumas::Lugar Buscar(const std::vector<Sumas::Bloque>& bloques, const std::vector<Grupo>& grupos,
                    QuedaAtras queda_atras) {
  Sumas::Lugar lugar;
  std::size_t grupo = 0;
  while (grupo < grupos.size() &&
         queda_atras(lugar.bytes + grupos[grupo].bytes, lugar.cuenta + grupos[grupo].cuenta)) {
    lugar.bytes += grupos[grupo].bytes;
    lugar.cuenta += grupos[grupo].cuenta;
    ++grupo;
  }
  lugar.bloque = std::min(grupo * PorGrupo, bloques.size());
  while (lugar.bloque < bloques.size()) {
    const Sumas::Bloque& bloque = bloques[lugar.bloque];
    if (!queda_atras(lugar.bytes + bloque.bytes, lugar.cuenta + bloque.cuenta)) break;
    lugar.bytes += bloque.bytes;
    lugar.cuenta += bloque.cuenta;
    ++lugar.bloque;
  }
  return lugar;
}

}  // namespace

void Sumas::Vaciar() {
  bloques_.clear();
  grupos_.clear();
  total_ = {};
}

void Sumas::Agregar(Bloque bloque) {
  if (bloques_.size() % PorGrupo == 0) grupos_.emplace_back();
  bloques_.push_back(bloque);
  for (Grupo* suma : {&grupos_.back(), &total_}) {
    suma->bytes += bloque.bytes;
    suma->cuenta += bloque.cuenta;
  }
}

void Sumas::Sustituir(std::size_t desde, std::size_t hasta, std::span<const Bloque> nuevos) {
  const std::size_t quitados = hasta - desde;
  const bool tantos = quitados == nuevos.size();  // if not, all that follow move
  const std::size_t primero = desde / PorGrupo;
  const std::size_t ultimo = tantos ? Grupos(hasta) : grupos_.size();
  for (std::size_t i = primero; i < ultimo; ++i) Totalizar(grupos_[i], -1);

  const std::size_t comunes = std::min(quitados, nuevos.size());
  const auto lugar = bloques_.begin() + static_cast<std::ptrdiff_t>(desde);
  const auto resto = std::copy_n(nuevos.begin(), comunes, lugar);
  if (quitados > comunes) {
    bloques_.erase(resto, lugar + static_cast<std::ptrdiff_t>(quitados));
  } else {
    bloques_.insert(resto, nuevos.begin() + static_cast<std::ptrdiff_t>(comunes), nuevos.end());
  }

  grupos_.resize(Grupos(bloques_.size()));
  for (std::size_t i = primero; i < (tantos ? ultimo : grupos_.size()); ++i) {
    grupos_[i] = SumaDeGrupo(i);
    Totalizar(grupos_[i], 1);
  }
}

void Sumas::Sumar(std::size_t bloque, std::uint32_t cuenta) {
  bloques_[bloque].cuenta += cuenta;
  grupos_[bloque / PorGrupo].cuenta += cuenta;
  total_.cuenta += cuenta;
}

std::size_t Sumas::Grupos(std::size_t bloques) {
  return (bloques + PorGrupo - 1) / PorGrupo;
}

Sumas::Grupo Sumas::SumaDeGrupo(std::size_t grupo) const {
  Grupo suma;
  const std::size_t fin = std::min((grupo + 1) * PorGrupo, bloques_.size());
  for (std::size_t i = grupo * PorGrupo; i < fin; ++i) {
    suma.bytes += bloques_[i].bytes;
    suma.cuenta += bloques_[i].cuenta;
  }
  return suma;
}

void Sumas::Totalizar(const Grupo& grupo, int signo) {
  total_.bytes += signo * grupo.bytes;
  total_.cuenta += signo * grupo.cuenta;
}

Sumas::Lugar Sumas::Donde(std::size_t bloque) const {
  Lugar lugar;
  lugar.bloque = bloque;
  for (std::size_t i = 0; i < bloque / PorGrupo; ++i) {
    lugar.bytes += grupos_[i].bytes;
    lugar.cuenta += grupos_[i].cuenta;
  }
  for (std::size_t i = bloque / PorGrupo * PorGrupo; i < bloque; ++i) {
    lugar.bytes += bloques_[i].bytes;
    lugar.cuenta += bloques_[i].cuenta;
  }
  return lugar;
}

Sumas::Lugar Sumas::PorPosicion(Posicion pos) const {
  return Buscar(bloques_, grupos_, [pos](Posicion bytes, std::int64_t) { return bytes <= pos; });
}

Sumas::Lugar Sumas::PorCuenta(std::int64_t n) const {
  return Buscar(bloques_, grupos_, [n](Posicion, std::int64_t cuenta) { return cuenta <= n; });
}
