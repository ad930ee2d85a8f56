#include "text_box/pluma.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "text_box/rastreo.h"

namespace {

constexpr std::int32_t DemasiadoAncho = 1 << 27;  // two million pixels; eight of them fit 32 bits

// Sums of two bytes from the table; eight bytes are one read of the text.
std::int32_t SumarDos(const Pluma::Pares& pares, const unsigned char* bytes) {
  std::uint16_t dos = 0;
  std::memcpy(&dos, bytes, 2);
  return pares[dos];
}

Punto SumarCuatro(const Pluma::Pares& pares, const unsigned char* bytes) {
  return Punto{SumarDos(pares, bytes)} + SumarDos(pares, bytes + 2);
}

Punto SumarOcho(const Pluma::Pares& pares, const unsigned char* bytes) {
  std::uint64_t ocho = 0;
  std::memcpy(&ocho, bytes, 8);
  const Punto delante = Punto{pares[ocho & 0xffff]} + pares[(ocho >> 16) & 0xffff];
  const Punto detras = Punto{pares[(ocho >> 32) & 0xffff]} + pares[ocho >> 48];
  return delante + detras;
}

Punto SumarDieciseis(const Pluma::Pares& pares, const unsigned char* bytes) {
  return SumarOcho(pares, bytes) + SumarOcho(pares, bytes + 8);
}

// How many of eight bytes move the pen to no more than `limite`; `x` is moved along with them.
// Where a row ends is as good as chance: all eight are looked at, without a branch.
std::size_t CaberOcho(const Pluma::Pares& pares, const Pluma::Solos& solos,
                      const unsigned char* bytes, Punto limite, Punto& x) {
  const auto resto = static_cast<std::int32_t>(std::min<Punto>(limite - x, DemasiadoAncho - 1));
  std::int32_t suma = 0;
  std::int32_t dentro = 0;
  std::size_t caben = 0;
  const auto mirar = [&](std::int32_t hasta) {
    caben += hasta <= resto ? 1 : 0;
    dentro = hasta <= resto ? hasta : dentro;
  };
  for (std::size_t i = 0; i < 8; i += 2) {
    mirar(suma + solos[bytes[i]]);
    mirar(suma += SumarDos(pares, bytes + i));
  }
  x += dentro;
  return caben;
}

// A pair of bytes as it is read from the text, in this machine's order: the sum is the same.
std::shared_ptr<const Pluma::Pares> SumarPares(const Pluma::Solos& solos) {
  auto pares = std::make_shared<Pluma::Pares>();
  for (std::size_t i = 0; i < pares->size(); ++i) (*pares)[i] = solos[i & 0xff] + solos[i >> 8];
  return pares;
}

}  // namespace

Pluma::Pluma() {
  static const auto ceros = std::make_shared<const Pares>();
  pares_ = ceros;
}

Pluma::Pluma(const Avances& avances) : avances_(avances), solos_(avances.ancho) {
  uniforme_ = avances.ancho[0] > 0;
  for (std::size_t i = 0; i < solos_.size(); ++i) {
    if (EsEspecial(static_cast<unsigned char>(i))) {
      solos_[i] = DemasiadoAncho;
      continue;
    }
    maximo_ = std::max<Punto>(maximo_, solos_[i]);
    uniforme_ = uniforme_ && solos_[i] == solos_[0];
  }
  if (!uniforme_) pares_ = SumarPares(solos_);
}

Punto Pluma::Sumar(const unsigned char* bytes, std::size_t n) const {
  if (uniforme_) return static_cast<Punto>(n) * maximo_;
  Punto suma = 0;
  std::size_t i = 0;
  for (; i + 8 <= n; i += 8) suma += SumarOcho(*pares_, bytes + i);
  if ((n & 4) != 0) suma += SumarCuatro(*pares_, bytes + i);
  if ((n & 2) != 0) suma += SumarDos(*pares_, bytes + (n & ~std::size_t{3}));
  if ((n & 1) != 0) suma += solos_[bytes[n - 1]];
  return suma;
}

std::size_t Pluma::Caber(const unsigned char* bytes, std::size_t n, Punto limite, Punto& x) const {
  if (x > limite) return 0;
  if (uniforme_) {
    const Punto resto = limite - x;
    if (resto < maximo_) return 0;
    n = HastaEspecial(bytes, std::min(n, static_cast<std::size_t>(resto / maximo_)));
    x += static_cast<Punto>(n) * maximo_;
    return n;
  }
  std::size_t i = 0;
  for (; i + 16 <= n && limite - x >= 8 * maximo_; i += 16) {
    const Punto suma = SumarDieciseis(*pares_, bytes + i);
    if (x + suma > limite) break;
    x += suma;
  }
  while (i + 8 <= n) {
    const std::size_t caben = CaberOcho(*pares_, solos_, bytes + i, limite, x);
    i += caben;
    if (caben < 8) return i;
  }
  for (; i < n && x + solos_[bytes[i]] <= limite; ++i) x += solos_[bytes[i]];
  return i;
}

Punto Pluma::Medir(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x) const {
  while (desde < hasta) {
    const std::string_view tramo = texto.Tramo(desde, hasta);
    const std::size_t tab = std::min(tramo.find('\t'), tramo.size());
    x += Sumar(texto.Desde(desde), tab);
    desde += static_cast<Posicion>(tab);
    if (tab == tramo.size()) continue;
    x = Tabular(x);
    ++desde;
  }
  return x;
}

Renglones::Corte Pluma::Hasta(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x,
                              Punto limite) const {
  while (desde < hasta) {
    const std::string_view tramo = texto.Tramo(desde, std::min(hasta, desde + 256));
    const std::size_t tab = std::min(tramo.find('\t'), tramo.size());
    const std::size_t caben = Caber(texto.Desde(desde), tab, limite, x);
    desde += static_cast<Posicion>(caben);
    if (caben < tab) break;
    if (tab == tramo.size()) continue;
    if (Tabular(x) > limite) break;
    x = Tabular(x);
    ++desde;
  }
  return {desde, x};
}

Posicion Pluma::MasCerca(const LectorTexto& texto, const Renglones::Corte& corte, Posicion ultima,
                         Punto x) const {
  if (corte.pos >= ultima) return ultima;
  const Punto siguiente = Medir(texto, corte.pos, corte.pos + 1, corte.x);
  return x - corte.x < siguiente - x ? corte.pos : corte.pos + 1;
}
