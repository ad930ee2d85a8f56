// The appearance of the text: as the settings hold it, and the colours that its numbers mean.
#pragma once

#include <cstdint>

#include <QColor>
#include <QPalette>

#include "platform/fuentes.h"

class Perfil;

// A colour as the program holds and stores it: &H00BBGGRR, red in the lowest byte; a negative
// number is one of the system's colours.
using NumeroColor = std::int32_t;

inline constexpr NumeroColor NumeroNegro = 0x000000;
inline constexpr NumeroColor NumeroBlanco = 0xFFFFFF;

NumeroColor NumeroDe(const QColor& color);
// A system colour is looked up in `paleta`; one that does not exist is `desconocido`'s.
QColor ColorDe(NumeroColor numero, const QPalette& paleta, QPalette::ColorRole desconocido);

struct Aspecto {
  FuenteTexto fuente{QStringLiteral("Courier"), 9.75};
  NumeroColor texto = NumeroNegro;
  NumeroColor fondo = NumeroBlanco;

  QColor ColorTexto(const QPalette& paleta) const;
  QColor ColorFondo(const QPalette& paleta) const;
  bool operator==(const Aspecto&) const = default;
};

// The settings' keys [Fuente] and [Fondo]; what is not stored is as in a new Aspecto, and a value
// that is no number is its key's default: 10 points, black, white.
Aspecto LeerAspecto(Perfil& perfil, const QString& ruta);
// All eight keys. The size as in Spain: "10", "9,75".
void EscribirAspecto(Perfil& perfil, const QString& ruta, const Aspecto& aspecto);
