// The texts that are measured: four shapes, each hard in its own way.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

enum Forma : std::uint8_t { Lineas80, UnaLinea, SoloFines, SinBlancos };

inline std::string Texto(Forma forma, std::int64_t n) {
  std::string texto(static_cast<std::size_t>(n), 'x');
  if (forma == SoloFines) std::fill(texto.begin(), texto.end(), '\n');
  if (forma == SinBlancos || forma == SoloFines) return texto;
  std::size_t palabra = 0;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    texto[i] = static_cast<char>('a' + (i * 7 + palabra) % 26);
    if (i == palabra + 3 + palabra % 8) texto[palabra = i] = ' ';
    if (forma == Lineas80 && i % 80 == 79) texto[palabra = i] = '\n';
  }
  return texto;
}
