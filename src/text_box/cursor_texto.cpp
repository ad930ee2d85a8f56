#include "text_box/cursor_texto.h"

#include <algorithm>

namespace {

// Where a position that is not the change's own comes to lie.
Posicion Desplazada(Posicion pos, const Cambio& cambio) {
  if (pos <= cambio.pos) return pos;
  return std::max(cambio.pos, pos - cambio.quitados) +
         (pos >= cambio.pos + cambio.quitados ? cambio.puestos : 0);
}

}  // namespace

Posicion CursorTexto::Dentro(Posicion pos) const {
  return FueraDeCaracter(documento_, std::clamp<Posicion>(pos, 0, documento_.Tamano()));
}

void CursorTexto::Llevar(const Lugar& lugar, Seleccion seleccion) {
  cursor_ = {Dentro(lugar.pos), lugar.al_final};
  if (seleccion == Seleccion::Quitar) ancla_ = cursor_.pos;
  columna_.reset();
}

void CursorTexto::Elegir(Posicion ancla, const Lugar& lugar) {
  ancla_ = Dentro(ancla);
  Llevar(lugar, Seleccion::Extender);
}

void CursorTexto::Reemplazado(const Cambio& cambio) {
  cursor_ = {Dentro(Desplazada(cursor_.pos, cambio)), false};
  ancla_ = Dentro(Desplazada(ancla_, cambio));
  columna_.reset();
}

void CursorTexto::Recargado() {
  cursor_ = {};
  ancla_ = 0;
  columna_.reset();
}

bool CursorTexto::Mover(const Tecla& tecla) {
  const auto seleccion = tecla.extender ? Seleccion::Extender : Seleccion::Quitar;
  if (tecla.orden == Orden::FilaArriba || tecla.orden == Orden::FilaAbajo) {
    MoverFilas(tecla.orden == Orden::FilaArriba ? -1 : 1, seleccion);
    return true;
  }
  const std::optional<Lugar> destino = Destino(tecla);
  if (destino) Llevar(*destino, seleccion);
  return destino.has_value();
}

std::optional<Lugar> CursorTexto::Destino(const Tecla& tecla) const {
  const bool quitar = HaySeleccion() && !tecla.extender;
  switch (tecla.orden) {
    case Orden::Izquierda:
      return Lugar{quitar ? Elegido().desde : PasoIzquierda(documento_, Pos()), false};
    case Orden::Derecha:
      return Lugar{quitar ? Elegido().hasta : PasoDerecha(documento_, Pos()), false};
    case Orden::PalabraIzquierda:
      return Lugar{PalabraIzquierda(documento_, Pos()), false};
    case Orden::PalabraDerecha:
      return Lugar{PalabraDerecha(documento_, Pos()), false};
    case Orden::InicioFila:
      return Lugar{encuadre_.FilaDe(cursor_), false};
    case Orden::FinFila:
      return encuadre_.FinDeFila(encuadre_.FilaDe(cursor_));
    case Orden::InicioTexto:
      return Lugar{0, false};
    case Orden::FinTexto:
      return Lugar{documento_.Tamano(), false};
    default:
      return std::nullopt;
  }
}

// The x that moving up and down began with is kept over shorter rows.
void CursorTexto::MoverFilas(std::int64_t filas, Seleccion seleccion) {
  const Punto x = columna_.value_or(encuadre_.XDe(cursor_));
  const Posicion fila = encuadre_.FilaDe(cursor_);
  const Posicion otra = encuadre_.Andar(fila, filas);
  Llevar(otra == fila ? cursor_ : encuadre_.EnFila(otra, x), seleccion);
  columna_ = x;
}
