#include "text_box/renglones_lineas.h"

#include <algorithm>

#include "text_box/trozos.h"

RenglonesLineas::RenglonesLineas(const Bytes& texto, const Lineas& lineas, Posicion linea_corta)
    : texto_(&texto), lineas_(&lineas), linea_corta_(linea_corta) {}

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

Punto RenglonesLineas::XDe(Posicion inicio, Posicion pos) const {
  const Trozos texto(*texto_);
  pos = std::min(pos, FinDe(inicio));
  Puesto puesto{0, inicio, 0};
  if (pos - inicio > linea_corta_) {
    const std::size_t ultimo = lineas_->Bloques().PorPosicion(pos - 1).bloque;
    if (ultimo > lineas_->Bloques().PorPosicion(inicio).bloque) puesto = Empezar(inicio);
    while (puesto.pos > inicio && puesto.bloque < ultimo) puesto = Pasar(puesto);
  }
  return pluma_.Medir(texto, puesto.pos, pos, puesto.x);
}

Renglones::Corte RenglonesLineas::CorteEnX(Posicion inicio, Punto x) const {
  const Trozos texto(*texto_);
  const Posicion fin = FinDe(inicio);
  if (fin - inicio <= linea_corta_) return pluma_.Hasta(texto, inicio, fin, 0, x);
  const std::size_t ultimo = lineas_->Bloques().PorPosicion(fin - 1).bloque;
  Puesto puesto{0, inicio, 0};
  Puesto siguiente = Empezar(inicio);
  while (siguiente.x <= x && siguiente.bloque <= ultimo) {
    puesto = siguiente;
    if (siguiente.bloque == ultimo) break;
    siguiente = Pasar(siguiente);
  }
  return pluma_.Hasta(texto, puesto.pos, fin, puesto.x, x);
}

Posicion RenglonesLineas::PosicionEnX(Posicion inicio, Punto x) const {
  return pluma_.MasCerca(Trozos(*texto_), CorteEnX(inicio, x), FinDe(inicio), x);
}

// The block after the one that holds `inicio`, in a line that goes on there.
RenglonesLineas::Puesto RenglonesLineas::Empezar(Posicion inicio) const {
  const Sumas::Lugar lugar = lineas_->Bloques().PorPosicion(inicio);
  const Posicion fin =
      lugar.bytes + static_cast<Posicion>(lineas_->Bloques().En(lugar.bloque).bytes);
  return {lugar.bloque + 1, fin, pluma_.Medir(Trozos(*texto_), inicio, fin, 0)};
}

// Over a block in which the line does not end.
RenglonesLineas::Puesto RenglonesLineas::Pasar(const Puesto& puesto) const {
  const Posicion fin =
      puesto.pos + static_cast<Posicion>(lineas_->Bloques().En(puesto.bloque).bytes);
  Curva& curva = curvas_[puesto.bloque];
  if (curva.antes == SinCalcular) curva = Calcular(puesto.pos, fin);
  return {puesto.bloque + 1, fin, Aplicar(curva, puesto.x)};
}

RenglonesLineas::Curva RenglonesLineas::Calcular(Posicion desde, Posicion hasta) const {
  const Trozos texto(*texto_);
  Posicion tab = desde;
  while (tab < hasta) {
    const std::string_view tramo = texto.Tramo(tab, hasta);
    const std::size_t lugar = tramo.find('\t');
    tab += static_cast<Posicion>(std::min(lugar, tramo.size()));
    if (lugar != std::string_view::npos) break;
  }
  const auto antes = static_cast<std::uint32_t>(pluma_.Medir(texto, desde, tab, 0));
  if (tab == hasta) return {antes, SinTab};
  return {antes, static_cast<std::uint32_t>(pluma_.Medir(texto, tab + 1, hasta, 0))};
}

Punto RenglonesLineas::Aplicar(const Curva& curva, Punto x) const {
  x += curva.antes;
  return curva.despues == SinTab ? x : pluma_.Tabular(x) + curva.despues;
}
