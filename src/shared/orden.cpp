#include "shared/orden.h"

#include <sys/stat.h>

#include <QLocale>

#include "shared/descriptor.h"
#include "shared/rutas.h"

namespace {

bool LeerEstado(const QString& ruta, struct stat& estado) {
  return ::stat(RutaDelSistema(ruta).constData(), &estado) == 0;
}

}  // namespace

OrdenNombres::OrdenNombres() : colador_(QLocale(QLocale::Spanish, QLocale::Spain)) {
  colador_.setCaseSensitivity(Qt::CaseInsensitive);
}

int OrdenNombres::Comparar(const QString& uno, const QString& otro) const {
  const int por_idioma = colador_.compare(uno, otro);
  return por_idioma != 0 ? por_idioma : QString::compare(uno, otro, Qt::CaseSensitive);
}

QString AMayusculas(const QString& texto) {
  return texto.toUpper();
}

bool MismoArchivo(const QString& una, const QString& otra) {
  if (una == otra) return true;
  if (AMayusculas(una) != AMayusculas(otra)) return false;
  struct stat estado_una {};
  struct stat estado_otra {};
  const bool existen = LeerEstado(una, estado_una) && LeerEstado(otra, estado_otra);
  return !existen || MismoNodo(estado_una, estado_otra);
}
