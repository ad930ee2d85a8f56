#include "platform/dialogos_aspecto.h"

#include "platform/dialogo.h"
#include "platform/dialogo_color.h"
#include "platform/dialogo_fuente.h"
#include "platform/ventana.h"

std::optional<EleccionFuente> DialogosAspectoReales::PedirFuente(Ventana& duena,
                                                                 const EleccionFuente& actual) {
  DialogoFuente dialogo(actual);
  if (!Ejecutar(activacion_, duena, dialogo)) return std::nullopt;
  return dialogo.Elegida();
}

std::optional<QColor> DialogosAspectoReales::PedirColor(Ventana& duena, const QColor& actual) {
  DialogoColor dialogo(QStringLiteral("Color del fondo"), actual);
  if (!Ejecutar(activacion_, duena, dialogo)) return std::nullopt;
  return dialogo.selectedColor();
}
