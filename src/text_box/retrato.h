// What a view has drawn, row by row, in a form that can be compared: two of them tell what of the
// screen has to be drawn anew, and what only moves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "text_box/renglones.h"

// What a row's picture depends on beside its bytes in sight, font and colours. Pixels count from
// the viewport's left edge. The default is an empty row.
struct FilaRetratada {
  Punto x = 0;                    // of the first byte in sight
  Punto izquierda = 0;            // from the row's start to the viewport
  std::size_t elegido_desde = 0;  // of the bytes in sight
  std::size_t elegido_hasta = 0;
  bool fin_elegido = false;   // the line end behind them, too
  std::optional<int> cursor;  // the caret, where it is lit
  std::optional<int> soltar;  // where dragged text would land
  // Text under composition, by its number, and where it begins.
  std::optional<std::pair<int, int>> compuesta;

  bool operator==(const FilaRetratada&) const = default;
};

class Retrato {
 public:
  // The row below those there are, with its bytes in sight, which are copied.
  void Agregar(const FilaRetratada& fila, std::span<const char> bytes);
  bool Compone() const { return compone_; }  // does a row show text under composition?

  // How `antes` became this one: the stretch of rows, from `primera` on, that stood `pasos` rows
  // further up (negative: down), and the rows that are neither of it nor as they were. Below the
  // last row of either there are empty ones.
  struct Diferencia {
    std::size_t primera = 0;
    std::size_t movidas = 0;
    std::ptrdiff_t pasos = 0;
    std::vector<std::size_t> otras;
  };
  // A stretch that spares less than `minimo` rows is none.
  Diferencia Desde(const Retrato& antes, std::size_t minimo) const;

 private:
  struct Fila {
    FilaRetratada datos;
    std::vector<char>::difference_type inicio = 0;  // in bytes_
    std::vector<char>::difference_type cuantos = 0;
    std::size_t huella = 0;  // equal for equal bytes
  };
  bool EsIgual(std::size_t fila, const Retrato& otro, std::size_t suya) const;
  void BuscarMovidas(const Retrato& antes, const std::vector<bool>& quietas, std::size_t minimo,
                     Diferencia& diferencia) const;

  std::vector<Fila> filas_;
  std::vector<char> bytes_;
  bool compone_ = false;
};
