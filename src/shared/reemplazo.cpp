#include "shared/reemplazo.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <utility>

#include "shared/archivo_temporal.h"
#include "shared/atributos.h"
#include "shared/descriptor.h"
#include "shared/en_sitio.h"
#include "shared/rutas.h"

namespace {

constexpr unsigned PermisosPrivados = 0600;
constexpr unsigned PermisosNuevos = 0666;  // less the process's mask
constexpr mode_t BitsDeEscritura = 0222;

bool EsUno(int codigo, std::initializer_list<int> codigos) {
  for (const int uno : codigos) {
    if (uno == codigo) return true;
  }
  return false;
}

bool CarpetaCerrada(Resultado resultado) {
  return EsUno(resultado.Codigo(), {EACCES, EPERM, EROFS});
}

bool RenombrarRehusado(Resultado resultado) {
  return EsUno(resultado.Codigo(), {EBUSY, EXDEV, EPERM, EACCES});
}

// A folder, open for calls relative to it, and a name in it.
struct Sitio {
  Descriptor carpeta;
  std::string nombre;

  const char* Nombre() const { return nombre.c_str(); }
  int Carpeta() const { return carpeta.Numero(); }
};

std::string CarpetaDe(const std::string& ruta) {
  const std::size_t barra = ruta.rfind('/');
  if (barra == std::string::npos) return ".";
  return ruta.substr(0, barra == 0 ? 1 : barra);
}

ResultadoCon<Sitio> Situar(const std::string& ruta) {
  Sitio sitio;
  sitio.nombre = ruta.substr(ruta.rfind('/') + 1);
  if (sitio.nombre.empty()) return Resultado::Fallo(ruta.empty() ? ENOENT : EISDIR);
  auto carpeta = AbrirDescriptor(AT_FDCWD, CarpetaDe(ruta).c_str(), O_PATH | O_DIRECTORY);
  if (!carpeta.Bien()) return carpeta.Fallo();
  sitio.carpeta = std::move(carpeta.Valor());
  return sitio;
}

ResultadoCon<std::string> RutaReal(const char* ruta) {
  const std::unique_ptr<char, void (*)(void*)> real(::realpath(ruta, nullptr), std::free);
  if (!real) return Resultado::Fallo(errno);
  return std::string(real.get());
}

ResultadoCon<Sitio> SituarReal(const char* ruta) {
  const auto real = RutaReal(ruta);
  if (!real.Bien()) return real.Fallo();
  return Situar(real.Valor());
}

// Follows links whose last target is missing, which realpath() does not.
ResultadoCon<std::string> RutaPorCrear(std::string ruta) {
  for (int i = 0; i < MaximoEnlaces; ++i) {
    std::string destino(PATH_MAX, '\0');
    const ssize_t largo = ::readlink(ruta.c_str(), destino.data(), destino.size());
    if (largo < 0) return ruta;
    destino.resize(static_cast<std::size_t>(largo));
    ruta = destino.starts_with('/') ? destino : CarpetaDe(ruta).append("/").append(destino);
  }
  return Resultado::Fallo(ELOOP);
}

// By the path as it was given: whether a link may be followed, in a folder where others leave
// theirs, is for the system to say.
ResultadoCon<Descriptor> AbrirDocumento(const char* ruta) {
  // A pipe or device is not even opened; the second look is at what was opened in the end.
  struct stat antes {};
  if (::stat(ruta, &antes) < 0) return Resultado::Fallo(errno);
  const Resultado regular = ExigirRegular(antes);
  if (!regular.Bien()) return regular;
  if ((antes.st_mode & BitsDeEscritura) == 0) return Resultado::Fallo(EACCES);
  auto documento = AbrirDescriptor(AT_FDCWD, ruta, O_RDWR | O_NONBLOCK | O_NOCTTY);
  if (!documento.Bien()) return documento;
  const auto estado = EstadoDeArchivo(documento.Valor().Numero());
  if (!estado.Bien()) return estado.Fallo();
  const Resultado sigue = ExigirRegular(estado.Valor());
  if (!sigue.Bien()) return sigue;
  return documento;
}

// Where a file that is missing is to be made. The system, asked last, lets the links be followed.
ResultadoCon<Sitio> SituarNuevo(const char* ruta) {
  const auto destino = RutaPorCrear(ruta);
  if (!destino.Bien()) return destino.Fallo();
  struct stat estado {};
  if (::stat(ruta, &estado) == 0) return Resultado::Fallo(EEXIST);
  if (errno != ENOENT) return Resultado::Fallo(errno);
  return Situar(destino.Valor());
}

Resultado Rellenar(const ArchivoTemporal& temporal, const Reemplazo& reemplazo) {
  return EscribirTodo(temporal.Numero(), reemplazo.tramos);
}

// Ends the writing of a temporary file: nothing of it is lost from here on.
Resultado Cerrar(ArchivoTemporal& temporal, const Reemplazo& reemplazo) {
  if (reemplazo.duracion == Duracion::Sincronizada) {
    const Resultado sincronizado = Sincronizar(temporal.Numero());
    if (!sincronizado.Bien()) return sincronizado;
  }
  return temporal.Cerrar();
}

// The name has changed by now, so a failure here has nothing to undo and is not one of the save.
void SincronizarCarpeta(const Sitio& sitio, const Reemplazo& reemplazo) {
  if (reemplazo.duracion == Duracion::SinSincronizar) return;
  const auto carpeta = AbrirDescriptor(sitio.Carpeta(), ".", O_RDONLY | O_DIRECTORY);
  if (carpeta.Bien()) (void)Sincronizar(carpeta.Valor().Numero());
}

Resultado ComprobarQueSigue(const Sitio& sitio, const struct stat& documento) {
  struct stat ahora {};
  const int devuelto = ::fstatat(sitio.Carpeta(), sitio.Nombre(), &ahora, AT_SYMLINK_NOFOLLOW);
  if (devuelto < 0) return Resultado::Fallo(errno);
  return MismoNodo(ahora, documento) ? Resultado() : Resultado::Fallo(ESTALE);
}

// Writes into the document while `copia`, where there is one, holds the new content.
Resultado EnSitio(const Sitio& sitio, const Descriptor& documento, const struct stat& estado,
                  ArchivoTemporal copia, const Reemplazo& reemplazo) {
  if (copia.Existe()) {
    const Resultado nombrada = copia.HacerCopiaDe(estado.st_ino);
    if (!nombrada.Bien() && !RenombrarRehusado(nombrada)) return nombrada;
    SincronizarCarpeta(sitio, reemplazo);
  }
  const FalloEnSitio fallo =
      EscribirEnSitio(documento.Numero(), reemplazo.tramos, reemplazo.duracion);
  if (!fallo.restaurado) copia.Conservar();
  return fallo.resultado;
}

// Replaces the document by the temporary file, or writes into it where that is refused.
Resultado Poner(const Sitio& sitio, const Descriptor& documento, const struct stat& estado,
                ArchivoTemporal temporal, const Reemplazo& reemplazo) {
  bool reproducido = false;
  if (estado.st_nlink == 1) {
    const auto copia = CopiarAtributos(documento.Numero(), temporal.Numero());
    if (!copia.Bien()) return copia.Fallo();
    reproducido = copia.Valor() == Copia::Completa;
  }
  const Resultado cerrado = Cerrar(temporal, reemplazo);
  if (!cerrado.Bien()) return cerrado;
  const Resultado sigue = ComprobarQueSigue(sitio, estado);
  if (!sigue.Bien()) return sigue;
  if (reproducido) {
    const Resultado renombrado = temporal.Reemplazar(sitio.Nombre());
    if (renombrado.Bien()) SincronizarCarpeta(sitio, reemplazo);
    if (!RenombrarRehusado(renombrado)) return renombrado;
  }
  return EnSitio(sitio, documento, estado, std::move(temporal), reemplazo);
}

}  // namespace

