// The part of a row that is in sight.
#pragma once

#include <vector>

#include "text_box/encuadre.h"

struct ALaVista {
  Posicion primera = 0;  // the first byte in sight, also in part
  std::vector<char> bytes;
  // Of each byte, and behind the last one: 26.6 from the viewport's left edge.
  std::vector<Punto> x;
  Punto izquierda = 0;  // from the row's start to that edge

  // Of the row that starts at `inicio`; what was here before makes room.
  void Recoger(const Bytes& texto, const Encuadre& encuadre, Posicion inicio);
  // The place of a position among the bytes, the nearest one when it is not in sight.
  std::size_t Indice(Posicion pos) const;
};
