#include "text_box/filas.h"

#include <algorithm>
#include <chrono>

#include "text_box/lector_texto.h"

Filas::Filas(const Bytes& texto, const Lineas& lineas) : Filas(texto, lineas, Medidas()) {}

Filas::Filas(const Bytes& texto, const Lineas& lineas, const Medidas& medidas)
    : texto_(&texto), lineas_(&lineas), medidas_(medidas) {}

void Filas::Configurar(const Avances& avances, Punto ancho) {
  partidor_ = Partidor(avances, ancho, medidas_.maximo_fila);
  Recargado();
}

void Filas::Recargado() {
  if (!Configurado()) return;
  sumas_.Vaciar();
  pendientes_.clear();
  Extender(medidas_.al_configurar);
}

bool Filas::Completo() const {
  return pendientes_.empty() && sumas_.Bytes() == texto_->Tamano();
}

bool Filas::Avanzar(int milisegundos) {
  using Reloj = std::chrono::steady_clock;
  const Reloj::time_point fin = Reloj::now() + std::chrono::milliseconds(milisegundos);
  while (!Completo()) {
    if (!pendientes_.empty()) {
      Resolver(pendientes_.front(), pendientes_.front() + medidas_.al_preguntar);
    } else {
      Extender(sumas_.Bytes() + medidas_.al_preguntar);
    }
    if (Reloj::now() >= fin) break;
  }
  return Completo();
}

std::int64_t Filas::Total() const {
  return sumas_.Cuenta() + Estimar(texto_->Tamano() - sumas_.Bytes()) + (FilaVaciaFinal() ? 1 : 0);
}

// An empty text and one that ends with a line end have a row that no block counts.
bool Filas::FilaVaciaFinal() const {
  const LectorTexto texto(*texto_);
  return texto.Total() == 0 || texto.TrasFin(texto.Total());
}

// Rows of so many bytes, by what is known of the others.
std::int64_t Filas::Estimar(Posicion bytes) const {
  if (bytes <= 0) return 0;
  const double por_byte = sumas_.Bytes() == 0 ? 0
                                              : static_cast<double>(sumas_.Cuenta()) /
                                                    static_cast<double>(sumas_.Bytes());
  return std::max<std::int64_t>(static_cast<std::int64_t>(static_cast<double>(bytes) * por_byte),
                                1);
}

bool Filas::Pendiente(Posicion pos) const {
  return std::binary_search(pendientes_.begin(), pendientes_.end(), pos);
}

// Are the blocks at `pos` those of the true rows? Rows start anew with each line, so that only a
// break between the line's start and `pos` counts.
bool Filas::Exacto(Posicion pos) const {
  const auto pendiente =
      std::lower_bound(pendientes_.begin(), pendientes_.end(), lineas_->InicioDe(pos));
  return pendiente == pendientes_.end() || *pendiente > pos;
}

// A row start at or a little before `pos`, which is a byte of the text.
Posicion Filas::Base(Posicion pos) const {
  const Posicion linea = lineas_->InicioDe(pos);
  while (true) {
    const Sumas::BloqueSituado hallado = sumas_.PorPosicion(pos);
    const bool conocido = hallado.bloque < sumas_.Bloques() && !Pendiente(hallado.bytes);
    if (linea >= hallado.bytes && (conocido || pos - linea <= medidas_.al_preguntar)) return linea;
    if (linea < hallado.bytes && conocido && Exacto(pos)) return hallado.bytes;
    Asegurar(linea, pos);
  }
}

bool Filas::Cerca(Posicion pos) const {
  pos = std::max<Posicion>(std::min(pos, texto_->Tamano() - 1), 0);
  if (pos - lineas_->InicioDe(pos) <= Lejos) return true;
  const Sumas::BloqueSituado hallado = sumas_.PorPosicion(pos);
  return hallado.bloque < sumas_.Bloques() && !Pendiente(hallado.bytes) && Exacto(pos);
}

