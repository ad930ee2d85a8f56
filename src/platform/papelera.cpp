#include "platform/papelera.h"

#include <memory>

#include <QFile>

#undef signals  // a name in the headers of GIO
#include <gio/gio.h>

namespace {

struct Soltar {
  void operator()(gpointer objeto) const { g_object_unref(objeto); }
};
template <typename T>
using Objeto = std::unique_ptr<T, Soltar>;

// Of the plain file system: asking the desktop's own would start its services.
Objeto<GFile> ArchivoEn(const QString& ruta) {
  return Objeto<GFile>(g_vfs_get_file_for_path(g_vfs_get_local(), QFile::encodeName(ruta)));
}

bool PuedeEliminarse(GFile* archivo) {
  const Objeto<GFileInfo> datos(g_file_query_info(archivo, G_FILE_ATTRIBUTE_ACCESS_CAN_DELETE,
                                                  G_FILE_QUERY_INFO_NOFOLLOW_SYMLINKS, nullptr,
                                                  nullptr));
  return datos != nullptr &&
         g_file_info_get_attribute_boolean(datos.get(), G_FILE_ATTRIBUTE_ACCESS_CAN_DELETE) != 0;
}

}  // namespace

Envio PapeleraReal::Enviar(const QString& ruta) {
  const Objeto<GFile> archivo = ArchivoEn(ruta);
  if (g_file_trash(archivo.get(), nullptr, nullptr) != 0) {
    return Envio::Enviada;
  }
  return PuedeEliminarse(archivo.get()) ? Envio::SinPapelera : Envio::Fallo;
}

void PapeleraReal::Eliminar(const QString& ruta) {
  QFile::remove(ruta);
}
