// What was done to a text, to be undone and done again.
//
// A list of replacements, a step each. Each keeps only the bytes that are not in the text: undoing
// it swaps them with those that are, which turns it into its own opposite.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <vector>

#include "text_box/extracto.h"

// How a change joins the one before it into one step of undo.
enum class Agrupacion : std::uint8_t {
  Sola,      // a step of its own (paste, drop, cut)
  Escribir,  // typing: joined with the typing before it, by word or pause
  Borrar,    // Backspace and Delete, likewise
};

struct Operacion {
  Posicion pos = 0;
  Posicion dentro = 0;  // its bytes that are in the text, from `pos` on
  Extracto fuera;       // those that were there instead
};

class Historial {
 public:
  using Momento = std::chrono::milliseconds;  // of any steady clock
  static constexpr Momento Pausa{1000};       // after that a new step begins

  void Vaciar();
  // The first and the last of the bytes that were typed, or that were erased.
  struct Extremos {
    char primero = '\0';
    char ultimo = '\0';
  };
  // A change that was just made; what was undone is forgotten.
  void Anotar(Operacion operacion, Agrupacion agrupacion, Extremos extremos, Momento ahora);
  void CerrarGrupo() { abierta_ = Agrupacion::Sola; }

  // The operations to swap next; null without one. What swapped it says so by Deshecha, Rehecha.
  Operacion* PorDeshacer() { return hechas_.empty() ? nullptr : &hechas_.back(); }
  Operacion* PorRehacer() { return deshechas_.empty() ? nullptr : &deshechas_.back(); }
  void Deshecha();
  void Rehecha();

  // Is it so of every piece that is kept?
  template <typename Condicion>
  bool Todas(Condicion condicion) const {
    const auto de_operacion = [&](const Operacion& operacion) {
      return std::ranges::all_of(operacion.fuera.piezas, condicion);
    };
    return std::ranges::all_of(hechas_, de_operacion) &&
           std::ranges::all_of(deshechas_, de_operacion);
  }

  bool HayHechas() const { return !hechas_.empty(); }
  bool HayDeshechas() const { return !deshechas_.empty(); }

 private:
  bool Continua(Agrupacion agrupacion, char primero, Momento ahora) const;

  std::vector<Operacion> hechas_;
  std::vector<Operacion> deshechas_;
  Agrupacion abierta_ = Agrupacion::Sola;  // what may still join the last operation
  char ultimo_byte_ = 0;
  Momento ultimo_momento_{};
};
