// Which part of a document a view shows: its rows, the row at the top, the shift to the right.
#pragma once

#include <memory>
#include <optional>

#include <QFont>
#include <QPoint>
#include <QRect>
#include <QSize>

#include "text_box/documento.h"
#include "text_box/renglones.h"
#include "text_box/tabla_glifos.h"

// A place for the caret. Where a row is broken by the width its end and the start of the next row
// are one position: `al_final` tells that the end of the upper row is meant.
struct Lugar {
  Posicion pos = 0;
  bool al_final = false;
};

// Rows and glyphs are made when first asked for, never before: a view that is not shown costs
// nothing.
class Encuadre {
 public:
  static constexpr int Margen = 4;                // pixels, as in the toolkit's own documents
  static constexpr Posicion MayorMaqueta = 8192;  // bytes; of longer rows only what is in sight

  Encuadre(const Documento& documento, bool ajustado);

  void PonerFuente(const QFont& fuente);
  const TablaGlifos& Tabla() const;
  void Medir(const QSize& tamano);  // pixels of the viewport
  const QSize& Tamano() const { return tamano_; }

  void Reemplazado(const Cambio& cambio, bool seguir);  // `seguir`: keep the rows, bring them up
  void Recargado();
  void Recodificado();

  Renglones& Reparto() const;
  bool Completo() const { return Reparto().Completo(); }
  bool Avanzar(int milisegundos);  // true when every row is known

  Posicion Arriba() const;
  void PonerArriba(Posicion pos);
  void Desplazar(std::int64_t filas);  // down, or up when negative
  int FilasVisibles() const;           // whole ones, at least 1
  std::int64_t FilaMaxima() const;     // number of the top row when scrolled to the end
  std::int64_t X() const { return x_; }
  void PonerX(std::int64_t x);
  std::int64_t MaximoX() const;  // pixels

  // Whether what follows is told without a stop that is felt, as Renglones::Cerca.
  bool Cerca(const Lugar& lugar) const { return Reparto().Cerca(lugar.pos); }
  // Scrolls as little as needed to have the place in sight.
  void Mostrar(const Lugar& lugar);
  Posicion FilaDe(const Lugar& lugar) const;  // start of the row it is shown in
  Punto XDe(const Lugar& lugar) const { return XEnFila(FilaDe(lugar), lugar.pos); }
  // A row as it is painted; nothing for one that is a run of single bytes, or too long for that.
  const Maqueta* MaquetaDe(Posicion fila) const;
  // The caret's rectangle in the viewport, 1 pixel wide, also where it is out of sight.
  QRect Rectangulo(const Lugar& lugar) const;
  Lugar EnPunto(const QPoint& punto) const;
  Lugar EnFila(Posicion fila, Punto x) const;
  Lugar FinDeFila(Posicion fila) const;
  // `filas` rows below the row, or above; stops at the first and the last row.
  Posicion Andar(Posicion fila, std::int64_t filas) const;

 private:
  Punto XEnFila(Posicion fila, Posicion pos) const;
  Punto AnchoUtil() const;
  void Encajar() const;
  void SeguirLectura(const Cambio& cambio);

  const Documento& documento_;
  const bool ajustado_;
  QFont fuente_;
  mutable std::optional<TablaGlifos> tabla_;
  mutable const Codificacion* codificacion_ = nullptr;  // what it is of
  QSize tamano_;
  mutable std::unique_ptr<Renglones> reparto_;
  // What the user reads at the top; the row that holds it is the top row, whatever the width. Far
  // inside of an enormous line it is taken for a row's start until that is known.
  mutable Posicion lectura_ = 0;
  mutable Posicion arriba_ = 0;
  mutable bool encajado_ = false;
  std::int64_t x_ = 0;
};
