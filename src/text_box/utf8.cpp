#include "text_box/utf8.h"

#include <algorithm>
#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Utf8 {
namespace {

constexpr bool EsContinuacion(unsigned char byte) {
  return (byte & 0xc0) == 0x80;
}

// How many bytes a sequence has that starts with this one; 1 for one that starts none.
constexpr std::size_t Largo(unsigned char byte) {
  if (byte < 0xc2 || byte > 0xf4) return 1;
  if (byte < 0xe0) return 2;
  return byte < 0xf0 ? 3 : 4;
}

constexpr bool EsSegundo(unsigned char primero, unsigned char byte) {
  switch (primero) {
    case 0xe0:
      return byte >= 0xa0 && byte <= 0xbf;
    case 0xed:
      return byte >= 0x80 && byte <= 0x9f;
    case 0xf0:
      return byte >= 0x90 && byte <= 0xbf;
    case 0xf4:
      return byte >= 0x80 && byte <= 0x8f;
    default:
      return EsContinuacion(byte);
  }
}

// May the sequence that begins with these bytes go on behind them?
bool Incompleta(const unsigned char* bytes, std::size_t n) {
  if (n >= Largo(bytes[0]) || (n > 1 && !EsSegundo(bytes[0], bytes[1]))) return false;
  return std::all_of(bytes + 1, bytes + n, EsContinuacion);
}

constexpr std::size_t Ventana = 64;

#ifdef __SSE2__

// Counts the sequences of 64 bytes that hold the usual ones of two bytes and nothing else, from
// a start to an end of one; -1 for any others.
int ContarDobles(const unsigned char* bytes) {
  std::uint64_t altos = 0;
  std::uint64_t siguientes = 0;
  __m128i raros = _mm_setzero_si128();
  for (int i = 0; i < 64; i += 16) {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + i));
    const auto bits = static_cast<std::uint64_t>(_mm_movemask_epi8(v));
    if (bits == 0) continue;
    const __m128i cola = _mm_cmplt_epi8(v, _mm_set1_epi8(static_cast<char>(0xc0)));
    altos |= bits << i;
    siguientes |= static_cast<std::uint64_t>(_mm_movemask_epi8(cola)) << i;
    // From E0 on, and C0 and C1.
    const __m128i largo =
        _mm_cmpeq_epi8(_mm_max_epu8(v, _mm_set1_epi8(static_cast<char>(0xe0))), v);
    const __m128i corto = _mm_cmpeq_epi8(_mm_and_si128(v, _mm_set1_epi8(static_cast<char>(0xfe))),
                                         _mm_set1_epi8(static_cast<char>(0xc0)));
    raros = _mm_or_si128(raros, _mm_or_si128(largo, corto));
  }
  const std::uint64_t primeros = altos & ~siguientes;
  if (_mm_movemask_epi8(raros) != 0 || primeros >> 63 != 0 || primeros << 1 != siguientes) {
    return -1;
  }
  return std::popcount(primeros);
}

#else

int ContarDobles(const unsigned char* /*bytes*/) {
  return -1;
}

#endif

std::size_t HastaAlto(const unsigned char* bytes, std::size_t n) {
  std::size_t i = 0;
  for (; i + 16 <= n; i += 16) {
    std::array<std::uint64_t, 2> palabras{};
    std::memcpy(palabras.data(), bytes + i, 16);
    if (((palabras[0] | palabras[1]) & Altos) != 0) break;
  }
  while (i < n && bytes[i] < 0x80) ++i;
  return i;
}

}  // namespace

bool EsAscii(std::string_view bytes) {
  return HastaAlto(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()) ==
         bytes.size();
}

Caracter Leer(const unsigned char* bytes, std::size_t n) {
  const unsigned char primero = bytes[0];
  if (primero < 0x80) return {primero, 1};
  const std::size_t largo = Largo(primero);
  const bool entera = largo > 1 && largo <= n && EsSegundo(primero, bytes[1]) &&
                      (largo < 3 || EsContinuacion(bytes[2])) &&
                      (largo < 4 || EsContinuacion(bytes[3]));
  if (!entera) return {Suelto + primero, 1};
  char32_t codigo = primero & (0xffU >> (largo + 1));
  for (std::size_t i = 1; i < largo; ++i) codigo = codigo << 6 | (bytes[i] & 0x3fU);
  return {codigo, static_cast<std::uint8_t>(largo)};
}

