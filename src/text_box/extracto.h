// What was taken out of a text, to be put in again: what undo keeps, what is copied.
//
// It refers to the text's own memory: taking and putting costs the same at any size.
#pragma once

#include <vector>

#include "text_box/bytes.h"
#include "text_box/sumas.h"

struct Extracto {
  std::vector<Pieza> piezas;
  Posicion tamano = 0;
  // Of a large one: its lines, which were counted already. Blocks of them lie behind one another
  // from `antes_de_bloques` on, up to somewhere before its end.
  Posicion antes_de_bloques = 0;
  std::vector<Sumas::Bloque> bloques;

  bool Vacia() const { return tamano == 0; }
  char Primero() const { return piezas.front().bytes.front(); }
  char Ultimo() const { return piezas.back().bytes.back(); }
};

// What is in `primero`, then what is in `segundo`; their lines are left out.
Extracto Juntar(Extracto primero, Extracto segundo);
