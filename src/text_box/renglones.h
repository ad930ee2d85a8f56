// What a view asks of the rows it shows: the rows of a text that wraps at a width, or its lines.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "text_box/bytes.h"

class Signos;

// 26.6 fixed point, a sixty-fourth of a pixel: widths are added up, never rounded on the way.
using Punto = std::int64_t;
inline constexpr Punto Pixel = 64;  // in points

// How far each byte moves the pen; never back. Byte 9 (tab) goes to the next multiple of
// `tabulador` from the row's left edge; its own entry is not used. Bytes 10 and 13 as part of a
// line end have no width.
struct Avances {
  std::array<std::int32_t, 256> ancho{};
  std::int32_t tabulador = 0;  // > 0
  // In a text of several bytes a character: what those from 80 on do, whose entries are not used.
  std::shared_ptr<Signos> signos;
  bool operator==(const Avances&) const = default;
};

class Renglones {
 public:
  static constexpr Posicion Lejos = 8 << 20;  // bytes of one line: some milliseconds

  virtual ~Renglones() = default;

  // The text has changed by `cambio`, or is another altogether: to be called each time, before
  // anything else is asked.
  virtual void Reemplazado(const Cambio& cambio) = 0;
  virtual void Recargado() = 0;

  virtual std::int64_t Total() const = 0;  // rows; at least 1; an estimate until Completo()
  virtual bool Completo() const = 0;       // are all rows known?
  // Works for at most about `milisegundos`; true when everything is known.
  virtual bool Avanzar(int milisegundos) = 0;

  // May the row of `pos`, and x there, be asked for without a stop that is felt? Not far inside of
  // an enormous line of which not all is known. Once Completo(), always.
  virtual bool Cerca(Posicion pos) const = 0;

  // The start of the row that holds `pos`. A position where a row starts belongs to that row.
  // Right at once, also beyond what is known yet.
  virtual Posicion InicioDe(Posicion pos) const = 0;
  virtual Posicion Siguiente(Posicion inicio) const = 0;  // start of the next row, -1 at the end
  virtual Posicion Anterior(Posicion inicio) const = 0;   // start of the row before, -1 at the top
  // The end of the row's text: its line end is left out; a row broken by the width ends where
  // the next one starts.
  virtual Posicion FinDe(Posicion inicio) const = 0;

  // The number of the row that holds `pos`, from 0, and the start of row number `indice`. Where
  // not all rows before are known, numbers are estimates; a start is always one. A number is told
  // at once, Cerca(pos) or not.
  virtual std::int64_t Indice(Posicion pos) const = 0;
  virtual Posicion PosicionDe(std::int64_t indice) const = 0;

  // x of `pos` in the row that starts at `inicio`, and the position nearest to x in that row. In
  // a row broken by the width its end is no answer: it belongs to the next row.
  virtual Punto XDe(Posicion inicio, Posicion pos) const = 0;
  virtual Posicion PosicionEnX(Posicion inicio, Punto x) const = 0;
  // The last position whose x is not greater than x, with that x: where painting starts.
  struct Corte {
    Posicion pos = 0;
    Punto x = 0;
    // The end of the cluster there and x behind it, where it is one of several bytes; else -1.
    Posicion fin = -1;
    Punto x_fin = 0;
  };
  virtual Corte CorteEnX(Posicion inicio, Punto x) const = 0;

  virtual Punto AnchoMaximo() const = 0;  // the widest row; a lower bound until Completo()
};
