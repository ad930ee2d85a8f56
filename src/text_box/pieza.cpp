#include "text_box/pieza.h"

#include <utility>

Pieza Juntar(Pieza primera, Pieza segunda) {
  Pieza junta{std::move(primera.trozos), primera.tamano + segunda.tamano, 0, {}};
  for (Trozo& trozo : segunda.trozos) Anadir(junta.trozos, std::move(trozo));
  return junta;
}
