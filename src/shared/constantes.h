// The numbers and signs that the whole program agrees on.
#pragma once

#include <QChar>

inline constexpr int TwipsPorPixel = 15;  // fixed, whatever the screen
inline constexpr QChar SeparadorRuta = u'/';
inline constexpr int LongitudBuffer = 100;    // characters of the profile buffer
inline constexpr int MaximoArchivos = 32767;  // entries of the open-file list
