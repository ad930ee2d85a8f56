// The two pieces in which a text lies in memory, addressed by position.
#pragma once

#include "text_box/bytes.h"

class Trozos {
 public:
  explicit Trozos(const Bytes& texto) {
    const auto [antes, despues] = texto.Tramos();
    corte_ = static_cast<Posicion>(antes.size());
    total_ = corte_ + static_cast<Posicion>(despues.size());
    antes_ = reinterpret_cast<const unsigned char*>(antes.data());
    despues_ = reinterpret_cast<const unsigned char*>(despues.data());
  }

  Posicion Total() const { return total_; }
  unsigned char En(Posicion pos) const { return *Desde(pos); }
  // The bytes from `pos` on, contiguous up to FinTrozo(pos). 0 <= pos < Total().
  const unsigned char* Desde(Posicion pos) const {
    return pos < corte_ ? antes_ + pos : despues_ + (pos - corte_);
  }
  Posicion FinTrozo(Posicion pos) const { return pos < corte_ ? corte_ : total_; }

  Posicion InicioTrozo(Posicion pos) const { return pos < corte_ ? 0 : corte_; }
  // The byte at `pos`, -1 at the end.
  int EnOFin(Posicion pos) const { return pos < total_ ? En(pos) : -1; }
  // The bytes from `pos` up to `hasta`, or up to the gap.
  std::string_view Tramo(Posicion pos, Posicion hasta) const {
    const Posicion fin = FinTrozo(pos) < hasta ? FinTrozo(pos) : hasta;
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
  const unsigned char* antes_ = nullptr;
  const unsigned char* despues_ = nullptr;
  Posicion corte_ = 0;
  Posicion total_ = 0;
};
