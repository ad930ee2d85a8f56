#include "text_box/renglones_lineas.h"

#include <algorithm>

#include "text_box/lector_texto.h"

RenglonesLineas::RenglonesLineas(const Bytes& texto, const Lineas& lineas, Posicion linea_corta)
    : texto_(&texto), lineas_(&lineas), linea_corta_(linea_corta), curvas_(texto, lineas) {}

Posicion RenglonesLineas::InicioDe(Posicion pos) const {
  return lineas_->InicioDe(pos);
}
Posicion RenglonesLineas::Siguiente(Posicion inicio) const {
  return lineas_->Siguiente(inicio);
}
Posicion RenglonesLineas::Anterior(Posicion inicio) const {
  return lineas_->Anterior(inicio);
}
Posicion RenglonesLineas::FinDe(Posicion inicio) const {
  return lineas_->FinDe(inicio);
}
std::int64_t RenglonesLineas::Indice(Posicion pos) const {
  return lineas_->Linea(pos);
}

Posicion RenglonesLineas::PosicionDe(std::int64_t indice) const {
  return lineas_->Inicio(std::clamp<std::int64_t>(indice, 0, Total() - 1));
}

bool RenglonesLineas::Cerca(Posicion pos) const {
  return Completo() || pos - lineas_->InicioDe(pos) <= Lejos;
}

Punto RenglonesLineas::XDe(Posicion inicio, Posicion pos) const {
  pos = std::min(pos, FinDe(inicio));
  Curvas::Puesto puesto{0, inicio, 0};
  if (pos - inicio > linea_corta_) {
    const std::size_t ultimo = lineas_->Bloques().PorPosicion(pos - 1).bloque;
    if (lineas_->Bloques().PorPosicion(inicio).bloque < ultimo) puesto = Empezar(inicio);
    while (puesto.pos > inicio && puesto.bloque < ultimo) puesto = curvas_.Pasar(puesto, ultimo);
  }
  const LectorTexto texto(*texto_);
  const Pluma& pluma = curvas_.LaPluma();
  const Posicion tramo = puesto.pos > inicio ? pluma.InicioDeTramo(texto, puesto.pos) : inicio;
  return pluma.Medir(texto, puesto.pos, pos, puesto.x, tramo);
}

Renglones::Corte RenglonesLineas::CorteEnX(Posicion inicio, Punto x) const {
  const LectorTexto texto(*texto_);
  const Pluma& pluma = curvas_.LaPluma();
  const Posicion fin = FinDe(inicio);
  if (fin - inicio <= linea_corta_) return pluma.Hasta(texto, inicio, fin, 0, x);
  const std::size_t ultimo = lineas_->Bloques().PorPosicion(fin - 1).bloque;
  Curvas::Puesto puesto = Empezar(inicio);
  if (puesto.bloque > ultimo || puesto.x > x) return pluma.Hasta(texto, inicio, fin, 0, x);
  while (puesto.bloque < ultimo) {
    Curvas::Puesto siguiente = curvas_.Pasar(puesto, ultimo);
    if (siguiente.x > x) siguiente = curvas_.PasarBloque(puesto);  // not the whole group
    if (siguiente.x > x) break;
    puesto = siguiente;
  }
  return pluma.Hasta(texto, puesto.pos, fin, puesto.x, x, pluma.InicioDeTramo(texto, puesto.pos));
}

Posicion RenglonesLineas::PosicionEnX(Posicion inicio, Punto x) const {
  return curvas_.LaPluma().MasCerca(LectorTexto(*texto_), CorteEnX(inicio, x), FinDe(inicio), x);
}

// The block after the one that holds `inicio`, if the line goes on there.
Curvas::Puesto RenglonesLineas::Empezar(Posicion inicio) const {
  const Sumas::BloqueSituado hallado = lineas_->Bloques().PorPosicion(inicio);
  const Posicion fin = hallado.bytes + lineas_->Bloques().En(hallado.bloque).bytes;
  return {hallado.bloque + 1, fin, curvas_.LaPluma().Medir(LectorTexto(*texto_), inicio, fin, 0)};
}
