#include "text_box/barra_larga.h"

#include <algorithm>

#include <QSignalBlocker>

namespace {
constexpr std::int64_t MaximoBarra = 1 << 30;
}

void BarraLarga::Poner(std::int64_t valor, std::int64_t maximo, std::int64_t pagina, int paso) {
  maximo_ = maximo;
  escala_ = maximo / MaximoBarra + 1;
  const QSignalBlocker silencio(barra_);
  barra_->setPageStep(static_cast<int>(std::max<std::int64_t>(1, pagina / escala_)));
  barra_->setSingleStep(paso);
  // Rounded up: the bar is at its end only when the text is.
  barra_->setRange(0, static_cast<int>((maximo + escala_ - 1) / escala_));
  barra_->setValue(static_cast<int>(valor == maximo ? barra_->maximum() : valor / escala_));
}

std::int64_t BarraLarga::Valor() const {
  return std::min(maximo_, barra_->value() * escala_);
}
