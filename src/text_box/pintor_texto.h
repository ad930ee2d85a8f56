// Paints rows of text, the visible part of each only.
#pragma once

#include <vector>

#include <QPainter>
#include <QPointF>

#include "text_box/a_la_vista.h"
#include "text_box/aspecto_caja.h"
#include "text_box/encuadre.h"
#include "text_box/retrato.h"

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
  // What its picture depends on; `vista` is what is in sight of it.
  static FilaRetratada Retratar(const Encuadre& encuadre, const Fila& fila, const ALaVista& vista);

 private:
  void PintarMaqueta(const Fila& fila, const FilaRetratada& retratada);
  void Reunir();
  void PintarEleccion(const FilaRetratada& fila, int y);
  void PintarRango(std::size_t desde, std::size_t hasta, int y, const QColor& color);
  void PintarMarcas(std::size_t desde, std::size_t hasta, int y);
  void PintarRayas(qreal izquierda, qreal derecha, qreal base);

  QPainter& pintor_;
  const Bytes& texto_;
  const Encuadre& encuadre_;
  const TablaGlifos& tabla_;
  const AspectoCaja& aspecto_;

  // The row in hand.
  ALaVista vista_;
  std::vector<qreal> x_;  // pixels, one more than bytes
  std::vector<quint32> glifos_;
  std::vector<QPointF> sitios_;
};