Caracter Leer(const LectorTexto& texto, Posicion pos) {
  const auto n = static_cast<std::size_t>(texto.FinDePieza(pos) - pos);
  if (n >= Mayor || texto.En(pos) < 0x80) return Leer(texto.Desde(pos), n);
  std::array<unsigned char, Mayor> copia{};
  std::size_t hay = 0;
  for (; hay < Mayor && pos + static_cast<Posicion>(hay) < texto.Total(); ++hay) {
    copia[hay] = texto.En(pos + static_cast<Posicion>(hay));
  }
  return Leer(copia.data(), hay);
}

Posicion Inicio(const LectorTexto& texto, Posicion pos) {
  if (pos >= texto.Total() || !EsContinuacion(texto.En(pos))) return pos;
  const Posicion tope = std::max<Posicion>(0, pos - static_cast<Posicion>(Mayor) + 1);
  for (Posicion inicio = pos - 1; inicio >= tope; --inicio) {
    const unsigned char byte = texto.En(inicio);
    if (EsContinuacion(byte)) continue;
    return inicio + Leer(texto, inicio).largo > pos ? inicio : pos;
  }
  return pos;
}

std::size_t Escribir(char32_t codigo, char* destino) {
  const auto poner = [&](std::size_t i, char32_t bits) { destino[i] = static_cast<char>(bits); };
  if (codigo < 0x80) {
    poner(0, codigo);
    return 1;
  }
  const std::size_t largo = codigo < 0x800 ? 2 : codigo < 0x10000 ? 3 : 4;
  for (std::size_t i = largo - 1; i > 0; --i, codigo >>= 6) poner(i, 0x80 | (codigo & 0x3f));
  poner(0, (0xf00U >> largo & 0xf0U) | codigo);
  return largo;
}

// Goes over the characters from byte number `i` on, up to the next one below 80 or the last that
// may be cut by the end.
void Recuento::Lento(const unsigned char* bytes, std::size_t n, std::size_t& i) {
  while (i < n && bytes[i] >= 0x80) {
    const Caracter caracter = Leer(bytes + i, n - i);
    if (caracter.largo == 1 && Incompleta(bytes + i, n - i)) return;
    ++(caracter.largo > 1 ? secuencias_ : sueltos_);
    i += caracter.largo;
  }
}

// What the last piece left and the start of this one.
void Recuento::Juntar(std::string_view& bytes) {
  while (restan_ > 0 && !bytes.empty()) {
    resto_[restan_++] = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    if (Incompleta(resto_.data(), restan_)) continue;
    // The last byte is looked at anew where it does not belong to what stands before.
    std::size_t i = 0;
    Lento(resto_.data(), restan_, i);
    std::copy(resto_.begin() + static_cast<std::ptrdiff_t>(i),
              resto_.begin() + static_cast<std::ptrdiff_t>(restan_), resto_.begin());
    restan_ = i < restan_ && resto_[0] < 0x80 ? 0 : restan_ - i;
  }
}

void Recuento::Agregar(std::string_view bytes) {
  Juntar(bytes);
  const auto* datos = reinterpret_cast<const unsigned char*>(bytes.data());
  const std::size_t n = bytes.size();
  std::size_t i = 0;
  while ((i += HastaAlto(datos + i, n - i)) < n) {
    const int dobles = i + Ventana <= n ? ContarDobles(datos + i) : -1;
    if (dobles >= 0) {
      secuencias_ += dobles;
      i += Ventana;
      continue;
    }
    Lento(datos, n, i);
    if (i < n && datos[i] >= 0x80) {  // it may go on in the next piece
      restan_ = n - i;
      std::copy(datos + i, datos + n, resto_.begin());
      return;
    }
  }
}

void Recuento::Terminar() {
  sueltos_ += static_cast<std::int64_t>(restan_);
  restan_ = 0;
}

}  // namespace Utf8
