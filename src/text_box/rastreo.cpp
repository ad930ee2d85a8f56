#include "text_box/rastreo.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace {

#ifdef __SSE2__

std::uint64_t Iguales(__m128i dieciseis, char byte) {
  return static_cast<std::uint64_t>(
      _mm_movemask_epi8(_mm_cmpeq_epi8(dieciseis, _mm_set1_epi8(byte))));
}

std::uint64_t Altos(__m128i dieciseis) {
  return static_cast<std::uint64_t>(_mm_movemask_epi8(dieciseis));
}

// A bit for each of sixteen bytes.
template <bool ConAltos>
std::uint64_t Especiales(const unsigned char* bytes) {
  const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
  return Iguales(v, '\n') | Iguales(v, '\r') | Iguales(v, '\t') | (ConAltos ? Altos(v) : 0);
}

Mascaras MirarTodos(const unsigned char* bytes) {
  Mascaras mascaras;
  __m128i todos = _mm_setzero_si128();
  for (int i = 0; i < 64; i += 16) {
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + i));
    todos = _mm_or_si128(todos, v);
    // Most of a text is none of the three: all of them are 13 at most.
    const __m128i pequenos = _mm_cmpeq_epi8(_mm_min_epu8(v, _mm_set1_epi8('\r')), v);
    if (_mm_movemask_epi8(pequenos) == 0) continue;
    mascaras.lf |= Iguales(v, '\n') << i;
    mascaras.cr |= Iguales(v, '\r') << i;
    mascaras.tab |= Iguales(v, '\t') << i;
  }
  mascaras.alto = Altos(todos) != 0;
  return mascaras;
}

#else

template <bool ConAltos>
std::uint64_t Especiales(const unsigned char* bytes) {
  std::uint64_t bits = 0;
  for (int i = 0; i < 16; ++i) {
    bits |= std::uint64_t{EsEspecial(bytes[i]) || (ConAltos && bytes[i] >= 0x80)} << i;
  }
  return bits;
}

Mascaras MirarTodos(const unsigned char* bytes) {
  Mascaras mascaras;
  for (int i = 0; i < 64; ++i) {
    mascaras.lf |= std::uint64_t{bytes[i] == '\n'} << i;
    mascaras.cr |= std::uint64_t{bytes[i] == '\r'} << i;
    mascaras.tab |= std::uint64_t{bytes[i] == '\t'} << i;
    mascaras.alto = mascaras.alto || bytes[i] >= 0x80;
  }
  return mascaras;
}

#endif

// Up to 240 line ends: a sum that fits a byte lets the compiler work on many bytes at once.
unsigned char ContarPocos(const char* bytes, std::size_t n) {
  unsigned char cuenta = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const auto lf = static_cast<unsigned char>(bytes[i] == '\n');
    const auto cr = static_cast<unsigned char>(bytes[i] == '\r');
    const auto sin_lf = static_cast<unsigned char>(bytes[i + 1] != '\n');
    cuenta = static_cast<unsigned char>(cuenta + (lf | (cr & sin_lf)));
  }
  return cuenta;
}

}  // namespace

Mascaras Mirar(const LectorTexto& texto, Posicion pos, std::size_t n) {
  const unsigned char* bytes = texto.Desde(pos);
  if (n == 64) return MirarTodos(bytes);
  Mascaras mascaras;
  if (texto.FinDePieza(pos) - pos >= 64) {
    mascaras = MirarTodos(bytes);
  } else {
    std::array<unsigned char, 64> copia{};
    std::memcpy(copia.data(), bytes, n);
    mascaras = MirarTodos(copia.data());
  }
  const std::uint64_t validos = (std::uint64_t{1} << n) - 1;
  return {mascaras.lf & validos, mascaras.cr & validos, mascaras.tab & validos, mascaras.alto};
}

template <bool ConAltos>
std::size_t HastaEspecial(const unsigned char* bytes, std::size_t n) {
  const auto especial = [](unsigned char byte) {
    return EsEspecial(byte) || (ConAltos && byte >= 0x80);
  };
  if (n < 16) return static_cast<std::size_t>(std::find_if(bytes, bytes + n, especial) - bytes);
  for (std::size_t i = 0;; i = std::min(i + 16, n - 16)) {
    const std::uint64_t especiales = Especiales<ConAltos>(bytes + i);
    if (especiales != 0) return i + static_cast<std::size_t>(std::countr_zero(especiales));
    if (i == n - 16) return n;
  }
}

template std::size_t HastaEspecial<false>(const unsigned char* bytes, std::size_t n);
template std::size_t HastaEspecial<true>(const unsigned char* bytes, std::size_t n);

std::int64_t ContarFines(std::string_view bytes, int siguiente) {
  if (bytes.empty()) return 0;
  constexpr std::size_t Paso = 240;
  const std::size_t n = bytes.size() - 1;  // the last byte needs `siguiente`
  std::int64_t cuenta = 0;
  std::size_t i = 0;
  for (; i + Paso <= n; i += Paso) cuenta += ContarPocos(bytes.data() + i, Paso);
  cuenta += ContarPocos(bytes.data() + i, n - i);
  const bool ultimo = bytes[n] == '\n' || (bytes[n] == '\r' && siguiente != '\n');
  return cuenta + (ultimo ? 1 : 0);
}

Posicion PrimerFin(const LectorTexto& texto, Posicion desde, Posicion hasta) {
  while (desde < hasta) {
    const std::string_view tramo = texto.Tramo(desde, hasta);
    const std::size_t lf = std::min(tramo.find('\n'), tramo.size());
    const std::size_t fin = std::min(tramo.substr(0, lf).find('\r'), lf);
    desde += static_cast<Posicion>(fin);
    if (fin < tramo.size()) break;
  }
  return desde;
}

std::size_t UltimoFin(std::string_view bytes) {
  if (bytes.empty()) return std::string_view::npos;
  const auto* lf = static_cast<const char*>(memrchr(bytes.data(), '\n', bytes.size()));
  const std::size_t tras_lf = lf == nullptr ? 0 : static_cast<std::size_t>(lf + 1 - bytes.data());
  const std::string_view resto = bytes.substr(tras_lf);
  const auto* cr =
      resto.empty() ? nullptr : static_cast<const char*>(memrchr(resto.data(), '\r', resto.size()));
  if (cr != nullptr) return static_cast<std::size_t>(cr - bytes.data());
  return tras_lf == 0 ? std::string_view::npos : tras_lf - 1;
}
