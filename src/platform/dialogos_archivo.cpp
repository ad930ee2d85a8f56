#include "platform/dialogos_archivo.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSplitter>
#include <QToolButton>

#include "platform/dialogo.h"
#include "platform/ventana.h"

namespace {

constexpr QSize TamanoDialogo(640, 440);  // pixels
constexpr int AnchoLugares = 140;         // of the list of places, so that no name is cut

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
  QFileDialog dialogo(nullptr, peticion.titulo, CarpetaInicial(peticion.carpeta));
  dialogo.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite |
                     QFileDialog::HideNameFilterDetails);
  dialogo.setAcceptMode(modo);
  dialogo.setFileMode(QFileDialog::AnyFile);
  dialogo.setViewMode(QFileDialog::List);
  dialogo.setNameFilters(Filtros(peticion.filtro));
  dialogo.resize(TamanoDialogo);
  if (auto* partes = dialogo.findChild<QSplitter*>(QStringLiteral("splitter"))) {
    partes->setSizes({AnchoLugares, TamanoDialogo.width() - AnchoLugares});
  }
  // The toolkit's Spanish lacks the first letter of what a screen reader says here.
  if (auto* arriba = dialogo.findChild<QToolButton*>(QStringLiteral("toParentButton"))) {
    arriba->setAccessibleDescription(QStringLiteral("Ir al directorio superior"));
  }
  if (!Ejecutar(activacion, duena, dialogo) || dialogo.selectedFiles().isEmpty()) {
    return {};
  }
  return QDir::cleanPath(dialogo.selectedFiles().constFirst());
}

}  // namespace

QString DialogosArchivoReales::Abrir(Ventana& duena, const PeticionArchivo& peticion) {
  return Preguntar(activacion_, duena, peticion, QFileDialog::AcceptOpen);
}

QString DialogosArchivoReales::Guardar(Ventana& duena, const PeticionArchivo& peticion) {
  return Preguntar(activacion_, duena, peticion, QFileDialog::AcceptSave);
}
