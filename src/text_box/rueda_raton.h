// The wheel of the mouse, or a touch pad's: whole rows come out, what is left is kept for the next
// turn.
#pragma once

#include <QPoint>
#include <QWheelEvent>

class RuedaRaton {
 public:
  struct Giro {
    int filas = 0;    // down, or up when negative
    int pixeles = 0;  // to the right, or left when negative
  };
  // Pixels: how high a row is, and how far one notch sideways goes.
  Giro Girar(const QWheelEvent& evento, int alto_fila, int paso_lateral);

 private:
  QPoint resto_;
};
