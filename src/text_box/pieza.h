// A stretch of a text, to be put in again: what undo keeps, what is copied.
//
// It refers to the text's own memory: taking and putting costs the same at any size.
#pragma once

#include <vector>

#include "text_box/bytes.h"
#include "text_box/sumas.h"

struct Pieza {
  std::vector<Trozo> trozos;
  Posicion tamano = 0;
  // Of a large one: its lines, which were counted already. Blocks of them lie behind one another
  // from `antes_de_bloques` on, up to somewhere before its end.
  Posicion antes_de_bloques = 0;
  std::vector<Sumas::Bloque> bloques;

  bool Vacia() const { return tamano == 0; }
  char Primero() const { return trozos.front().bytes.front(); }
  char Ultimo() const { return trozos.back().bytes.back(); }
};

// What is in `primera`, then what is in `segunda`; their lines are left out.
Pieza Juntar(Pieza primera, Pieza segunda);
