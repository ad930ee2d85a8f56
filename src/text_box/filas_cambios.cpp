// How the blocks of rows follow the text.
#include <algorithm>
#include <utility>
#include <vector>

#include "text_box/filas.h"
#include "text_box/lector_texto.h"

namespace {

constexpr Posicion MayorBloque = 1 << 30;  // a block's bytes must fit 32 bits

}  // namespace

// Puts new blocks together, row after row.
class Filas::Tejedor {
 public:
  Tejedor(const Bytes& texto, const Partidor& partidor, Posicion bloque, Posicion inicio)
      : texto_(texto), partidor_(partidor), bloque_(bloque), pos_(inicio) {}

  Posicion Pos() const { return pos_; }
  bool AlFinal() const { return pos_ == texto_.Total(); }
  bool BloqueCerrado() const { return abierto_.bytes == 0; }

  // Wraps on to the first row start at or after `meta`, or until a block is full.
  void Seguir(Posicion meta) {
    meta = std::min(meta, pos_ + bloque_ - static_cast<Posicion>(abierto_.bytes));
    const Partidor::Marcha marcha = partidor_.Bajar(texto_, pos_, meta - 1);
    const Posicion siguiente = partidor_.Siguiente(texto_, marcha.inicio);
    const Posicion fin = siguiente < 0 ? texto_.Total() : siguiente;
    abierto_.bytes += static_cast<std::uint32_t>(fin - pos_);
    abierto_.cuenta += static_cast<std::uint32_t>(marcha.filas + 1);
    pos_ = fin;
    if (static_cast<Posicion>(abierto_.bytes) >= bloque_) Cerrar();
  }

  std::vector<Sumas::Bloque> Terminar() {
    const bool corto = static_cast<Posicion>(abierto_.bytes) < bloque_ / 4;
    if (corto && !bloques_.empty()) {
      bloques_.back().bytes += abierto_.bytes;
      bloques_.back().cuenta += abierto_.cuenta;
      abierto_ = {};
    }
    Cerrar();
    return std::move(bloques_);
  }

 private:
  void Cerrar() {
    if (abierto_.bytes > 0) bloques_.push_back(abierto_);
    abierto_ = {};
  }

  LectorTexto texto_;
  const Partidor& partidor_;
  Posicion bloque_;
  Posicion pos_;
  Sumas::Bloque abierto_;
  std::vector<Sumas::Bloque> bloques_;
};

// Wraps anew from block `primero` on, which starts at the true row start `inicio`, until the rows
// meet the old blocks. From `tope` on that is given up: what lies between becomes an estimate.
void Filas::Rehacer(std::size_t primero, Posicion inicio, Viejos viejos, Posicion tope) const {
  Tejedor tejedor(*texto_, partidor_, medidas_.bloque, inicio);
  bool quedan = false;
  bool encuentro = false;
  while (!tejedor.AlFinal()) {
    viejos = Pasar(viejos, tejedor.Pos());
    quedan = viejos.bloque < sumas_.Bloques();
    encuentro = quedan && viejos.inicio == tejedor.Pos();
    if (encuentro || (tejedor.BloqueCerrado() && tejedor.Pos() >= tope)) break;
    tejedor.Seguir(quedan ? viejos.inicio : texto_->Tamano());
  }
  const Posicion pos = tejedor.Pos();
  if (tejedor.AlFinal()) viejos.bloque = sumas_.Bloques();
  OlvidarPendientes(inicio, pos);
  std::vector<Sumas::Bloque> nuevos = tejedor.Terminar();
  if (!tejedor.AlFinal() && quedan && !encuentro) Aplazar(pos, viejos.inicio, nuevos);
  sumas_.Sustituir(primero, viejos.bloque, nuevos);
}

// The first of the old blocks that starts at or after `pos`.
Filas::Viejos Filas::Pasar(Viejos viejos, Posicion pos) const {
  while (viejos.bloque < sumas_.Bloques() && viejos.inicio < pos) {
    viejos.inicio += sumas_.En(viejos.bloque).bytes;
    ++viejos.bloque;
  }
  return viejos;
}

// Leaves [desde, hasta) to be wrapped later. The last line that starts in it may be new: the old
// rows behind do not come from it, so that it is a break of its own.
void Filas::Aplazar(Posicion desde, Posicion hasta, std::vector<Sumas::Bloque>& bloques) const {
  const Posicion linea = lineas_->InicioDe(hasta);
  const bool partida = desde < linea && linea < hasta;
  AplazarRango(desde, partida ? linea : hasta, bloques);
  if (partida) AplazarRango(linea, hasta, bloques);
}

