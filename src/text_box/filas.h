// The rows of a text that wraps at a width.
//
// Like the lines, nothing is kept per row: the text is cut at row starts into blocks of about
// 4 KB with the number of rows in each; the rows of a block are found by wrapping it again. After
// a change rows are wrapped from a little before it until a new row start meets the start of an
// old block: from there on all is as it was. Where that does not happen soon (a line of megabytes
// without blanks) the old blocks stay behind as an estimate, and where they begin is remembered:
// idle time, or a question about that line, wraps on from there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text_box/bytes.h"
#include "text_box/lineas.h"
#include "text_box/partidor.h"
#include "text_box/renglones.h"
#include "text_box/sumas.h"

class Filas : public Renglones {
 public:
  // Block and stretch sizes in bytes; tests make them tiny.
  struct Medidas {
    int bloque = 4096;
    int maximo_fila = 65536;        // a row never holds more; then it is broken hard
    int al_cambiar = 65536;         // wrapped at once behind a change
    int al_configurar = 4 << 20;    // wrapped at once by Configurar
    int al_preguntar = 256 * 1024;  // beyond the known rows: wrapped from the line's start
  };

  Filas(const Bytes& texto, const Lineas& lineas);
  Filas(const Bytes& texto, const Lineas& lineas, const Medidas& medidas);

  // Wraps at `ancho` (> 0). The first rows are known at once, the others by Avanzar. Nothing may
  // be asked before the first call; changes cost nothing until then.
  void Configurar(const Avances& avances, Punto ancho);

  void Reemplazado(const Cambio& cambio) override;
  void Recargado() override;

  std::int64_t Total() const override;
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
  Punto AnchoMaximo() const override { return partidor_.Ancho(); }

 private:
  // The old blocks from number `bloque` on, which start at `inicio` in the text as it is now.
  struct Viejos {
    std::size_t bloque = 0;
    Posicion inicio = 0;
  };
  class Tejedor;

  void Rehacer(std::size_t primero, Posicion inicio, Viejos viejos, Posicion tope) const;
  Viejos Pasar(Viejos viejos, Posicion pos) const;
  void Aplazar(Posicion desde, Posicion hasta, std::vector<Sumas::Bloque>& bloques) const;
  void AplazarRango(Posicion desde, Posicion hasta, std::vector<Sumas::Bloque>& bloques) const;
  void OlvidarPendientes(Posicion desde, Posicion hasta) const;
  void Resolver(Posicion pendiente, Posicion tope) const;
  void Extender(Posicion tope) const;
  void Asegurar(Posicion linea, Posicion pos) const;
  std::size_t BloqueAnterior(std::size_t bloque, Posicion pos) const;

  bool Configurado() const { return partidor_.Ancho() > 0; }
  bool Pendiente(Posicion pos) const;
  bool Exacto(Posicion pos) const;
  Posicion Base(Posicion pos) const;
  bool FilaVaciaFinal() const;
  std::int64_t Estimar(Posicion bytes) const;

  const Bytes* texto_;
  const Lineas* lineas_;
  Medidas medidas_;
  Partidor partidor_;
  // What is known, also by answering questions: blocks from the start of the text on, as far as
  // it was wrapped; and the block starts where the chain of rows is broken: the rows before do
  // not lead to the rows behind. A broken block's count is an estimate.
  mutable Sumas sumas_;
  mutable std::vector<Posicion> pendientes_;
};
