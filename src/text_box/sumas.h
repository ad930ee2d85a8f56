// Sums over a text cut into blocks: which block holds a position, how much is counted before it.
//
// A flat vector of {bytes, count} per block, with 64-bit sums per group of 64 blocks. All ways of
// asking run through the groups, then through one group's blocks. A text of 1 GB has some 4,000
// groups: a search is a matter of microseconds, and there is no tree to keep in balance. Who asks
// for one block after the other does not run through the groups again: a search goes on from the
// group that the last one came to, unless it leads further back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "text_box/bytes.h"

class Sumas {
 public:
  static constexpr std::size_t PorGrupo = 64;  // blocks

  struct Bloque {
    std::uint32_t bytes = 0;
    std::uint32_t cuenta = 0;
  };
  // A block with what lies before it.
  struct BloqueSituado {
    std::size_t bloque = 0;
    Posicion bytes = 0;
    std::int64_t cuenta = 0;
  };

  void Vaciar();
  void Agregar(Bloque bloque);
  // Blocks [desde, hasta) give way to `nuevos`.
  void Sustituir(std::size_t desde, std::size_t hasta, std::span<const Bloque> nuevos);
  void Sumar(std::size_t bloque, std::uint32_t cuenta);  // adds to one block's count

  std::size_t Bloques() const { return bloques_.size(); }
  Bloque En(std::size_t bloque) const { return bloques_[bloque]; }
  Posicion BytesDeGrupo(std::size_t grupo) const { return grupos_[grupo].bytes; }
  Posicion Bytes() const { return total_.bytes; }
  std::int64_t Cuenta() const { return total_.cuenta; }

  BloqueSituado Donde(std::size_t bloque) const;  // up to Bloques(): the end
  // The block that holds byte `pos`; the end when pos >= Bytes().
  BloqueSituado PorPosicion(Posicion pos) const;
  // The block that holds item number `n` of what is counted, from 0; the end when n >= Cuenta().
  BloqueSituado PorCuenta(std::int64_t n) const;

 private:
  struct Grupo {
    Posicion bytes = 0;
    std::int64_t cuenta = 0;
  };
  // A group with the sum of those before it.
  struct Parada {
    std::size_t grupo = 0;
    Grupo antes;
  };
  template <typename QuedaAtras>
  Parada LlegarAlGrupo(QuedaAtras queda_atras) const;
  template <typename QuedaAtras>
  BloqueSituado Buscar(QuedaAtras queda_atras) const;
  void OlvidarParada(std::size_t bloque);  // it changes

  static std::size_t Grupos(std::size_t bloques);
  Grupo SumaDeGrupo(std::size_t grupo) const;
  void Totalizar(const Grupo& grupo, int signo);

  std::vector<Bloque> bloques_;
  std::vector<Grupo> grupos_;
  Grupo total_;
  mutable Parada parada_;  // where the last search came to
};
