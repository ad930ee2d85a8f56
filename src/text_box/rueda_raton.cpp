#include "text_box/rueda_raton.h"

#include <utility>

#include <QApplication>

namespace {

constexpr int GradosMuesca = 120;  // of the wheel, in eighths of a degree

// Takes whole steps of `unidad` out of `resto`.
int Enteros(int& resto, int unidad) {
  const int enteros = resto / unidad;
  resto -= enteros * unidad;
  return enteros;
}

}  // namespace

RuedaRaton::Giro RuedaRaton::Girar(const QWheelEvent& evento, int alto_fila, int paso_lateral) {
  if (evento.phase() != Qt::NoScrollPhase && !evento.pixelDelta().isNull()) {
    resto_ += evento.pixelDelta();
    return {-Enteros(resto_.ry(), alto_fila), -std::exchange(resto_.rx(), 0)};
  }
  resto_ += evento.angleDelta() * QApplication::wheelScrollLines();
  return {-Enteros(resto_.ry(), GradosMuesca), -Enteros(resto_.rx(), GradosMuesca) * paso_lateral};
}
