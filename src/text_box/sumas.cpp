#include "text_box/sumas.h"

#include <algorithm>
#include <iterator>

// On over the groups as long as `queda_atras`, told of a group, the bytes and the count up to its
// end, says that it lies before what is sought.
template <typename QuedaAtras>
Sumas::Parada Sumas::LlegarAlGrupo(QuedaAtras queda_atras) const {
  const bool de_nuevo = parada_.grupo > 0 &&
                        !queda_atras(parada_.grupo - 1, parada_.antes.bytes, parada_.antes.cuenta);
  Parada parada = de_nuevo ? Parada() : parada_;
  for (; parada.grupo < grupos_.size(); ++parada.grupo) {
    const Grupo& grupo = grupos_[parada.grupo];
    const Grupo hasta{parada.antes.bytes + grupo.bytes, parada.antes.cuenta + grupo.cuenta};
    if (!queda_atras(parada.grupo, hasta.bytes, hasta.cuenta)) break;
    parada.antes = hasta;
  }
  if (parada.grupo < grupos_.size()) parada_ = parada;  // the last group still grows
  return parada;
}

template <typename QuedaAtras>
Sumas::BloqueSituado Sumas::Buscar(QuedaAtras queda_atras) const {
  const Parada parada = LlegarAlGrupo(
      [&](std::size_t, Posicion bytes, std::int64_t cuenta) { return queda_atras(bytes, cuenta); });
  BloqueSituado hallado{std::min(parada.grupo * PorGrupo, bloques_.size()), parada.antes.bytes,
                        parada.antes.cuenta};
  for (; hallado.bloque < bloques_.size(); ++hallado.bloque) {
    const Bloque& bloque = bloques_[hallado.bloque];
    if (!queda_atras(hallado.bytes + bloque.bytes, hallado.cuenta + bloque.cuenta)) break;
    hallado.bytes += bloque.bytes;
    hallado.cuenta += bloque.cuenta;
  }
  return hallado;
}

void Sumas::OlvidarParada(std::size_t bloque) {
  if (bloque / PorGrupo < parada_.grupo) parada_ = {};
}

void Sumas::Vaciar() {
  OlvidarParada(0);
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
  OlvidarParada(desde);
  const std::size_t quitados = hasta - desde;
  const bool tantos = quitados == nuevos.size();  // if not, all that follow move
  const std::size_t primero = desde / PorGrupo;
  const std::size_t ultimo = tantos ? Grupos(hasta) : grupos_.size();
  for (std::size_t i = primero; i < ultimo; ++i) Totalizar(grupos_[i], -1);

  const std::size_t comunes = std::min(quitados, nuevos.size());
  const auto sitio = bloques_.begin() + static_cast<std::ptrdiff_t>(desde);
  const auto resto = std::copy_n(nuevos.begin(), comunes, sitio);
  if (quitados > comunes) {
    bloques_.erase(resto, sitio + static_cast<std::ptrdiff_t>(quitados));
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
  OlvidarParada(bloque);
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

Sumas::BloqueSituado Sumas::Donde(std::size_t bloque) const {
  const Parada parada = LlegarAlGrupo(
      [bloque](std::size_t grupo, Posicion, std::int64_t) { return grupo < bloque / PorGrupo; });
  BloqueSituado hallado{bloque, parada.antes.bytes, parada.antes.cuenta};
  for (std::size_t i = parada.grupo * PorGrupo; i < bloque; ++i) {
    hallado.bytes += bloques_[i].bytes;
    hallado.cuenta += bloques_[i].cuenta;
  }
  return hallado;
}

Sumas::BloqueSituado Sumas::PorPosicion(Posicion pos) const {
  return Buscar([pos](Posicion bytes, std::int64_t) { return bytes <= pos; });
}

Sumas::BloqueSituado Sumas::PorCuenta(std::int64_t n) const {
  return Buscar([n](Posicion, std::int64_t cuenta) { return cuenta <= n; });
}
