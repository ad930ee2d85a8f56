// Reads a text, piece by piece of the memory it lies in, by position. Valid until the text changes.
#pragma once

#include "text_box/bytes.h"

class LectorTexto {
 public:
  explicit LectorTexto(const Bytes& texto) : texto_(&texto), total_(texto.Tamano()) {}

  Posicion Total() const { return total_; }
  unsigned char En(Posicion pos) const { return *Desde(pos); }
  // The bytes from `pos` on, contiguous up to FinDePieza(pos). 0 <= pos <= Total().
  const unsigned char* Desde(Posicion pos) const {
    Ir(pos);
    return base_ + (pos - inicio_);
  }
  Posicion FinDePieza(Posicion pos) const {
    Ir(pos);
    return inicio_ + static_cast<Posicion>(largo_);
  }
  Posicion InicioDePieza(Posicion pos) const {
    Ir(pos);
    return inicio_;
  }
  // The byte at `pos`, -1 at the end.
  int EnOFin(Posicion pos) const { return pos < total_ ? En(pos) : -1; }
  // The bytes from `pos` up to `hasta`, or up to the end of the piece.
  std::string_view Tramo(Posicion pos, Posicion hasta) const {
    const Posicion fin = FinDePieza(pos) < hasta ? FinDePieza(pos) : hasta;
    return {reinterpret_cast<const char*>(Desde(pos)), static_cast<std::size_t>(fin - pos)};
  }

  // Is a line end complete right before `pos`? Not between CR and LF.
  bool TrasFin(Posicion pos) const {
    if (pos == 0) return false;
    if (En(pos - 1) == '\n') return true;
    return En(pos - 1) == '\r' && (pos == total_ || En(pos) != '\n');
  }
  // Where the line end that stops right before `pos` starts; TrasFin(pos) holds.
  Posicion SinFin(Posicion pos) const {
    const bool doble = En(pos - 1) == '\n' && pos > 1 && En(pos - 2) == '\r';
    return pos - (doble ? 2 : 1);
  }

  // The position after the line end that starts at `pos`.
  Posicion TrasElFin(Posicion pos) const {
    return pos + (En(pos) == '\r' && EnOFin(pos + 1) == '\n' ? 2 : 1);
  }

 private:
  // One piece is looked at for long before the next one is.
  void Ir(Posicion pos) const {
    const bool dentro = static_cast<std::uint64_t>(pos - inicio_) < largo_;  // nor before it
    if (!dentro) Buscar(pos);
  }
  void Buscar(Posicion pos) const {
    const Bytes::PiezaSituada hallada = texto_->Donde(pos);
    inicio_ = hallada.inicio;
    largo_ = static_cast<std::uint64_t>(hallada.fin - hallada.inicio);
    base_ = reinterpret_cast<const unsigned char*>(hallada.datos) - (pos - inicio_);
  }

  const Bytes* texto_;
  Posicion total_;
  mutable const unsigned char* base_ = nullptr;
  mutable Posicion inicio_ = 0;
  mutable std::uint64_t largo_ = 0;
};
