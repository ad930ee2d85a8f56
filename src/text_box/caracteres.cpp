#include "text_box/caracteres.h"

#include <algorithm>

#include "text_box/lector_texto.h"
#include "text_box/utf8.h"

namespace {

constexpr Posicion Alrededor = Utf8::Mayor - 1;  // so far a byte has to do with another

// Those that start in [desde, hasta).
std::int64_t ContarInicios(const LectorTexto& texto, Posicion desde, Posicion hasta) {
  std::int64_t cuenta = 0;
  const Posicion inicio = Utf8::Inicio(texto, desde);
  if (inicio < desde) desde = inicio + Utf8::Leer(texto, inicio).largo;
  for (; desde < hasta; ++cuenta) desde += Utf8::Leer(texto, desde).largo;
  return cuenta;
}

// The same where every byte is part of a sequence.
std::int64_t ContarPrimeros(const LectorTexto& texto, Posicion desde, Posicion hasta) {
  std::int64_t cuenta = 0;
  while (desde < hasta) {
    const std::string_view tramo = texto.Tramo(desde, hasta);
    cuenta += std::count_if(tramo.begin(), tramo.end(),
                            [](char byte) { return static_cast<signed char>(byte) >= -0x40; });
    desde += static_cast<Posicion>(tramo.size());
  }
  return cuenta;
}

}  // namespace

void Caracteres::Recargado(bool bien_formado) {
  bien_formado_ = bien_formado;
  cuenta_.reset();
}

void Caracteres::Contar(Posicion desde, Posicion hasta, std::vector<Sumas::Bloque>& bloques) const {
  const LectorTexto texto(*texto_);
  while (desde < hasta) {
    const Posicion fin = hasta - desde < 2 * bloque_ ? hasta : desde + bloque_;
    const std::int64_t cuenta =
        bien_formado_ ? ContarPrimeros(texto, desde, fin) : ContarInicios(texto, desde, fin);
    bloques.push_back(
        {static_cast<std::uint32_t>(fin - desde), static_cast<std::uint32_t>(cuenta)});
    desde = fin;
  }
}

const Sumas& Caracteres::Cuenta() const {
  if (!cuenta_) {
    std::vector<Sumas::Bloque> bloques;
    Contar(0, texto_->Tamano(), bloques);
    cuenta_.emplace();
    cuenta_->Sustituir(0, 0, bloques);
  }
  return *cuenta_;
}

void Caracteres::Reemplazado(const Cambio& cambio) {
  bien_formado_ = false;
  if (!cuenta_) return;
  const std::size_t desde =
      cuenta_->PorPosicion(std::max<Posicion>(cambio.pos - Alrededor, 0)).bloque;
  const std::size_t ultimo =
      cuenta_->PorPosicion(cambio.pos + cambio.quitados + Alrededor).bloque + 1;
  const std::size_t hasta = std::min(ultimo, cuenta_->Bloques());
  const Posicion inicio = cuenta_->Donde(desde).bytes;
  const Posicion fin = cuenta_->Donde(hasta).bytes + cambio.puestos - cambio.quitados;
  std::vector<Sumas::Bloque> bloques;
  Contar(inicio, fin, bloques);
  cuenta_->Sustituir(desde, hasta, bloques);
}

std::int64_t Caracteres::Total() const {
  return Cuenta().Cuenta();
}

std::int64_t Caracteres::Antes(Posicion pos) const {
  const Sumas::BloqueSituado hallado = Cuenta().PorPosicion(pos);
  return hallado.cuenta + ContarInicios(LectorTexto(*texto_), hallado.bytes, pos);
}

Posicion Caracteres::Inicio(std::int64_t n) const {
  const LectorTexto texto(*texto_);
  const Sumas::BloqueSituado hallado = Cuenta().PorCuenta(n);
  if (hallado.bloque == Cuenta().Bloques()) return texto.Total();
  Posicion pos = Utf8::Inicio(texto, hallado.bytes);
  if (pos < hallado.bytes) pos += Utf8::Leer(texto, pos).largo;
  for (std::int64_t i = hallado.cuenta; i < n; ++i) pos += Utf8::Leer(texto, pos).largo;
  return pos;
}
