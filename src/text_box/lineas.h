// The lines of a text. A line ends at LF, at CR LF, or at a CR that no LF follows.
//
// Nothing is kept per line: the text is cut anywhere into blocks of about 4 KB, each with the
// number of line ends in it (a CR LF counts at its LF); the place within a block is found by
// scanning it. A text that ends with a line end has one more, empty line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text_box/bytes.h"
#include "text_box/extracto.h"
#include "text_box/sumas.h"

// Counts a text's line ends as it comes in, piece after piece, while it is in the cache.
class ContadorLineas {
 public:
  explicit ContadorLineas(int bloque = 4096) : bloque_(bloque) {}
  void Agregar(std::string_view bytes);
  Sumas Terminar();

 private:
  void AgregarBloque(std::string_view bytes, int siguiente);

  Sumas sumas_;
  int bloque_;
  bool retorno_pendiente_ = false;  // the last byte is a CR: is it followed by LF?
};

class Lineas {
 public:
  // `bloque`: bytes of a block; split above twice that, joined below a quarter.
  explicit Lineas(const Bytes& texto, int bloque = 4096);

  void Recontar();            // the text is another
  void Adoptar(Sumas sumas);  // the same, already counted
  // After the text has changed; `puesto`: what came in, if its lines may be known.
  void Reemplazado(const Cambio& cambio, const Extracto& puesto = {});
  // Gives a large extract, taken from `desde` on, what is known of its lines.
  void Extraer(Posicion desde, Extracto& extracto) const;

  std::int64_t Total() const { return sumas_.Cuenta() + 1; }
  std::int64_t Linea(Posicion pos) const;     // number of the line that holds `pos`, from 0
  Posicion Inicio(std::int64_t linea) const;  // 0 <= linea < Total()

  // The start of the line that holds `pos`, and the end of its text, before its line end.
  Posicion InicioDe(Posicion pos) const;
  Posicion FinDe(Posicion pos) const;
  Posicion Siguiente(Posicion pos) const;  // start of the next line, -1 at the last
  Posicion Anterior(Posicion pos) const;   // start of the line before, -1 at the first

  // How the last change cut the blocks anew, for who keeps something of its own per block.
  struct Empalme {
    std::size_t desde = 0;
    std::size_t viejos = 0;
    std::size_t nuevos = 0;
  };
  const Empalme& UltimoEmpalme() const { return empalme_; }
  const Sumas& Bloques() const { return sumas_; }

 private:
  const Bytes* texto_;
  int bloque_;
  Sumas sumas_;
  Empalme empalme_;
};
