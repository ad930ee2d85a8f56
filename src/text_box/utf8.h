// UTF-8 as the Unicode standard has it in table 3-7: no overlong form, no surrogate, nothing above
// 10FFFF. A byte that belongs to no sequence is a character of its own.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text_box/lector_texto.h"

namespace Utf8 {

constexpr std::size_t Mayor = 4;        // bytes of a sequence
constexpr char32_t Suelto = 0xDC00;     // plus a byte that belongs to no sequence
constexpr char32_t Reemplazo = 0xFFFD;  // what other programs get of such a byte
constexpr std::uint64_t Altos = 0x8080808080808080U;

constexpr bool EsSuelto(char32_t codigo) {
  return codigo >= Suelto + 0x80 && codigo <= Suelto + 0xff;
}

struct Caracter {
  char32_t codigo = 0;
  std::uint8_t largo = 1;  // bytes
};
// The character that starts with the first of `n` (> 0) bytes.
Caracter Leer(const unsigned char* bytes, std::size_t n);
// The one that starts at `pos`, before the end of the text.
Caracter Leer(const LectorTexto& texto, Posicion pos);
// The start of the character that holds the byte at `pos`, or `pos` at the end of the text.
Posicion Inicio(const LectorTexto& texto, Posicion pos);

// Writes a code point; how many bytes it takes.
std::size_t Escribir(char32_t codigo, char* destino);

bool EsAscii(std::string_view bytes);

// What a text's bytes from 80 on are, as it comes in piece by piece.
class Recuento {
 public:
  void Agregar(std::string_view bytes);
  void Terminar();

  std::int64_t Secuencias() const { return secuencias_; }  // well-formed, of several bytes
  std::int64_t Sueltos() const { return sueltos_; }        // bytes that belong to none
  bool EsAscii() const { return secuencias_ == 0 && sueltos_ == 0; }

 private:
  void Lento(const unsigned char* bytes, std::size_t n, std::size_t& i);
  void Juntar(std::string_view& bytes);

  std::int64_t secuencias_ = 0;
  std::int64_t sueltos_ = 0;
  std::array<unsigned char, 2 * Mayor> resto_{};  // the start of a sequence that is not complete
  std::size_t restan_ = 0;
};

}  // namespace Utf8
