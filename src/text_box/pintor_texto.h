// Paints rows of text, the visible part of each only.
#pragma once

#include <vector>

#include <QPainter>
#include <QPointF>

#include "text_box/aspecto_caja.h"
#include "text_box/encuadre.h"

class PintorTexto {
 public:
  PintorTexto(QPainter& pintor, const Bytes& texto, const Encuadre& encuadre,
              const AspectoCaja& aspecto);

  // The row that starts at `inicio`, its top edge at `y` pixels, the bytes from `elegido_desde` to
  // `elegido_hasta` in the colours of the selection.
  struct Fila {
    Posicion inicio = 0;
    int y = 0;
    Posicion elegido_desde = 0;
    Posicion elegido_hasta = 0;
  };
  void Pintar(const Fila& fila);

 private:
  void Reunir(Posicion inicio, Posicion fin);
  std::size_t Indice(Posicion pos) const;
  void PintarEleccion(const Fila& fila, std::size_t desde, std::size_t hasta, bool fin_elegido);
  void PintarRango(std::size_t desde, std::size_t hasta, int y, const QColor& color);
  void PintarMarcas(std::size_t desde, std::size_t hasta, int y);
  void PintarRayas(qreal izquierda, qreal derecha, qreal base);

  QPainter& pintor_;
  const Bytes& texto_;
  const Encuadre& encuadre_;
  const TablaGlifos& tabla_;
  const AspectoCaja& aspecto_;

  // The visible bytes of the row in hand: one more x than bytes.
  Posicion primera_ = 0;
  std::vector<char> bytes_;
  std::vector<qreal> x_;
  std::vector<quint32> glifos_;
  std::vector<QPointF> sitios_;
};
