// Twips (1/1440 inch) and pixels: 15 twips are one pixel, whatever the screen.
#pragma once

#include <cmath>

#include <QRect>

#include "shared/constantes.h"

// Nearest whole pixel, halves to the even number.
inline int APixeles(int twips) {
  return static_cast<int>(std::nearbyint(static_cast<double>(twips) / TwipsPorPixel));
}

inline int ATwips(int pixeles) {
  return pixeles * TwipsPorPixel;
}

// A control's place inside its parent, in twips.
struct RectTwips {
  int izquierda = 0;
  int arriba = 0;
  int ancho = 0;
  int alto = 0;

  bool operator==(const RectTwips&) const = default;
  QRect EnPixeles() const {
    return {APixeles(izquierda), APixeles(arriba), APixeles(ancho), APixeles(alto)};
  }
};
