#include "platform/mensajes.h"

#include <QMessageBox>

#include "platform/dialogo.h"
#include "platform/ventana.h"

void MensajesReales::Critico(Ventana& duena, const QString& texto, const QString& titulo) {
  QMessageBox caja(QMessageBox::Critical, titulo, texto, QMessageBox::Ok);
  caja.setTextFormat(Qt::PlainText);
  Ejecutar(activacion_, duena, caja);
}

bool MensajesReales::Preguntar(Ventana& duena, const QString& texto, const QString& titulo) {
  QMessageBox caja(QMessageBox::Warning, titulo, texto, QMessageBox::Yes | QMessageBox::No);
  caja.setTextFormat(Qt::PlainText);
  caja.setDefaultButton(QMessageBox::No);
  caja.setEscapeButton(QMessageBox::No);
  Ejecutar(activacion_, duena, caja);
  return caja.clickedButton() == caja.button(QMessageBox::Yes);
}
