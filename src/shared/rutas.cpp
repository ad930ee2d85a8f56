#include "shared/rutas.h"

#include <QFile>

#include "shared/constantes.h"

QString ConBarra(const QString& carpeta) {
  return carpeta.endsWith(SeparadorRuta) ? carpeta : carpeta + SeparadorRuta;
}

QByteArray RutaDelSistema(const QString& ruta) {
  if (ruta.contains(QChar(u'\0'))) return {};
  return QFile::encodeName(ruta);
}
