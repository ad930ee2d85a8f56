#include "text_box/documento.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <utility>

#include "text_box/trozos.h"

namespace {

Historial::Momento Ahora() {
  return std::chrono::duration_cast<Historial::Momento>(
      std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace

void Documento::Vaciar() {
  Poner({});
}

void Documento::Poner(std::string_view bytes) {
  Bytes nuevos;
  if (!nuevos.Reemplazar(0, 0, bytes)) return;
  ContadorLineas contador;
  contador.Agregar(nuevos.Tramos()[0]);
  Sustituir(std::move(nuevos), contador.Terminar());
}

void Documento::Sustituir(Bytes&& bytes, Sumas&& lineas) {
  bytes_ = std::move(bytes);
  lineas_.Adoptar(std::move(lineas));
  historial_.Vaciar();
  for (Observador* observador : observadores_) observador->Recargado();
}

QByteArray Documento::Copia(Posicion desde, Posicion hasta) const {
  QByteArray copia(static_cast<qsizetype>(hasta - desde), Qt::Uninitialized);
  bytes_.Copiar(desde, hasta, copia.data());
  return copia;
}

bool Documento::Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos,
                           Agrupacion agrupacion) {
  if (quitados == 0 && nuevos.empty()) return true;
  // What is put in may lie in the text and be gone afterwards.
  const std::array extremos{nuevos.empty() ? '\0' : nuevos.front(),
                            nuevos.empty() ? '\0' : nuevos.back()};
  Operacion operacion{pos, static_cast<Posicion>(nuevos.size()), {}, false};
  if (!Canjear(bytes_, pos, quitados, nuevos, operacion.fuera)) return false;
  const Cambio cambio{pos, quitados, operacion.dentro};
  const std::string borrados(operacion.fuera.Vista());
  historial_.Anotar(
      std::move(operacion), agrupacion,
      cambio.puestos > 0 ? std::string_view(extremos.data(), extremos.size()) : borrados, Ahora());
  Avisar(cambio);
  return true;
}

void Documento::Avisar(const Cambio& cambio) {
  lineas_.Reemplazado(cambio);
  for (Observador* observador : observadores_) observador->Reemplazado(cambio);
}

Cambio Documento::Deshacer() {
  Cambio ultimo{-1, 0, 0};
  CerrarGrupo();
  bool sigue = true;
  while (sigue && PuedeDeshacer()) {
    const Cambio cambio = Invertir(*historial_.PorDeshacer());
    if (cambio.pos < 0) break;
    ultimo = cambio;
    sigue = historial_.Deshecha();
    Avisar(cambio);
  }
  return ultimo;
}

Cambio Documento::Rehacer() {
  Cambio ultimo{-1, 0, 0};
  CerrarGrupo();
  bool sigue = true;
  while (sigue && PuedeRehacer()) {
    const Cambio cambio = Invertir(*historial_.PorRehacer());
    if (cambio.pos < 0) break;
    ultimo = cambio;
    sigue = historial_.Rehecha();
    Avisar(cambio);
  }
  return ultimo;
}

// Swaps what is in the text with what is not; pos -1 when memory is out.
Cambio Documento::Invertir(Operacion& operacion) {
  const Cambio cambio{operacion.pos, operacion.dentro, operacion.fuera.Tamano()};
  Pieza sacada;
  if (!Canjear(bytes_, cambio.pos, cambio.quitados, operacion.fuera, sacada)) return {-1, 0, 0};
  operacion.fuera = std::move(sacada);
  operacion.dentro = cambio.puestos;
  return cambio;
}

std::string_view Documento::FinDeLinea() const {
  if (lineas_.Total() == 1) return "\n";
  const Trozos texto(bytes_);
  const Posicion siguiente = lineas_.Inicio(1);
  if (texto.En(siguiente - 1) == '\r') return "\r";
  return texto.SinFin(siguiente) == siguiente - 2 ? "\r\n" : "\n";
}

void Documento::Observar(Observador* observador) {
  observadores_.push_back(observador);
}

void Documento::DejarDeObservar(Observador* observador) {
  std::erase(observadores_, observador);
}
