// The lines of a text as the rows of a view that does not wrap.
//
// Positions are the lines' own business, x in long lines that of Curvas. Each block of the lines
// keeps the width of the widest line that starts in it, worked out when idle.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text_box/bytes.h"
#include "text_box/curvas.h"
#include "text_box/lineas.h"
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
  bool Cerca(Posicion pos) const override;
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
  bool Configurado() const { return curvas_.LaPluma().Tabulador() > 0; }
  void Ignorar(std::size_t bloque);
  Curvas::Puesto Empezar(Posicion inicio) const;
  void Trabajar(int bloques);
  bool Maximo(std::size_t bloque, int& bloques);
  Punto MasAncha(const LectorTexto& texto, Posicion& desde, Posicion hasta) const;

  const Bytes* texto_;
  const Lineas* lineas_;
  Posicion linea_corta_;
  Curvas curvas_;
  std::vector<Punto> maximos_;  // per block, the widest line that starts in it; -1 while unknown
  std::size_t desconocidos_ = 0;
  std::size_t primero_ = 0;  // no unknown one before this
  mutable Punto ancho_maximo_ = 0;
  mutable bool ancho_al_dia_ = false;
};
