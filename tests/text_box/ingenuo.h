// What the text box's core must give, worked out the slow and obvious way.
#pragma once

#include <string>
#include <vector>

#include "text_box/renglones.h"
#include "text_box/signos.h"

namespace ingenuo {

using Inicios = std::vector<Posicion>;  // where lines or rows start

// The character at `i`: a code point by arithmetic, or a byte that belongs to none.
Utf8::Caracter Leer(const std::string& texto, std::size_t i);

Inicios Lineas(const std::string& texto);
// Rows of a width, straight from the rule.
Inicios Filas(const std::string& texto, const Avances& avances, Punto ancho, Posicion maximo);

// The end of the text of row number `i`.
Posicion Fin(const std::string& texto, const Inicios& inicios, std::size_t i);
std::size_t Indice(const Inicios& inicios, Posicion pos);
// x of each position from `inicio` to `fin`, both included.
std::vector<Punto> Equis(const std::string& texto, const Avances& avances, Posicion inicio,
                         Posicion fin);
// The places for the caret from `inicio` to `fin`, both included.
Inicios Lugares(const std::string& texto, const Avances& avances, Posicion inicio, Posicion fin);

// Characters of a made-up font, of every class, with widths of their own.
class Letras : public Signos {
 public:
  Letras(const Avances& avances, std::int32_t semilla) : avances_(avances), semilla_(semilla) {}
  std::span<const Racimo> Medir(std::string_view tramo) override;

 protected:
  void Llenar(char32_t primero, Pagina& pagina) override;

 private:
  Avances avances_;
  std::int32_t semilla_;
  std::vector<Racimo> racimos_;
};

}  // namespace ingenuo
