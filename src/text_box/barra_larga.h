// A scroll bar over a 64-bit range: the toolkit's own counts in 32 bits.
#pragma once

#include <cstdint>

#include <QScrollBar>

class BarraLarga {
 public:
  explicit BarraLarga(QScrollBar* barra) : barra_(barra) {}

  // Shows `valor` of 0..`maximo` with pages of `pagina`; the bar tells nobody of it.
  void Poner(std::int64_t valor, std::int64_t maximo, std::int64_t pagina, int paso);
  // Where the user has moved the bar to.
  std::int64_t Valor() const;

 private:
  QScrollBar* barra_;
  std::int64_t maximo_ = 0;
  std::int64_t escala_ = 1;  // units per step of the bar
};
