#include "shared/numeros.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include <QByteArray>

namespace {

bool EsCifra(char caracter) {
  return caracter >= '0' && caracter <= '9';
}

// from_chars takes no "+".
QByteArrayView SinMas(QByteArrayView texto) {
  return texto.size() > 1 && texto[0] == '+' && EsCifra(texto[1]) ? texto.sliced(1) : texto;
}

// The whole text as a number; a number that does not fit sets `desborda`.
template <typename Numero>
std::optional<Numero> Entero(QByteArrayView texto, bool& desborda) {
  const QByteArrayView cifras = SinMas(texto.trimmed());
  const char* fin = cifras.data() + cifras.size();
  Numero numero = 0;
  const auto [hasta, error] = std::from_chars(cifras.data(), fin, numero);
  desborda = error == std::errc::result_out_of_range && hasta == fin;
  if (error != std::errc() || hasta != fin) return std::nullopt;
  return numero;
}

template <typename Numero>
bool Cabe(double numero) {
  return numero >= std::numeric_limits<Numero>::min() &&
         numero <= std::numeric_limits<Numero>::max();
}

}  // namespace

namespace Numeros {

std::optional<std::int16_t> Entero16(QByteArrayView texto) {
  using Limites = std::numeric_limits<std::int16_t>;
  bool desborda = false;
  const auto numero = Entero<std::int16_t>(texto, desborda);
  if (!desborda) return numero;
  return texto.trimmed().startsWith('-') ? Limites::min() : Limites::max();
}

std::optional<std::int32_t> Color(QByteArrayView texto) {
  bool desborda = false;
  return Entero<std::int32_t>(texto, desborda);
}

std::optional<double> Puntos(QByteArrayView texto) {
  QByteArray cifras = texto.trimmed().toByteArray();
  const bool solo_cifras = std::all_of(cifras.begin(), cifras.end(), [](char caracter) {
    return EsCifra(caracter) || caracter == ',' || caracter == '.' || caracter == '+';
  });
  bool bien = false;
  const double puntos = cifras.replace(',', '.').toDouble(&bien);
  if (!solo_cifras || !bien || !(puntos > 0) || !std::isfinite(puntos)) return std::nullopt;
  return puntos;
}

std::int16_t Total(QByteArrayView texto) {
  const QByteArray recortado = SinMas(texto.trimmed()).toByteArray().replace(',', '.');
  double numero = 0;
  const char* fin = recortado.constData() + recortado.size();
  const auto leido = std::from_chars(recortado.constData(), fin, numero, std::chars_format::fixed);
  if (leido.ec != std::errc()) return 0;
  const double entero = std::floor(numero);
  return Cabe<std::int16_t>(entero) ? static_cast<std::int16_t>(entero) : std::int16_t{0};
}

}  // namespace Numeros
