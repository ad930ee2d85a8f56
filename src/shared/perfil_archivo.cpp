#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <thread>
#include <utility>

#include <QDir>
#include <QFileInfo>

#include "shared/archivo.h"
#include "shared/descriptor.h"
#include "shared/pagina_codigos.h"
#include "shared/perfil.h"
#include "shared/perfil_privado.h"
#include "shared/reemplazo.h"
#include "shared/rutas.h"

namespace {

// A program that was stopped while it held the lock must not stop this one, too; and not again at
// every key.
constexpr std::chrono::milliseconds Paciencia{2000};
constexpr std::chrono::milliseconds EntreIntentos{5};

// The real file's folder: programs that reach one file by different links share its lock.
QString CarpetaReal(const QString& ruta) {
  const QString real = QFileInfo(ruta).canonicalFilePath();
  return QFileInfo(real.isEmpty() ? ruta : real).absolutePath();
}

// Another program came between the reading and the writing: what it wrote is to be read first.
bool OtroSeAdelanto(Resultado escrito) {
  return escrito.Codigo() == EEXIST || escrito.Codigo() == ENOENT || escrito.Codigo() == ESTALE;
}

Resultado Cambiar(const QString& ruta, std::span<const Ajuste> ajustes, Duracion duracion) {
  const auto antes = LeerArchivo(ruta);
  if (!antes.Bien() && antes.Fallo().Codigo() != ENOENT) return antes.Fallo();
  QByteArray despues = antes.Valor();
  for (const Ajuste& uno : ajustes) {
    despues = PerfilPrivado::Poner(despues, PaginaCodigos::ABytes(uno.seccion),
                                   PaginaCodigos::ABytes(uno.clave), uno.valor);
  }
  if (antes.Bien() && despues == antes.Valor()) return {};
  const std::string_view tramo(despues.constData(), static_cast<std::size_t>(despues.size()));
  const auto escribir = antes.Bien() ? ReemplazarExistente : CrearNuevo;
  return escribir(RutaDelSistema(ruta).constData(), {std::span(&tramo, 1), duracion});
}

}  // namespace

AccesoPerfilArchivo::AccesoPerfilArchivo(const QString& por_crear, Esperar esperar)
    : por_crear_(QDir::cleanPath(por_crear)), esperar_(std::move(esperar)) {
  if (!esperar_) {
    esperar_ = [](std::chrono::milliseconds un_rato) { std::this_thread::sleep_for(un_rato); };
  }
}

// Gives back the open folder that holds the lock until it is closed.
Descriptor AccesoPerfilArchivo::BloquearCarpeta(const QString& carpeta) {
  auto abierta =
      AbrirDescriptor(AT_FDCWD, RutaDelSistema(carpeta).constData(), O_RDONLY | O_DIRECTORY);
  if (!abierta.Bien()) return {};
  auto paciencia = atascado_ ? std::chrono::milliseconds() : Paciencia;
  while (::flock(abierta.Valor().Numero(), LOCK_EX | LOCK_NB) < 0) {
    const bool ajeno = errno == EWOULDBLOCK || errno == EINTR;
    atascado_ = ajeno && paciencia.count() <= 0;
    if (atascado_ || !ajeno) return std::move(abierta.Valor());
    esperar_(EntreIntentos);
    paciencia -= EntreIntentos;
  }
  atascado_ = false;
  return std::move(abierta.Valor());
}

QByteArray AccesoPerfilArchivo::LeerCadena(QStringView seccion, QStringView clave,
                                           const QByteArray& defecto, const QString& ruta) {
  const auto contenido = LeerArchivo(ruta);
  if (!contenido.Bien()) return defecto;
  return PerfilPrivado::Buscar(contenido.Valor(), PaginaCodigos::ABytes(seccion),
                               PaginaCodigos::ABytes(clave))
      .value_or(defecto);
}

QList<QByteArray> AccesoPerfilArchivo::LeerCadenas(QStringView seccion,
                                                   std::span<const QString> claves,
                                                   const QByteArray& defecto, const QString& ruta) {
  const auto contenido = LeerArchivo(ruta);
  const auto valores = PerfilPrivado::Seccion(contenido.Valor(), PaginaCodigos::ABytes(seccion));
  QList<QByteArray> leidos;
  for (const QString& una : claves) {
    leidos << valores.value(PerfilPrivado::SinCaja(PaginaCodigos::ABytes(una)), defecto);
  }
  return leidos;
}

void AccesoPerfilArchivo::EscribirCadena(QStringView seccion, QStringView clave,
                                         const QByteArray& valor, const QString& ruta) {
  const Ajuste uno{seccion.toString(), clave.toString(), valor};
  EscribirCadenas({&uno, 1}, ruta, Duracion::SinSincronizar);
}

void AccesoPerfilArchivo::EscribirCadenas(std::span<const Ajuste> ajustes, const QString& ruta,
                                          Duracion duracion) {
  const QString carpeta = CarpetaReal(ruta);
  if (carpeta == por_crear_) QDir().mkpath(carpeta);
  const Descriptor cerrojo = BloquearCarpeta(carpeta);
  for (int intento = 0; intento < MaximoIntentos; ++intento) {
    if (!OtroSeAdelanto(Cambiar(ruta, ajustes, duracion))) break;
  }
}
