#include "text_box/retrato.h"

#include <algorithm>
#include <functional>
#include <string_view>

void Retrato::Agregar(const FilaRetratada& fila, std::span<const char> bytes) {
  const std::string_view texto(bytes.data(), bytes.size());
  filas_.push_back(
      {fila, std::ssize(bytes_), std::ssize(bytes), std::hash<std::string_view>()(texto)});
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  compone_ = compone_ || fila.compuesta;
}

bool Retrato::EsIgual(std::size_t fila, const Retrato& otro, std::size_t suya) const {
  static const Fila vacia{{}, 0, 0, std::hash<std::string_view>()({})};
  const Fila& a = fila < filas_.size() ? filas_[fila] : vacia;
  const Fila& b = suya < otro.filas_.size() ? otro.filas_[suya] : vacia;
  return a.huella == b.huella && a.datos == b.datos && a.cuantos == b.cuantos &&
         std::equal(bytes_.begin() + a.inicio, bytes_.begin() + a.inicio + a.cuantos,
                    otro.bytes_.begin() + b.inicio);
}

Retrato::Diferencia Retrato::Desde(const Retrato& antes, std::size_t minimo) const {
  std::vector<bool> quietas(std::max(filas_.size(), antes.filas_.size()));
  for (std::size_t i = 0; i < quietas.size(); ++i) quietas[i] = EsIgual(i, antes, i);
  Diferencia diferencia;
  if (std::cmp_greater_equal(std::ranges::count(quietas, false), minimo)) {
    BuscarMovidas(antes, quietas, minimo, diferencia);
  }
  for (std::size_t i = 0; i < quietas.size(); ++i) {
    const bool movida = i >= diferencia.primera && i < diferencia.primera + diferencia.movidas;
    if (!quietas[i] && !movida) diferencia.otras.push_back(i);
  }
  return diferencia;
}

// The stretch that spares most. Of no use are rows that stand as they were.
void Retrato::BuscarMovidas(const Retrato& antes, const std::vector<bool>& quietas,
                            std::size_t minimo, Diferencia& diferencia) const {
  const std::ptrdiff_t filas = std::ssize(quietas);
  std::size_t mejor = minimo - 1;
  for (std::ptrdiff_t pasos = 1 - filas; pasos < filas; ++pasos) {
    std::size_t ahorradas = 0;
    std::ptrdiff_t primera = 0;
    const std::ptrdiff_t hasta = std::min(filas, filas + pasos);
    for (std::ptrdiff_t i = std::max<std::ptrdiff_t>(0, pasos); i < hasta; ++i) {
      const auto fila = static_cast<std::size_t>(i);
      if (!EsIgual(fila, antes, static_cast<std::size_t>(i - pasos))) {
        ahorradas = 0;
        continue;
      }
      if (ahorradas == 0) primera = i;
      if (!quietas[fila]) ++ahorradas;
      if (ahorradas <= mejor) continue;
      mejor = ahorradas;
      diferencia.primera = static_cast<std::size_t>(primera);
      diferencia.movidas = static_cast<std::size_t>(i - primera + 1);
      diferencia.pasos = pasos;
    }
  }
}
