// The dialogs that ask for a font and for a colour.
#pragma once

#include <optional>

#include <QColor>

#include "platform/fuentes.h"

class Activacion;
class Ventana;

struct EleccionFuente {
  FuenteTexto fuente;
  QColor color;

  bool operator==(const EleccionFuente&) const = default;
};

class DialogosAspecto {
 public:
  virtual ~DialogosAspecto() = default;
  // Both start from what they are given; none when the user cancelled. What the user did not
  // touch comes back as it was given, also a family that is not installed and a broken size.
  virtual std::optional<EleccionFuente> PedirFuente(Ventana& duena,
                                                    const EleccionFuente& actual) = 0;
  virtual std::optional<QColor> PedirColor(Ventana& duena, const QColor& actual) = 0;
};

class DialogosAspectoReales : public DialogosAspecto {
 public:
  explicit DialogosAspectoReales(Activacion& activacion) : activacion_(activacion) {}
  std::optional<EleccionFuente> PedirFuente(Ventana& duena, const EleccionFuente& actual) override;
  std::optional<QColor> PedirColor(Ventana& duena, const QColor& actual) override;

 private:
  Activacion& activacion_;
};
