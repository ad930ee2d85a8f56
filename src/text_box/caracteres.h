// How many characters stand before a place of a text, where they are of several bytes.
//
// Counted per block when somebody asks first, and kept from then on: an answer costs one block.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "text_box/bytes.h"
#include "text_box/sumas.h"

class Caracteres {
 public:
  explicit Caracteres(const Bytes& texto, int bloque = 4096) : texto_(&texto), bloque_(bloque) {}

  // The text is another; `bien_formado`: no byte of it stands alone.
  void Recargado(bool bien_formado);
  void Reemplazado(const Cambio& cambio);

  std::int64_t Total() const;
  std::int64_t Antes(Posicion pos) const;  // those that start before `pos`
  Posicion Inicio(std::int64_t n) const;   // where number `n` starts, from 0; the end beyond them

 private:
  const Sumas& Cuenta() const;
  void Contar(Posicion desde, Posicion hasta, std::vector<Sumas::Bloque>& bloques) const;

  const Bytes* texto_;
  int bloque_;
  bool bien_formado_ = false;
  mutable std::optional<Sumas> cuenta_;
};
