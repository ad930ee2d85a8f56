// Moves a pen along bytes: a table of advances made ready for summing over long stretches.
//
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "text_box/lector_texto.h"
#include "text_box/renglones.h"

class Pluma {
 public:
  // What has no width of its own, a tab or a line end, is wider than any row here.
  using Solos = std::array<std::int32_t, 256>;
  using Pares = std::array<std::int32_t, 1 << 16>;  // the sum of two bytes that stand together

  Pluma();  // every byte has no width
  explicit Pluma(const Avances& avances);

  const Avances& Tabla() const { return avances_; }
  Punto Ancho(unsigned char byte) const { return avances_.ancho[byte]; }
  Punto Maximo() const { return maximo_; }  // the widest byte; tabs aside
  Punto Tabulador() const { return avances_.tabulador; }
  Punto Tabular(Punto x) const { return (x / Tabulador() + 1) * Tabulador(); }

  // The sum over `n` bytes, none of them a tab.
  Punto Sumar(const unsigned char* bytes, std::size_t n) const;
  // How many of `n` bytes, up to the first tab or line end, move the pen to no more than `limite`;
  // `x` is moved along with them.
  std::size_t Caber(const unsigned char* bytes, std::size_t n, Punto limite, Punto& x) const;

  // What follows is about text without line ends.
  // The pen at `hasta` when it is at `x` at `desde`.
  Punto Medir(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x) const;
  // The last position of [desde, hasta] where the pen is not beyond `limite`, when it is at `x`
  // at `desde`; `desde` itself when there is none.
  Renglones::Corte Hasta(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x,
                         Punto limite) const;

  // Of that position and the one after it, the one whose x is nearer; `ultima` is the last.
  Posicion MasCerca(const LectorTexto& texto, const Renglones::Corte& corte, Posicion ultima,
                    Punto x) const;

 private:
  Avances avances_;
  Solos solos_{};
  std::shared_ptr<const Pares> pares_;  // only where widths differ
  Punto maximo_ = 0;
  bool uniforme_ = false;  // all bytes but tab, LF and CR are equally wide, and not 0
};
