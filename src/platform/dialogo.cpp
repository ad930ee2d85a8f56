#include "platform/dialogo.h"

#include <QDialog>

#include "platform/ventana.h"

// Over a window above all others a plain dialog would open below it.
void PonerDelante(Ventana& duena, QDialog& dialogo) {
  dialogo.setParent(&duena, dialogo.windowFlags());
  dialogo.setWindowFlag(Qt::WindowStaysOnTopHint,
                        duena.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

bool Ejecutar(Activacion& activacion, Ventana& duena, QDialog& dialogo) {
  const Activacion::DialogoAbierto abierto(activacion, duena);
  PonerDelante(duena, dialogo);
  const bool aceptado = dialogo.exec() == QDialog::Accepted;
  dialogo.setParent(nullptr);  // it belongs to the caller
  return aceptado;
}
