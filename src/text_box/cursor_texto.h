// The caret of a view, what it selects, and the column that moving up and down keeps to.
//
// It stands within the text and never between CR and LF or inside of a
// code point, wherever it is sent. Nothing is painted,
// scrolled or told from here: that is for who moves it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include "text_box/documento.h"
#include "text_box/encuadre.h"
#include "text_box/movimiento.h"
#include "text_box/teclas.h"

enum class Seleccion { Quitar, Extender };

class CursorTexto {
 public:
  // Both outlive it.
  CursorTexto(const Documento& documento, const Encuadre& encuadre)
      : documento_(documento), encuadre_(encuadre) {}

  const Lugar& Donde() const { return cursor_; }
  Posicion Pos() const { return cursor_.pos; }
  Posicion Ancla() const { return ancla_; }  // the other end of the selection, or Pos()
  Rango Elegido() const { return {std::min(Pos(), ancla_), std::max(Pos(), ancla_)}; }
  bool HaySeleccion() const { return Pos() != ancla_; }

  void Llevar(const Lugar& lugar, Seleccion seleccion);
  void Elegir(Posicion ancla, const Lugar& lugar);  // from the one to the other
  // Where a key leads; false, and nothing moved, for one that does not move by place or row.
  bool Mover(const Tecla& tecla);
  void MoverFilas(std::int64_t filas, Seleccion seleccion);  // down, or up when negative
  void OlvidarColumna() { columna_.reset(); }                // what lies below is another now

  // The text has changed: both ends stay with what they stood at.
  void Reemplazado(const Cambio& cambio);
  void Recargado();

 private:
  Posicion Dentro(Posicion pos) const;
  std::optional<Lugar> Destino(const Tecla& tecla) const;

  const Documento& documento_;
  const Encuadre& encuadre_;
  Lugar cursor_;
  Posicion ancla_ = 0;
  std::optional<Punto> columna_;
};
