// Bytes that were taken out of a text, kept to be put back.
//
// A big piece lies in a mapping of its own and moves there and back bit by bit, so that its bytes
// are never in memory twice.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "text_box/bytes.h"

class Pieza {
 public:
  Posicion Tamano() const;
  bool Vacia() const { return Tamano() == 0; }
  // The bytes of a small piece; those of a big one are not to be had.
  std::string_view Vista() const { return chica_; }

  // Takes [pos, pos + cuantos) out of the text. False when memory is out: nothing has changed.
  [[nodiscard]] bool Sacar(Bytes& texto, Posicion pos, Posicion cuantos);
  // Puts its bytes into the text and is empty afterwards; as above.
  [[nodiscard]] bool Meter(Bytes& texto, Posicion pos);

  // Joins another small piece to this small one; false when they would no longer be small.
  bool Unir(const Pieza& otra, bool delante);

 private:
  std::string chica_;
  std::unique_ptr<Bytes> grande_;
};

// Replaces bytes of the text by others and keeps the old ones. False when memory is out: nothing
// has changed then.
[[nodiscard]] bool Canjear(Bytes& texto, Posicion pos, Posicion quitados, std::string_view nuevos,
                           Pieza& sacada);
[[nodiscard]] bool Canjear(Bytes& texto, Posicion pos, Posicion quitados, Pieza& nueva,
                           Pieza& sacada);
