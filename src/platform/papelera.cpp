#include "platform/papelera.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <string>
#include <type_traits>
#include <unistd.h>

#include <QLibrary>

#include "shared/rutas.h"

#undef signals  // a name in the headers of GIO
#include <gio/gio.h>

namespace {

// What is used of GIO. It is loaded with the first file that is sent: linked, it and the libraries
// that it brings would hold up every start.
struct Gio {
  Gio() {
    QLibrary biblioteca(QStringLiteral("gio-2.0"), 0);
    const auto hallar = [&](auto& funcion, const char* nombre) {
      funcion =
          reinterpret_cast<std::remove_reference_t<decltype(funcion)>>(biblioteca.resolve(nombre));
      cargada = cargada && funcion != nullptr;
    };
    hallar(vfs_get_local, "g_vfs_get_local");
    hallar(vfs_get_file_for_path, "g_vfs_get_file_for_path");
    hallar(file_trash, "g_file_trash");
    hallar(file_query_info, "g_file_query_info");
    hallar(file_info_get_attribute_boolean, "g_file_info_get_attribute_boolean");
    hallar(object_unref, "g_object_unref");
  }

  bool cargada = true;
  decltype(&g_vfs_get_local) vfs_get_local = nullptr;
  decltype(&g_vfs_get_file_for_path) vfs_get_file_for_path = nullptr;
  decltype(&g_file_trash) file_trash = nullptr;
  decltype(&g_file_query_info) file_query_info = nullptr;
  decltype(&g_file_info_get_attribute_boolean) file_info_get_attribute_boolean = nullptr;
  decltype(&g_object_unref) object_unref = nullptr;
};

template <typename T>
using Objeto = std::unique_ptr<T, decltype(&g_object_unref)>;

// Of the plain file system: asking the desktop's own would start its services.
Objeto<GFile> ArchivoEn(const Gio& gio, const QString& ruta) {
  const QByteArray en_sistema = RutaDelSistema(ruta);
  return {gio.vfs_get_file_for_path(gio.vfs_get_local(), en_sistema), gio.object_unref};
}

bool PuedeEliminarse(const Gio& gio, GFile* archivo) {
  const Objeto<GFileInfo> datos(
      gio.file_query_info(archivo, G_FILE_ATTRIBUTE_ACCESS_CAN_DELETE,
                          G_FILE_QUERY_INFO_NOFOLLOW_SYMLINKS, nullptr, nullptr),
      gio.object_unref);
  return datos != nullptr &&
         gio.file_info_get_attribute_boolean(datos.get(), G_FILE_ATTRIBUTE_ACCESS_CAN_DELETE) != 0;
}

// Is there room for the name of its description in the bin, which lies on the same disk? It is the
// file's with a number where the bin holds one of that name, and with an end; and it is written
// under a longer one first. When that fails the file is sent all the same, and cannot be restored.
bool CabeEnPapelera(const QString& ruta) {
  constexpr qsizetype MasLargo = std::char_traits<char>::length(".9999.trashinfo.XXXXXX");
  const QByteArray en_sistema = RutaDelSistema(ruta);
  const qsizetype barra = en_sistema.lastIndexOf('/') + 1;
  const long maximo = ::pathconf(en_sistema.left(barra).constData(), _PC_NAME_MAX);
  // Where names may have more bytes their length is counted in letters.
  return en_sistema.size() - barra + MasLargo <= std::clamp<long>(maximo, 0, NAME_MAX);
}

}  // namespace

Envio PapeleraReal::Enviar(const QString& ruta) {
  static const Gio gio;
  if (!gio.cargada) return Envio::Fallo;
  const Objeto<GFile> archivo = ArchivoEn(gio, ruta);
  if (CabeEnPapelera(ruta) && gio.file_trash(archivo.get(), nullptr, nullptr) != 0) {
    return Envio::Enviada;
  }
  return PuedeEliminarse(gio, archivo.get()) ? Envio::SinPapelera : Envio::Fallo;
}

void PapeleraReal::Eliminar(const QString& ruta) {
  (void)::unlink(RutaDelSistema(ruta).constData());
}