Posicion Filas::InicioDe(Posicion pos) const {
  if (pos == texto_->Tamano()) {
    if (FilaVaciaFinal()) return pos;
    --pos;
  }
  return partidor_.Bajar(LectorTexto(*texto_), Base(pos), pos).inicio;
}

Posicion Filas::Siguiente(Posicion inicio) const {
  const LectorTexto texto(*texto_);
  return inicio == texto.Total() ? -1 : partidor_.Siguiente(texto, inicio);
}

Posicion Filas::Anterior(Posicion inicio) const {
  return inicio == 0 ? -1 : InicioDe(inicio - 1);
}

Posicion Filas::FinDe(Posicion inicio) const {
  const LectorTexto texto(*texto_);
  const Posicion siguiente = Siguiente(inicio);
  if (siguiente < 0) return texto.Total();
  return texto.TrasFin(siguiente) ? texto.SinFin(siguiente) : siguiente;
}

std::int64_t Filas::Indice(Posicion pos) const {
  const Posicion inicio = Cerca(pos) ? InicioDe(pos) : pos;
  const Sumas::BloqueSituado hallado = sumas_.PorPosicion(inicio);
  if (hallado.bloque == sumas_.Bloques()) {
    return std::min(hallado.cuenta + Estimar(inicio - hallado.bytes), Total() - 1);
  }
  const std::int64_t filas =
      Pendiente(hallado.bytes) ? Estimar(inicio - hallado.bytes)
                               : partidor_.Bajar(LectorTexto(*texto_), hallado.bytes, inicio).filas;
  return hallado.cuenta + std::min<std::int64_t>(filas, sumas_.En(hallado.bloque).cuenta - 1);
}

Posicion Filas::PosicionDe(std::int64_t indice) const {
  indice = std::clamp<std::int64_t>(indice, 0, Total() - 1);
  const Sumas::BloqueSituado hallado = sumas_.PorCuenta(indice);
  const std::int64_t filas = indice - hallado.cuenta;
  if (hallado.bloque == sumas_.Bloques()) {
    if (sumas_.Bytes() == texto_->Tamano()) return InicioDe(texto_->Tamano());
    const double parte = static_cast<double>(filas) / static_cast<double>(Total() - hallado.cuenta);
    const auto resto = static_cast<double>(texto_->Tamano() - hallado.bytes);
    return InicioDe(hallado.bytes + static_cast<Posicion>(parte * resto));
  }
  const Sumas::Bloque bloque = sumas_.En(hallado.bloque);
  if (Pendiente(hallado.bytes)) {
    return InicioDe(hallado.bytes + static_cast<Posicion>(bloque.bytes) * filas / bloque.cuenta);
  }
  const Posicion fin = hallado.bytes + bloque.bytes - 1;
  const Posicion inicio = partidor_.Bajar(LectorTexto(*texto_), hallado.bytes, fin, filas).inicio;
  return Exacto(inicio) ? inicio : InicioDe(inicio);
}

Punto Filas::XDe(Posicion inicio, Posicion pos) const {
  return partidor_.LaPluma().Medir(LectorTexto(*texto_), inicio, std::min(pos, FinDe(inicio)), 0);
}

Renglones::Corte Filas::CorteEnX(Posicion inicio, Punto x) const {
  return partidor_.LaPluma().Hasta(LectorTexto(*texto_), inicio, FinDe(inicio), 0, x);
}

Posicion Filas::PosicionEnX(Posicion inicio, Punto x) const {
  const LectorTexto texto(*texto_);
  const Posicion fin = FinDe(inicio);
  const bool rota = fin < texto.Total() && fin > inicio && Siguiente(inicio) == fin;
  const Pluma& pluma = partidor_.LaPluma();
  const Posicion ultima = rota ? pluma.Ultimo(texto, inicio, fin) : fin;
  return pluma.MasCerca(texto, pluma.Hasta(texto, inicio, ultima, 0, x), ultima, x);
}
