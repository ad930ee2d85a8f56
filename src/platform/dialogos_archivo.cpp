#include "platform/dialogos_archivo.h"

#include <QDir>
#include <QFileInfo>

#include "platform/dialogo.h"
#include "platform/dialogo_archivo.h"
#include "platform/ventana.h"

namespace {

// "Documentos|*.txt|Todos|*" as the toolkit writes it: "Documentos (*.txt)", "Todos (*)".
QStringList Filtros(const QString& filtro) {
  const QStringList partes = filtro.split(u'|');
  QStringList filtros;
  for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
    filtros << QStringLiteral("%1 (%2)").arg(partes[i], partes[i + 1]);
  }
  return filtros;
}

QString CarpetaInicial(const QString& carpeta) {
  return !carpeta.isEmpty() && QFileInfo(carpeta).isDir() ? carpeta : QDir::homePath();
}

QString Preguntar(Activacion& activacion, Ventana& duena, const PeticionArchivo& peticion,
                  QFileDialog::AcceptMode modo) {
  DialogoArchivo dialogo(peticion.titulo, CarpetaInicial(peticion.carpeta),
                         Filtros(peticion.filtro), modo);
  return Ejecutar(activacion, duena, dialogo) ? dialogo.Elegido() : QString();
}

}  // namespace

QString DialogosArchivoReales::Abrir(Ventana& duena, const PeticionArchivo& peticion) {
  return Preguntar(activacion_, duena, peticion, QFileDialog::AcceptOpen);
}

QString DialogosArchivoReales::Guardar(Ventana& duena, const PeticionArchivo& peticion) {
  return Preguntar(activacion_, duena, peticion, QFileDialog::AcceptSave);
}