Resultado ReemplazarExistente(const char* ruta, const Reemplazo& reemplazo) {
  const auto documento = AbrirDocumento(ruta);
  if (!documento.Bien()) return documento.Fallo();
  const auto estado = EstadoDeArchivo(documento.Valor().Numero());
  if (!estado.Bien()) return estado.Fallo();
  const auto situado = SituarReal(ruta);
  if (!situado.Bien()) return situado.Fallo();
  const Sitio& sitio = situado.Valor();
  const Resultado sigue = ComprobarQueSigue(sitio, estado.Valor());
  if (!sigue.Bien()) return sigue;

  QuitarRestos(sitio.Carpeta());
  QuitarCopias(sitio.Carpeta(), estado.Valor().st_ino, documento.Valor().Numero());
  auto temporal = ArchivoTemporal::Crear(sitio.Carpeta(), PermisosPrivados);
  if (!temporal.Bien()) {
    if (!CarpetaCerrada(temporal.Fallo())) return temporal.Fallo();
    return EnSitio(sitio, documento.Valor(), estado.Valor(), {}, reemplazo);
  }
  const Resultado relleno = Rellenar(temporal.Valor(), reemplazo);
  if (!relleno.Bien()) return relleno;
  const Resultado puesto =
      Poner(sitio, documento.Valor(), estado.Valor(), std::move(temporal.Valor()), reemplazo);
  if (puesto.Bien()) {
    QuitarCopias(sitio.Carpeta(), estado.Valor().st_ino, documento.Valor().Numero());
  }
  return puesto;
}

std::vector<std::string> CopiasDe(const char* ruta) {
  const auto real = RutaReal(ruta);
  if (!real.Bien()) return {};
  const auto situado = Situar(real.Valor());
  if (!situado.Bien()) return {};
  const Sitio& sitio = situado.Valor();
  const auto documento = AbrirDescriptor(sitio.Carpeta(), sitio.Nombre(),
                                         O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
  if (!documento.Bien()) return {};
  const auto estado = EstadoDeArchivo(documento.Valor().Numero());
  if (!estado.Bien()) return {};
  auto copias = CopiasDistintas(sitio.Carpeta(), estado.Valor().st_ino, documento.Valor().Numero());
  for (std::string& una : copias) una = CarpetaDe(real.Valor()).append("/").append(una);
  return copias;
}

Resultado CrearNuevo(const char* ruta, const Reemplazo& reemplazo) {
  const auto situado = SituarNuevo(ruta);
  if (!situado.Bien()) return situado.Fallo();
  const Sitio& sitio = situado.Valor();
  QuitarRestos(sitio.Carpeta());
  auto creado = ArchivoTemporal::Crear(sitio.Carpeta(), PermisosNuevos);
  if (!creado.Bien()) return creado.Fallo();
  ArchivoTemporal& temporal = creado.Valor();
  const Resultado relleno = Rellenar(temporal, reemplazo);
  if (!relleno.Bien()) return relleno;
  const Resultado cerrado = Cerrar(temporal, reemplazo);
  if (!cerrado.Bien()) return cerrado;
  const Resultado estrenado = temporal.Estrenar(sitio.Nombre());
  if (estrenado.Bien()) SincronizarCarpeta(sitio, reemplazo);
  return estrenado;
}
