#include "platform/mensajes.h"

#include <QGridLayout>
#include <QMessageBox>

#include "platform/dialogo.h"
#include "platform/ventana.h"

namespace {

constexpr int AnchoMinimo = 300;  // pixels: the titles in capitals are longer than some messages

void Preparar(QMessageBox& caja) {
  caja.setTextFormat(Qt::PlainText);
  if (auto* rejilla = qobject_cast<QGridLayout*>(caja.layout())) {
    rejilla->addItem(new QSpacerItem(AnchoMinimo, 0), rejilla->rowCount(), 0, 1,
                     rejilla->columnCount());
  }
}

}  // namespace

void MensajesReales::Critico(Ventana& duena, const QString& texto, const QString& titulo) {
  QMessageBox caja(QMessageBox::Critical, titulo, texto, QMessageBox::Ok);
  Preparar(caja);
  Ejecutar(activacion_, duena, caja);
}

bool MensajesReales::Preguntar(Ventana& duena, const QString& texto, const QString& titulo) {
  QMessageBox caja(QMessageBox::Warning, titulo, texto, QMessageBox::Yes | QMessageBox::No);
  Preparar(caja);
  caja.setDefaultButton(QMessageBox::No);
  caja.setEscapeButton(QMessageBox::No);
  Ejecutar(activacion_, duena, caja);
  return caja.clickedButton() == caja.button(QMessageBox::Yes);
}
