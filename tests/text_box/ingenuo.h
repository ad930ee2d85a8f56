// What the text box's core must give, worked out the slow and obvious way.
#pragma once

#include <string>
#include <vector>

#include "text_box/renglones.h"

namespace ingenuo {

using Inicios = std::vector<Posicion>;  // where lines or rows start

Inicios Lineas(const std::string& texto);
// Rows of a width, straight from the rule.
Inicios Filas(const std::string& texto, const Avances& avances, Punto ancho, Posicion maximo);

// The end of the text of row number `i`.
Posicion Fin(const std::string& texto, const Inicios& inicios, std::size_t i);
std::size_t Indice(const Inicios& inicios, Posicion pos);
// x of each position from `inicio` to `fin`, both included.
std::vector<Punto> Equis(const std::string& texto, const Avances& avances, Posicion inicio,
                         Posicion fin);

}  // namespace ingenuo
