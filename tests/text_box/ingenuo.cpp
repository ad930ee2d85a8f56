#include "text_box/ingenuo.h"

#include <algorithm>

namespace ingenuo {
namespace {

// The length of the line end at `i`; 0 when there is none.
std::size_t FinDeLinea(const std::string& texto, std::size_t i) {
  if (texto.compare(i, 2, "\r\n") == 0) return 2;
  return i < texto.size() && (texto[i] == '\n' || texto[i] == '\r') ? 1 : 0;
}

Punto Mover(const Avances& avances, char byte, Punto x) {
  if (byte == '\t') return (x / avances.tabulador + 1) * avances.tabulador;
  return x + avances.ancho[static_cast<unsigned char>(byte)];
}

// Where the row that starts at `inicio` is over; past its line end, if it has one.
std::size_t Romper(const std::string& texto, const Avances& avances, Punto ancho,
                   std::size_t maximo, std::size_t inicio) {
  Punto x = 0;
  std::size_t corte = inicio;  // behind the last blank or tab
  for (std::size_t i = inicio; i < texto.size(); ++i) {
    if (const std::size_t fin = FinDeLinea(texto, i); fin > 0) return i + fin;
    if (i - inicio == maximo) return i;
    x = Mover(avances, texto[i], x);
    const bool fuera = x > ancho && i > inicio;
    if (fuera && texto[i] == '\t') return i;
    if (fuera && texto[i] != ' ') return corte > inicio ? corte : i;
    if (texto[i] == ' ' || texto[i] == '\t') corte = i + 1;
  }
  return texto.size();
}

}  // namespace

Inicios Lineas(const std::string& texto) {
  Inicios inicios{0};
  for (std::size_t i = 0; i < texto.size();) {
    const std::size_t fin = FinDeLinea(texto, i);
    i += std::max<std::size_t>(fin, 1);
    if (fin > 0) inicios.push_back(static_cast<Posicion>(i));
  }
  return inicios;
}

Inicios Filas(const std::string& texto, const Avances& avances, Punto ancho, Posicion maximo) {
  Inicios inicios{0};
  if (texto.empty()) return inicios;
  std::size_t i = 0;
  while (true) {
    i = Romper(texto, avances, ancho, static_cast<std::size_t>(maximo), i);
    if (i == texto.size()) break;
    inicios.push_back(static_cast<Posicion>(i));
  }
  if (texto.back() == '\n' || texto.back() == '\r') inicios.push_back(static_cast<Posicion>(i));
  return inicios;
}

Posicion Fin(const std::string& texto, const Inicios& inicios, std::size_t i) {
  const Posicion fin =
      i + 1 < inicios.size() ? inicios[i + 1] : static_cast<Posicion>(texto.size());
  for (Posicion pos = inicios[i]; pos < fin; ++pos) {
    if (FinDeLinea(texto, static_cast<std::size_t>(pos)) > 0) return pos;
  }
  return fin;
}

std::size_t Indice(const Inicios& inicios, Posicion pos) {
  return static_cast<std::size_t>(std::upper_bound(inicios.begin(), inicios.end(), pos) -
                                  inicios.begin() - 1);
}

std::vector<Punto> Equis(const std::string& texto, const Avances& avances, Posicion inicio,
                         Posicion fin) {
  std::vector<Punto> equis{0};
  for (Posicion pos = inicio; pos < fin; ++pos) {
    equis.push_back(Mover(avances, texto[static_cast<std::size_t>(pos)], equis.back()));
  }
  return equis;
}

}  // namespace ingenuo
