// x across long lines: what a block of the lines does to the pen, kept to be folded over blocks.
//
// Without a tab a block adds a sum. With one, the pen goes on to the tab's stop, and what follows
// no longer depends on where it came from. Functions of that form stay so when put one after the
// other: groups of 64 blocks keep theirs too. Only blocks within one line are ever asked for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "text_box/bytes.h"
#include "text_box/lineas.h"
#include "text_box/pluma.h"

class Curvas {
 public:
  // The start of a block, with the x that the line has reached there.
  struct Puesto {
    std::size_t bloque = 0;
    Posicion pos = 0;
    Punto x = 0;
  };

  Curvas(const Bytes& texto, const Lineas& lineas) : texto_(&texto), lineas_(&lineas) {}

  void Reiniciar(const Avances& avances);
  void Empalmar(const Lineas::Empalme& empalme);
  void Olvidar(std::size_t desde, std::size_t hasta);  // blocks whose neighbours have changed
  const Pluma& LaPluma() const { return pluma_; }

  // From one block to the next, or over a whole group where that does not lead beyond `ultimo`.
  Puesto Pasar(const Puesto& puesto, std::size_t ultimo) const;
  Puesto PasarBloque(const Puesto& puesto) const;
  // Makes Pasar quick from a block on, which starts at `pos`, while blocks end before `fin`. Goes
  // through `bloques` blocks at most, and takes them off; false when those were not enough.
  bool Preparar(std::size_t bloque, Posicion pos, Posicion fin, int& bloques) const;

 private:
  // x becomes x + antes, and with a tab goes on to the next stop, + despues.
  struct Curva {
    Punto antes = 0;
    Punto despues = SinTab;
  };
  struct Guardada {  // the same of a block, whose bytes are few
    std::uint32_t antes = SinCalcular;
    std::uint32_t despues = 0;
  };
  static constexpr Punto SinTab = -1;
  static constexpr std::uint32_t SinCalcular = UINT32_MAX;

  Curva DeBloque(std::size_t bloque, Posicion pos) const;
  const Curva& DeGrupo(std::size_t grupo, Posicion pos) const;
  Curva Calcular(Posicion desde, Posicion hasta) const;
  Punto Aplicar(const Curva& curva, Punto x) const;
  Curva Componer(const Curva& primera, const Curva& segunda) const;
  Posicion Largo(std::size_t bloque) const { return lineas_->Bloques().En(bloque).bytes; }

  const Bytes* texto_;
  const Lineas* lineas_;
  Pluma pluma_;
  // Worked out when they are needed first; a group's `antes` is -1 until then.
  mutable std::vector<Guardada> bloques_;
  mutable std::vector<Curva> grupos_;
};

// Puts `nuevos` elements of `valor` in the place of `viejos` ones, as the blocks were.
template <typename T>
void EmpalmarVector(std::vector<T>& vector, const Lineas::Empalme& empalme, const T& valor) {
  const auto sitio = vector.begin() + static_cast<std::ptrdiff_t>(empalme.desde);
  const std::size_t comunes = empalme.viejos < empalme.nuevos ? empalme.viejos : empalme.nuevos;
  const auto resto = std::fill_n(sitio, comunes, valor);
  if (empalme.viejos > comunes) {
    vector.erase(resto, resto + static_cast<std::ptrdiff_t>(empalme.viejos - comunes));
  } else {
    vector.insert(resto, empalme.nuevos - comunes, valor);
  }
}
