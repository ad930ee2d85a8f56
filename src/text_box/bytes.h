// The text: a list of pieces of memory that is written once.
//
// What is loaded lies in one piece. What is put in is written behind what was put in before, and
// becomes a piece of its own, or part of the one it follows. A change cuts pieces and joins them:
// nowhere is a byte moved, whatever the size of the text and of the change. What is taken out stays
// in memory as long as undo or the clipboard holds it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "text_box/almacen.h"

using Posicion = std::int64_t;  // an offset in bytes from the start of the text

// What lies between two positions of a text, the first one not behind the other.
struct Rango {
  Posicion desde = 0;
  Posicion hasta = 0;
};

// One replacement: `quitados` bytes from `pos` on gave way to `puestos` new ones.
struct Cambio {
  Posicion pos = 0;
  Posicion quitados = 0;
  Posicion puestos = 0;
};

// Bytes that stay where they are and as they are while one of these refers to them. Never empty.
struct Pieza {
  std::string_view bytes;
  std::shared_ptr<const Almacen> almacen;
};

class Bytes {
 public:
  Posicion Tamano() const { return inicios_.back(); }
  unsigned char En(Posicion pos) const { return static_cast<unsigned char>(*Donde(pos).datos); }

  // The piece that holds `pos`, the last one at the end of the text: where it starts and ends in
  // the text, and where `pos` lies in memory. Valid until the next change.
  struct PiezaSituada {
    Posicion inicio = 0;
    Posicion fin = 0;
    const char* datos = nullptr;
  };
  PiezaSituada Donde(Posicion pos) const;

  // The bytes of [desde, hasta) where they lie, in their order. Valid until the next change.
  std::vector<std::string_view> Tramos(Posicion desde, Posicion hasta) const;
  std::vector<std::string_view> Tramos() const { return Tramos(0, Tamano()); }
  std::vector<Pieza> Piezas(Posicion desde, Posicion hasta) const;
  void Copiar(Posicion desde, Posicion hasta, char* destino) const;

  // Replaces the `quitados` bytes from `pos` on; gives what was there.
  std::vector<Pieza> Sustituir(Posicion pos, Posicion quitados, std::vector<Pieza> nuevos);
  // The same with `nuevos`, which may lie in this text itself. False when the system has no memory
  // left: nothing has changed then.
  [[nodiscard]] bool Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos);
  // A copy of `bytes` to be put in; no pieces when there are none, nothing when memory is out.
  [[nodiscard]] std::optional<std::vector<Pieza>> Guardar(std::string_view bytes);

  // Loading: room for `n` more bytes at the end (empty span: no memory), then how many were
  // filled.
  std::span<char> ReservarFinal(std::size_t n);
  void ConfirmarFinal(std::size_t n);

 private:
  std::size_t Indice(Posicion pos) const;
  std::size_t Partir(Posicion pos);
  void Contar(std::size_t desde);

  std::vector<Pieza> piezas_;
  std::vector<Posicion> inicios_{0};  // of every piece, and the end of the text
  std::shared_ptr<Almacen> carga_;    // what is loaded is written here,
  std::shared_ptr<Almacen> apuntes_;  // and what is put in here
};

// Puts `otro` behind the last of `piezas`: where it goes on in memory, the two become one.
void Anadir(std::vector<Pieza>& piezas, Pieza otro);