void Filas::AplazarRango(Posicion desde, Posicion hasta,
                         std::vector<Sumas::Bloque>& bloques) const {
  do {
    const auto hallado = std::lower_bound(pendientes_.begin(), pendientes_.end(), desde);
    if (hallado == pendientes_.end() || *hallado != desde) pendientes_.insert(hallado, desde);
    const Posicion largo = std::min(hasta - desde, MayorBloque);
    if (largo > 0) {
      bloques.push_back(
          {static_cast<std::uint32_t>(largo), static_cast<std::uint32_t>(Estimar(largo))});
    }
    desde += largo;
  } while (desde < hasta);
}

void Filas::OlvidarPendientes(Posicion desde, Posicion hasta) const {
  const auto primero = std::lower_bound(pendientes_.begin(), pendientes_.end(), desde);
  pendientes_.erase(primero, std::lower_bound(primero, pendientes_.end(), hasta));
}

void Filas::Resolver(Posicion pendiente, Posicion tope) const {
  const std::size_t bloque = sumas_.PorPosicion(pendiente).bloque;
  const Posicion fin = pendiente + static_cast<Posicion>(sumas_.En(bloque).bytes);
  Rehacer(bloque, pendiente, {bloque + 1, fin}, tope);
}

void Filas::Extender(Posicion tope) const {
  Rehacer(sumas_.Bloques(), sumas_.Bytes(), {sumas_.Bloques(), sumas_.Bytes()}, tope);
}

// Sees to it that the blocks lead to `pos`, a byte of the line that starts at `linea`.
void Filas::Asegurar(Posicion linea, Posicion pos) const {
  while (true) {
    const Sumas::BloqueSituado hallado = sumas_.PorPosicion(pos);
    const Posicion desde = lineas_->InicioDe(std::min(linea, hallado.bytes));
    const auto pendiente = std::lower_bound(pendientes_.begin(), pendientes_.end(), desde);
    if (pendiente != pendientes_.end() && *pendiente <= pos) {
      Resolver(*pendiente, pos + medidas_.al_cambiar);
    } else if (hallado.bloque == sumas_.Bloques()) {
      Extender(pos + medidas_.al_cambiar);
    } else {
      return;
    }
  }
}

// Two whole blocks of true rows before this one. A row's break depends on what follows up to the
// first byte that did not fit, which may lie in the next row but not beyond; and on those that are
// drawn together with that one.
std::size_t Filas::BloqueAnterior(std::size_t bloque, Posicion pos) const {
  int enteros = 0;
  const Posicion lejos = pos - partidor_.LaPluma().Alcance();
  while (bloque > 0 && (enteros < 2 || sumas_.Donde(bloque).bytes > lejos)) {
    --bloque;
    if (!Pendiente(sumas_.Donde(bloque).bytes)) ++enteros;
  }
  return bloque;
}

void Filas::Reemplazado(const Cambio& cambio) {
  // A row depends on the bytes of a few rows at most.
  const Posicion lejos = sumas_.Bytes() + 4 * static_cast<Posicion>(medidas_.maximo_fila) +
                         partidor_.LaPluma().Alcance();
  if (!Configurado() || cambio.pos > lejos) return;
  const Posicion fin = cambio.pos + cambio.quitados;
  const std::size_t primero = BloqueAnterior(sumas_.PorPosicion(cambio.pos).bloque, cambio.pos);
  const Posicion inicio = sumas_.Donde(primero).bytes;
  Viejos viejos = Pasar({primero, inicio}, fin);
  viejos.inicio += cambio.puestos - cambio.quitados;

  OlvidarPendientes(inicio + 1, fin);
  for (Posicion& pendiente : pendientes_) {
    if (pendiente >= fin) pendiente += cambio.puestos - cambio.quitados;
  }
  if (Exacto(inicio)) {
    const Posicion pegado = std::min<Posicion>(cambio.puestos, medidas_.al_configurar);
    Rehacer(primero, inicio, viejos, cambio.pos + pegado + medidas_.al_cambiar);
    return;
  }
  std::vector<Sumas::Bloque> nuevos;
  if (viejos.bloque < sumas_.Bloques()) {
    Aplazar(inicio, viejos.inicio, nuevos);
  } else {
    OlvidarPendientes(inicio, texto_->Tamano());
  }
  sumas_.Sustituir(primero, viejos.bloque, nuevos);
}
