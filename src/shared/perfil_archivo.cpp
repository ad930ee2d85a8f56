#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <thread>

#include <QDir>
#include <QFileInfo>

#include "shared/archivo.h"
#include "shared/descriptor.h"
#include "shared/pagina_codigos.h"
#include "shared/perfil.h"
#include "shared/perfil_privado.h"

namespace {

// A program that was stopped while it held the lock must not stop this one, too.
constexpr std::chrono::milliseconds Paciencia{2000};
constexpr std::chrono::milliseconds EntreIntentos{2};

// The real file's folder: programs that reach one file by different links share its lock.
QString CarpetaReal(const QString& ruta) {
  const QString real = QFileInfo(ruta).canonicalFilePath();
  return QFileInfo(real.isEmpty() ? ruta : real).absolutePath();
}

// Gives back the open folder that holds the lock until it is closed.
Descriptor BloquearCarpeta(const QString& carpeta) {
  auto abierta = Abrir(AT_FDCWD, RutaDelSistema(carpeta).constData(), O_RDONLY | O_DIRECTORY);
  if (!abierta.Bien()) return {};
  const auto limite = std::chrono::steady_clock::now() + Paciencia;
  while (::flock(abierta.Valor().Numero(), LOCK_EX | LOCK_NB) < 0) {
    const bool ajeno = errno == EWOULDBLOCK || errno == EINTR;
    if (!ajeno || std::chrono::steady_clock::now() > limite) break;
    std::this_thread::sleep_for(EntreIntentos);
  }
  return std::move(abierta.Valor());
}

}  // namespace

QByteArray AccesoPerfilArchivo::LeerCadena(QStringView seccion, QStringView clave,
                                           const QByteArray& defecto, const QString& ruta) {
  const auto contenido = LeerArchivo(ruta);
  if (!contenido.Bien()) return defecto;
  return PerfilPrivado::Buscar(contenido.Valor(), PaginaCodigos::ABytes(seccion),
                               PaginaCodigos::ABytes(clave))
      .value_or(defecto);
}

void AccesoPerfilArchivo::EscribirCadena(QStringView seccion, QStringView clave,
                                         const QByteArray& valor, const QString& ruta) {
  const Ajuste uno{seccion.toString(), clave.toString(), valor};
  EscribirCadenas({&uno, 1}, ruta);
}

void AccesoPerfilArchivo::EscribirCadenas(std::span<const Ajuste> ajustes, const QString& ruta) {
  const QString carpeta = CarpetaReal(ruta);
  QDir().mkpath(carpeta);
  const Descriptor cerrojo = BloquearCarpeta(carpeta);
  const auto antes = LeerArchivo(ruta);
  if (!antes.Bien() && antes.Fallo().Codigo() != ENOENT) return;
  QByteArray despues = antes.Valor();
  for (const Ajuste& uno : ajustes) {
    despues = PerfilPrivado::Poner(despues, PaginaCodigos::ABytes(uno.seccion),
                                   PaginaCodigos::ABytes(uno.clave), uno.valor);
  }
  if (antes.Bien() && despues == antes.Valor()) return;
  const std::string_view tramo(despues.constData(), static_cast<std::size_t>(despues.size()));
  (void)CrearOReemplazarArchivo(ruta, std::span(&tramo, 1), Duracion::SinSincronizar);
}
