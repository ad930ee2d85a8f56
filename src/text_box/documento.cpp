#include "text_box/documento.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

#include "text_box/lector_texto.h"

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
  Utf8::Recuento recuento;
  for (const std::string_view tramo : nuevos.Tramos()) {
    contador.Agregar(tramo);
    recuento.Agregar(tramo);
  }
  recuento.Terminar();
  Sustituir(std::move(nuevos), contador.Terminar(), recuento);
}

void Documento::PonerTexto(QStringView texto) {
  const QByteArray bytes = texto.toUtf8();
  Poner({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void Documento::Sustituir(Bytes&& bytes, Sumas&& lineas, const Utf8::Recuento& recuento) {
  bytes_ = std::move(bytes);
  lineas_.Adoptar(std::move(lineas));
  caracteres_.Recargado(recuento.Sueltos() == 0);
  codificacion_ = &Codificacion::De(recuento, *del_sistema_);
  historial_.Vaciar();
  for (Observador* observador : observadores_) observador->Recargado();
}

// Nor may undo bring other bytes back.
bool Documento::EsAscii() const {
  const auto ascii = [](const Pieza& pieza) { return Utf8::EsAscii(pieza.bytes); };
  return std::ranges::all_of(bytes_.Piezas(0, Tamano()), ascii) && historial_.Todas(ascii);
}

void Documento::Admitir(QStringView texto) {
  if (codificacion_->Tiene(texto) || !EsAscii()) return;
  codificacion_ = &Codificacion::DeUtf8();
  for (Observador* observador : observadores_) observador->Recodificado();
}

std::int64_t Documento::CaracteresHasta(Posicion pos) const {
  return codificacion_->DeVarios() ? caracteres_.Antes(pos) : pos;
}

Posicion Documento::InicioDeCaracter(std::int64_t n) const {
  return codificacion_->DeVarios() ? caracteres_.Inicio(n) : std::min(n, Tamano());
}

QByteArray Documento::Copia(Posicion desde, Posicion hasta) const {
  QByteArray copia(static_cast<qsizetype>(hasta - desde), Qt::Uninitialized);
  bytes_.Copiar(desde, hasta, copia.data());
  return copia;
}

TextoEntero Documento::Entero() const {
  return {bytes_.Tramos(), std::make_shared<const std::vector<Pieza>>(bytes_.Piezas(0, Tamano()))};
}

Extracto Documento::Extraer(Posicion desde, Posicion hasta) const {
  Extracto extracto{bytes_.Piezas(desde, hasta), hasta - desde, 0, {}};
  lineas_.Extraer(desde, extracto);
  return extracto;
}

std::optional<Extracto> Documento::Guardar(std::string_view bytes) {
  auto guardados = bytes_.Guardar(bytes);
  if (!guardados) return std::nullopt;
  return Extracto{std::move(*guardados), static_cast<Posicion>(bytes.size()), 0, {}};
}

bool Documento::Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos,
                           Agrupacion agrupacion) {
  auto nuevo = Guardar(nuevos);
  if (nuevo) Reemplazar(pos, quitados, std::move(*nuevo), agrupacion);
  return nuevo.has_value();
}

void Documento::Reemplazar(Posicion pos, Posicion quitados, Extracto nuevo, Agrupacion agrupacion) {
  if (quitados == 0 && nuevo.Vacia()) return;
  Historial::Extremos extremos;
  if (!nuevo.Vacia()) extremos = {nuevo.Primero(), nuevo.Ultimo()};
  Operacion operacion{pos, 0, {}};
  const Cambio cambio = Canjear(operacion, quitados, std::move(nuevo));
  if (cambio.puestos == 0) extremos = {operacion.fuera.Primero(), operacion.fuera.Ultimo()};
  historial_.Anotar(std::move(operacion), agrupacion, extremos, Ahora());
  Avisar(cambio);
}

void Documento::Avisar(const Cambio& cambio) const {
  for (Observador* observador : observadores_) observador->Reemplazado(cambio);
}

// Puts `nuevo` in the place of bytes that the operation keeps then.
Cambio Documento::Canjear(Operacion& operacion, Posicion quitados, Extracto nuevo) {
  const Cambio cambio{operacion.pos, quitados, nuevo.tamano};
  operacion.fuera = Extraer(cambio.pos, cambio.pos + quitados);
  operacion.dentro = cambio.puestos;
  bytes_.Sustituir(cambio.pos, quitados, std::move(nuevo.piezas));
  lineas_.Reemplazado(cambio, nuevo);
  caracteres_.Reemplazado(cambio);
  return cambio;
}

Cambio Documento::PorHacer(const Operacion* operacion) {
  if (operacion == nullptr) return {-1, 0, 0};
  return {operacion->pos, operacion->dentro, operacion->fuera.tamano};
}

Cambio Documento::Deshacer() {
  return Invertir(historial_.PorDeshacer(), &Historial::Deshecha);
}

Cambio Documento::Rehacer() {
  return Invertir(historial_.PorRehacer(), &Historial::Rehecha);
}

// Swaps what is in the text with what is not.
Cambio Documento::Invertir(Operacion* operacion, void (Historial::*anotar)()) {
  CerrarGrupo();
  if (operacion == nullptr) return {-1, 0, 0};
  const Cambio cambio = Canjear(*operacion, operacion->dentro, std::move(operacion->fuera));
  (historial_.*anotar)();
  Avisar(cambio);
  return cambio;
}

std::string_view Documento::FinDeLinea() const {
  if (lineas_.Total() == 1) return "\n";
  const LectorTexto texto(bytes_);
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
