#include "platform/dialogos_aspecto.h"

#include <QColorDialog>

#include "platform/dialogo.h"
#include "platform/dialogo_fuente.h"
#include "platform/ventana.h"

std::optional<EleccionFuente> DialogosAspectoReales::PedirFuente(Ventana& duena,
                                                                 const EleccionFuente& actual) {
  DialogoFuente dialogo(actual);
  if (!Ejecutar(activacion_, duena, dialogo)) {
    return std::nullopt;
  }
  return dialogo.Elegida();
}

std::optional<QColor> DialogosAspectoReales::PedirColor(Ventana& duena, const QColor& actual) {
  QColorDialog dialogo(actual);
  dialogo.setOption(QColorDialog::DontUseNativeDialog);
  dialogo.setWindowTitle(QStringLiteral("Color del fondo"));
  if (!Ejecutar(activacion_, duena, dialogo)) {
    return std::nullopt;
  }
  return dialogo.selectedColor();
}
