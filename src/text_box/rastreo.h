// Looking through bytes for line ends, sixteen at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text_box/lector_texto.h"

// What stands at each of up to 64 bytes, a bit for each, the first one lowest.
struct Mascaras {
  std::uint64_t lf = 0;
  std::uint64_t cr = 0;
  std::uint64_t tab = 0;
  bool alto = false;  // is there a byte from 80 on, here or close behind?
};
// The `n` bytes from `pos` on, 0 < n <= 64, all of one piece.
Mascaras Mirar(const LectorTexto& texto, Posicion pos, std::size_t n);

// The bytes with which line ends are complete: every LF, and every CR that no LF follows.
// `siguiente`: the byte after the `n` (> 0) that were looked at, -1 where the text ends.
inline std::uint64_t Fines(const Mascaras& mascaras, std::size_t n, int siguiente) {
  const std::uint64_t tras = std::uint64_t{siguiente == '\n'} << (n - 1);
  return mascaras.lf | (mascaras.cr & ~(mascaras.lf >> 1 | tras));
}

constexpr bool EsEspecial(unsigned char byte) {
  return byte == '\n' || byte == '\r' || byte == '\t';
}
// How many of the `n` bytes stand before the first tab or line end, or byte from 80 on `ConAltos`.
template <bool ConAltos>
std::size_t HastaEspecial(const unsigned char* bytes, std::size_t n);

// How many line ends are complete in `bytes`, with `siguiente` as above.
std::int64_t ContarFines(std::string_view bytes, int siguiente);

// The first CR or LF of [desde, hasta); `hasta` without one.
Posicion PrimerFin(const LectorTexto& texto, Posicion desde, Posicion hasta);
// The offset of the last one; npos without one.
std::size_t UltimoFin(std::string_view bytes);
