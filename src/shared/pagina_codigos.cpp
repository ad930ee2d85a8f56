#include "shared/pagina_codigos.h"

#include <algorithm>
#include <optional>

#include <QChar>

namespace {

constexpr unsigned PrimeroPropio = 0x80;  // bytes 80 to 9F differ from ISO 8859-1
constexpr std::array<char16_t, 32> Propios{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 256> HacerTabla() {
  std::array<char16_t, 256> tabla{};
  for (unsigned i = 0; i < tabla.size(); ++i) tabla[i] = static_cast<char16_t>(i);
  for (unsigned i = 0; i < Propios.size(); ++i) tabla[PrimeroPropio + i] = Propios[i];
  return tabla;
}

constexpr std::array<char16_t, 256> Caracteres = HacerTabla();

constexpr bool EsDePropios(char16_t caracter) {
  return caracter - PrimeroPropio < Propios.size();
}

constexpr bool EsSuPropioByte(char16_t caracter) {
  return caracter <= 0xFF && !EsDePropios(caracter);
}

std::optional<unsigned char> Byte(char16_t caracter) {
  if (EsSuPropioByte(caracter)) return static_cast<unsigned char>(caracter);
  const auto* propio = std::find(Propios.begin(), Propios.end(), caracter);
  if (propio == Propios.end()) return std::nullopt;
  return static_cast<unsigned char>(PrimeroPropio + (propio - Propios.begin()));
}

std::array<unsigned char, 256> HacerMayusculas() {
  std::array<unsigned char, 256> mayusculas{};
  for (unsigned i = 0; i < mayusculas.size(); ++i) {
    const char16_t mayuscula = QChar(Caracteres[i]).toUpper().unicode();
    mayusculas[i] = Byte(mayuscula).value_or(static_cast<unsigned char>(i));
  }
  return mayusculas;
}

}  // namespace

namespace PaginaCodigos {

const std::array<char16_t, 256>& Tabla() {
  return Caracteres;
}

char16_t ATexto(unsigned char byte) {
  return Caracteres[byte];
}

QString ATexto(QByteArrayView bytes) {
  QString texto(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), texto.begin(),
                 [](char byte) { return QChar(Caracteres[static_cast<unsigned char>(byte)]); });
  return texto;
}

QByteArray ABytes(QStringView texto) {
  QByteArray bytes(texto.size(), Qt::Uninitialized);
  char* destino = bytes.data();
  for (qsizetype i = 0; i < texto.size(); ++i) {
    if (EsSuPropioByte(texto[i].unicode())) {
      *destino++ = static_cast<char>(texto[i].unicode());
      continue;
    }
    const bool par =
        texto[i].isHighSurrogate() && i + 1 < texto.size() && texto[i + 1].isLowSurrogate();
    *destino++ = static_cast<char>(Byte(texto[i].unicode()).value_or('?'));
    if (par) ++i;
  }
  bytes.truncate(destino - bytes.constData());
  return bytes;
}

bool Representable(QStringView texto) {
  return std::all_of(texto.begin(), texto.end(),
                     [](QChar caracter) { return Byte(caracter.unicode()).has_value(); });
}

unsigned char AMayuscula(unsigned char byte) {
  static const std::array<unsigned char, 256> mayusculas = HacerMayusculas();
  return mayusculas[byte];
}

}  // namespace PaginaCodigos
