// Breaks text into rows of a width: the rule, and the fast way to apply it.
//
// A row ends at its line's end. A row that is too wide ends after its last blank or tab, or beside
// its last ideograph, whichever comes last; without one, before the first cluster that does not
// fit, but it holds at least one. Blanks at the edge hang over it: they never start a row. A tab
// does not hang: the one whose stop lies beyond the edge starts the next row. A row holds at most
// `maximo_fila` bytes, or one cluster.
#pragma once

#include <cstdint>

#include "text_box/lector_texto.h"
#include "text_box/pluma.h"
#include "text_box/renglones.h"

class Partidor {
 public:
  Partidor() = default;
  Partidor(const Avances& avances, Punto ancho, Posicion maximo_fila);

  Punto Ancho() const { return ancho_; }
  const Pluma& LaPluma() const { return pluma_; }

  // The start of the row after the one that starts at `inicio`; -1 when that is the last.
  Posicion Siguiente(const LectorTexto& texto, Posicion inicio) const;

  struct Marcha {
    Posicion inicio = 0;
    std::int64_t filas = 0;
  };
  // From the row that starts at `inicio` down to the last row that starts at or before `hasta`,
  // but at most `maximo` rows; how many it were.
  Marcha Bajar(const LectorTexto& texto, Posicion inicio, Posicion hasta,
               std::int64_t maximo = INT64_MAX) const;

 private:
  struct Fila {
    Posicion inicio = 0;
    Posicion pos = 0;  // what comes next
    Punto x = 0;
    Posicion tras_tab = 0;  // after its last tab
    Posicion corte = 0;     // its last place beside an ideograph
  };
  Posicion Romper(const LectorTexto& texto, Posicion inicio, Posicion libres) const;
  inline bool Sobra(unsigned char byte, const Fila& fila) const;
  inline bool Llenar(const LectorTexto& texto, Fila& fila, std::size_t n) const;
  bool LlenarSignos(const LectorTexto& texto, Fila& fila, Posicion tope) const;
  inline Posicion Cortar(const LectorTexto& texto, const Fila& fila) const;
  const Signos::Signo* CorrerSignos(const LectorTexto& texto, Fila& fila, Posicion tope,
                                    const Signos::Signo* antes) const;
  bool TrasSignos(const LectorTexto& texto, Fila& fila, const Signos::Signo* antes) const;
  bool Pegado(const LectorTexto& texto, const Fila& fila) const;

  Pluma pluma_;
  Punto ancho_ = 0;
  Posicion maximo_fila_ = 0;
  Posicion seguro_ = 0;  // so many bytes fit, whichever they are, tabs aside
};
