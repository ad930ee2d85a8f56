#include "text_box/extracto.h"

#include <utility>

Extracto Juntar(Extracto primero, Extracto segundo) {
  Extracto junto{std::move(primero.piezas), primero.tamano + segundo.tamano, 0, {}};
  for (Pieza& pieza : segundo.piezas) Anadir(junto.piezas, std::move(pieza));
  return junto;
}
