#include "platform/abridor.h"

#include <QDesktopServices>
#include <QUrl>

void AbridorReal::AbrirArchivo(const QString& ruta) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(ruta));
}

void AbridorReal::AbrirDireccion(const QString& direccion) {
  QDesktopServices::openUrl(QUrl(direccion));
}
