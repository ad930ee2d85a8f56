#include "platform/dialogo.h"

#include <QDialog>

#include "platform/ventana.h"

bool Ejecutar(Activacion& activacion, Ventana& duena, QDialog& dialogo) {
  const Activacion::DialogoAbierto abierto(activacion, duena);
  dialogo.setParent(&duena, dialogo.windowFlags());
  // Over a window above all others a plain dialog would open below it.
  dialogo.setWindowFlag(Qt::WindowStaysOnTopHint,
                        duena.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  const bool aceptado = dialogo.exec() == QDialog::Accepted;
  dialogo.setParent(nullptr);  // it belongs to the caller
  return aceptado;
}
