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
  static constexpr Posicion LineaCorta = 16384;
  // Lines of up to `linea_corta` bytes are walked byte by byte.
  RenglonesLineas(const Bytes& texto, const Lineas& lineas, Posicion linea_corta = LineaCorta);

  void Configurar(const Avances& avances);  // as Filas::Configurar

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
  // x behind a block that holds no line end, as a function of x before it: x + antes, and when
  // it holds a tab, on to the next stop, + despues.
  struct Curva {
    std::uint32_t antes = SinCalcular;
    std::uint32_t despues = 0;  // SinTab without a tab
  };
  static constexpr std::uint32_t SinCalcular = UINT32_MAX;
  static constexpr std::uint32_t SinTab = UINT32_MAX;

  Curva Calcular(Posicion desde, Posicion hasta) const;
  Punto Aplicar(const Curva& curva, Punto x) const;
  // A place in a line: the start of a block behind the line's first, with its x.
  struct Puesto {
    std::size_t bloque = 0;
    Posicion pos = 0;
    Punto x = 0;
  };
  Puesto Empezar(Posicion inicio) const;
  Puesto Pasar(const Puesto& puesto) const;

  bool Configurado() const { return pluma_.Tabulador() > 0; }
  void Ignorar(std::size_t bloque);
  void Trabajar(int bloques);
  bool PrepararCurvas(std::size_t bloque, Posicion pos, Posicion fin, int& bloques) const;
  bool Maximo(std::size_t bloque, int& bloques);

  const Bytes* texto_;
  const Lineas* lineas_;
  Posicion linea_corta_;
  Pluma pluma_;
  // Per block of the lines; the curve as soon as it is needed.
  mutable std::vector<Curva> curvas_;
  std::vector<Punto> maximos_;  // the widest line that starts in it; -1 while unknown
  std::size_t desconocidos_ = 0;
  std::size_t primero_ = 0;  // no unknown one before this
  mutable Punto ancho_maximo_ = 0;
  mutable bool ancho_al_dia_ = false;
};
