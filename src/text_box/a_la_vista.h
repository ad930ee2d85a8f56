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
  // Are there characters of several bytes? Then x is of the first byte only, and of a row that is
  // not very long all of it is here.
  bool con_signos = false;

  // Of the row that starts at `inicio`; what was here before makes room.
  void Recoger(const Bytes& texto, const Encuadre& encuadre, Posicion inicio);
  // The place of a position among the bytes, the nearest one when it is not in sight.
  std::size_t Indice(Posicion pos) const;

 private:
  bool RecogerSignos(const Bytes& texto, const Encuadre& encuadre, Posicion inicio, Posicion fin);
};
