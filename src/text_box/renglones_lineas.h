// The lines of a text as the rows of a view that does not wrap.
//
// Positions are the lines' own business. For x in long lines each block of the lines keeps its
// advance as a function of the x that comes in: a sum, or what lies before the first tab and what
// the tabs lead to. Far places are reached by folding those functions over the blocks. Each block
// also keeps the width of the widest line that starts in it, worked out when idle.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text_box/bytes.h"
#include "text_box/lineas.h"
#include "text_box/pluma.h"
#include "text_box/renglones.h"

class RenglonesLineas : public Renglones {
 public:
  RenglonesLineas(const Bytes& texto, const Lineas& lineas);

  void Configurar(const Avances& avances);  // nothing may be asked before the first call

  void Reemplazado(const Cambio& cambio) override;
  void Recargado() override;

  std::int64_t Total() const override { return lineas_->Total(); }
  bool Completo() const override;
  bool Avanzar(int milisegundos) override;
  Posicion InicioDe(Posicion pos) const override;
  Posicion Siguiente(Posicion inicio) const override;
  Posicion Anterior(Posicion inicio) const override;
  Posicion FinDe(Posicion inicio) const override;
  std::int64_t Indice(Posicion pos) const override;
  Posicion PosicionDe(std::int64_t indice) const override;
  Punto XDe(Posicion inicio, Posicion pos) const override;
  Posicion PosicionEnX(Posicion inicio, Punto x) const override;
  Corte CorteEnX(Posicion inicio, Punto x) const override;
  Punto AnchoMaximo() const override;

 private:
  const Bytes* texto_;
  const Lineas* lineas_;
};
