// The numbers that the settings hold as text, in the code page's bytes. Blanks around are allowed.
#pragma once

#include <cstdint>
#include <optional>

#include <QByteArrayView>

namespace Numeros {

// A whole decimal number, clamped to 16 bits.
std::optional<std::int16_t> Entero16(QByteArrayView texto);
// A colour: a whole decimal number of 32 bits with sign; none outside that range.
std::optional<std::int32_t> Color(QByteArrayView texto);
// A font size in points, written with a comma or a point; none unless it is above 0.
std::optional<double> Puntos(QByteArrayView texto);
// The integer part, rounded down, of the number at the start of the text: "2,5 carpetas" is 2.
// 0 for a text that begins with no number, and for one beyond 16 bits.
std::int16_t Total(QByteArrayView texto);

}  // namespace Numeros
