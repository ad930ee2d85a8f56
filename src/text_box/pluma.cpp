#include "text_box/pluma.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <string_view>

#include "text_box/rastreo.h"

namespace {

constexpr Punto SinLimite = std::numeric_limits<Punto>::max();

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
  constexpr Punto mayor = (1 << 27) - 1;  // a special byte is wider
  const auto resto = static_cast<std::int32_t>(std::min(limite - x, mayor));
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

Pluma::Pluma(const Avances& avances)
    : avances_(avances), signos_(avances.signos.get()), solos_(avances.ancho) {
  uniforme_ = avances.ancho[0] > 0;
  for (std::size_t i = 0; i < solos_.size(); ++i) {
    const auto byte = static_cast<unsigned char>(i);
    if (::EsEspecial(byte) || EsParte(byte)) {
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
    n = std::min(n, static_cast<std::size_t>(resto / maximo_));
    n = signos_ == nullptr ? HastaEspecial<false>(bytes, n) : HastaEspecial<true>(bytes, n);
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

// How many bytes of a stretch stand before the first tab or part of a character.
std::size_t Pluma::HastaSuelto(std::string_view tramo) const {
  if (signos_ == nullptr) return std::min(tramo.find('\t'), tramo.size());
  return HastaEspecial<true>(reinterpret_cast<const unsigned char*>(tramo.data()), tramo.size());
}

bool Pluma::SigueAlByte(const LectorTexto& texto, Posicion pos) const {
  return Signos::Pegado(signos_->De(texto.En(pos - 1)), signos_->De(Utf8::Leer(texto, pos).codigo));
}

// To the start of the cluster to which the character clings that comes next, behind `desde`.
Renglones::Corte Pluma::Retroceder(const LectorTexto& texto, const Renglones::Corte& donde,
                                   Posicion desde) const {
  if (donde.pos == desde || texto.En(donde.pos - 1) >= 0x80 || !SigueAlByte(texto, donde.pos)) {
    return donde;
  }
  return {donde.pos - 1, donde.x - Ancho(texto.En(donde.pos - 1))};
}

// Over characters that stand alone, from `donde` on, as far as the fast road goes.
Renglones::Corte Pluma::Correr(const LectorTexto& texto, const Renglones::Corte& donde,
                               Posicion hasta, Punto limite) const {
  const Posicion n = std::min(hasta, texto.FinDePieza(donde.pos)) - donde.pos;
  const Signos::Carrera carrera =
      signos_->Correr(texto.Desde(donde.pos), static_cast<std::size_t>(n), donde.x, limite);
  return {donde.pos + static_cast<Posicion>(carrera.bytes), carrera.x};
}

Punto Pluma::Medir(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x,
                   Posicion tramo) const {
  const Posicion inicio = desde;
  for (desde = tramo; desde < hasta;) {
    const std::string_view bytes = texto.Tramo(desde, hasta);
    const std::size_t n = desde < inicio ? 0 : HastaSuelto(bytes);
    x += Sumar(texto.Desde(desde), n);
    desde += static_cast<Posicion>(n);
    const bool al_final = n == bytes.size() && (desde < hasta || signos_ == nullptr);
    if (al_final || desde == texto.Total()) continue;
    if (desde < inicio || EsParte(texto.En(desde))) {
      const Renglones::Corte base = Retroceder(texto, {desde, x}, std::min(inicio, desde));
      if (desde == hasta && base.pos == desde) break;
      x = base.x;
      const bool pegado = base.pos < desde;
      if (!pegado && desde >= inicio) {
        const Renglones::Corte hecho = Correr(texto, {desde, x}, hasta, SinLimite);
        x = hecho.x;
        desde = hecho.pos;
        if (desde == hasta || texto.EnOFin(desde) < 0x80) continue;
      }
      Paseo paseo(*signos_, texto, pegado ? base.pos : desde);
      do {
        if (paseo.Desde() >= hasta) return x;
        if (paseo.Desde() >= inicio) x += paseo.Ancho();
      } while (paseo.Seguir());
      desde = paseo.Hasta();
    } else if (desde < hasta) {
      x = Tabular(x);
      ++desde;
    }
  }
  return x;
}

Renglones::Corte Pluma::Hasta(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x,
                              Punto limite, Posicion tramo) const {
  const Posicion inicio = desde;
  for (desde = tramo; desde < hasta;) {
    const std::string_view bytes = texto.Tramo(desde, std::min(hasta, desde + 256));
    const std::size_t n = desde < inicio ? 0 : HastaSuelto(bytes);
    const std::size_t caben = Caber(texto.Desde(desde), n, limite, x);
    desde += static_cast<Posicion>(caben);
    if (caben < n) break;
    if (n == bytes.size()) continue;
    if (desde < inicio || EsParte(texto.En(desde))) {
      const Renglones::Corte base = Retroceder(texto, {desde, x}, std::min(inicio, desde));
      x = base.x;
      const bool pegado = base.pos < desde;
      if (!pegado && desde >= inicio) {
        const Renglones::Corte hecho = Correr(texto, {desde, x}, hasta, limite);
        x = hecho.x;
        desde = hecho.pos;
        if (desde == hasta || texto.EnOFin(desde) < 0x80) continue;
      }
      Paseo paseo(*signos_, texto, pegado ? base.pos : desde);
      do {
        if (paseo.Desde() < inicio) continue;
        if (paseo.Desde() >= hasta || x + paseo.Ancho() > limite) {
          return {paseo.Desde(), x, paseo.Hasta(), x + paseo.Ancho()};
        }
        x += paseo.Ancho();
      } while (paseo.Seguir());
      desde = paseo.Hasta();
      continue;
    }
    if (Tabular(x) > limite) break;
    x = Tabular(x);
    ++desde;
  }
  return {desde, x};
}

Posicion Pluma::MasCerca(const LectorTexto& texto, Renglones::Corte corte, Posicion ultima,
                         Punto x) const {
  if (corte.pos >= ultima) return ultima;
  if (corte.fin < 0) {
    corte.fin = corte.pos + 1;
    corte.x_fin = Medir(texto, corte.pos, corte.fin, corte.x);
    // Something may cling to it.
    if (signos_ != nullptr) corte.fin = Paseo(*signos_, texto, corte.pos).Hasta();
  }
  return x - corte.x < corte.x_fin - x ? corte.pos : corte.fin;
}

Posicion Pluma::Ultimo(const LectorTexto& texto, Posicion desde, Posicion hasta) const {
  if (signos_ == nullptr || texto.En(hasta - 1) < 0x80) return hasta - 1;
  Posicion ultimo = desde;
  while (desde < hasta) {
    Paseo paseo(*signos_, texto, desde);
    do {
      if (paseo.Desde() >= hasta) return ultimo;
      ultimo = paseo.Desde();
    } while (paseo.Seguir());
    desde = paseo.Hasta();
  }
  return ultimo;
}

Posicion Pluma::InicioDeTramo(const LectorTexto& texto, Posicion pos) const {
  return signos_ == nullptr ? pos : signos_->InicioDeTramo(texto, pos);
}
