#include "text_box/aspecto_caja.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal SeDistingue = 2;  // enough for an area
constexpr qreal SeLee = 3;        // enough for letters and for a line of one pixel

qreal Lineal(qreal canal) {
  return canal <= 0.04045 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4);
}

qreal Luminancia(const QColor& color) {
  return 0.2126 * Lineal(color.redF()) + 0.7152 * Lineal(color.greenF()) +
         0.0722 * Lineal(color.blueF());
}

QColor BlancoONegro(const QColor& sobre) {
  const QColor blanco(Qt::white);
  const QColor negro(Qt::black);
  return Contraste(blanco, sobre) > Contraste(negro, sobre) ? blanco : negro;
}

}  // namespace

qreal Contraste(const QColor& uno, const QColor& otro) {
  const auto [oscuro, claro] = std::minmax({Luminancia(uno), Luminancia(otro)});
  return (claro + 0.05) / (oscuro + 0.05);
}

AspectoCaja AspectoCaja::De(const QColor& texto, const QColor& fondo, const QPalette& paleta) {
  AspectoCaja aspecto{.texto = texto,
                      .fondo = fondo,
                      .cursor = texto,
                      .texto_elegido = paleta.color(QPalette::Active, QPalette::HighlightedText),
                      .fondo_elegido = paleta.color(QPalette::Active, QPalette::Highlight)};
  if (Contraste(texto, fondo) < SeLee) aspecto.cursor = BlancoONegro(fondo);
  if (Contraste(aspecto.fondo_elegido, fondo) >= SeDistingue &&
      Contraste(aspecto.fondo_elegido, aspecto.texto_elegido) >= SeLee) {
    return aspecto;
  }
  // The palette's selection would drown in this background: turn the pair around.
  aspecto.fondo_elegido = aspecto.cursor;
  aspecto.texto_elegido =
      Contraste(fondo, aspecto.cursor) >= SeLee ? fondo : BlancoONegro(aspecto.cursor);
  return aspecto;
}
