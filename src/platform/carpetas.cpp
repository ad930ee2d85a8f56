#include "platform/carpetas.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <condition_variable>
#include <dirent.h>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <utility>

#include <QDir>
#include <QFileInfo>

#include "shared/constantes.h"
#include "shared/descriptor.h"
#include "shared/orden.h"
#include "shared/rutas.h"

namespace {

constexpr std::array CodigosNoDisponible{ENODEV, ENXIO,    ENOMEDIUM, EIO,
                                         ESTALE, ENOTCONN, ETIMEDOUT};

using Directorio = std::unique_ptr<DIR, decltype([](DIR* abierto) { ::closedir(abierto); })>;

bool EsTexto(QByteArrayView nombre) {
  constexpr qsizetype Largo = 4;
  return nombre.size() >= Largo &&
         nombre.last(Largo).toByteArray().compare(".txt", Qt::CaseInsensitive) == 0;
}

// The folder says what most entries are; only links and some file systems have to be asked.
bool EsDelTipo(DIR* directorio, const dirent& entrada, Busca que) {
  const unsigned char buscado = que == Busca::Subcarpetas ? DT_DIR : DT_REG;
  if (entrada.d_type != DT_LNK && entrada.d_type != DT_UNKNOWN) return entrada.d_type == buscado;
  struct stat estado {};
  return ::fstatat(::dirfd(directorio), entrada.d_name, &estado, 0) == 0 &&
         (que == Busca::Subcarpetas ? S_ISDIR(estado.st_mode) : S_ISREG(estado.st_mode));
}

bool SeMuestra(DIR* directorio, const dirent& entrada, Busca que) {
  const QByteArrayView nombre(entrada.d_name);
  if (nombre.startsWith('.') || (que == Busca::Textos && !EsTexto(nombre))) return false;
  return EsDelTipo(directorio, entrada, que);
}

// The same folder under its name in upper case: the disk does not tell letter case apart.
QString EnMayusculas(const QString& carpeta) {
  const QString mayusculas = AMayusculas(carpeta);
  struct stat una {};
  struct stat otra {};
  const bool misma = ::stat(RutaDelSistema(carpeta).constData(), &una) == 0 &&
                     ::stat(RutaDelSistema(mayusculas).constData(), &otra) == 0 &&
                     MismoNodo(una, otra);
  return misma ? mayusculas : carpeta;
}

}  // namespace

ResultadoCon<CarpetaLeida> LeerCarpeta(const QString& carpeta, Busca que) {
  if (!carpeta.startsWith(SeparadorRuta)) return Resultado::Fallo(ENOENT);
  const Directorio directorio(::opendir(RutaDelSistema(carpeta).constData()));
  if (directorio == nullptr) return Resultado::Fallo(errno);
  CarpetaLeida leida;
  errno = 0;
  while (const dirent* entrada = ::readdir(directorio.get())) {
    if (SeMuestra(directorio.get(), *entrada, que)) leida.nombres << RutaComoTexto(entrada->d_name);
    errno = 0;
  }
  if (errno != 0) return Resultado::Fallo(errno);
  leida.carpeta = EnMayusculas(carpeta);
  return leida;
}

bool UnidadNoDisponible(const Resultado& fallo) {
  return std::find(CodigosNoDisponible.begin(), CodigosNoDisponible.end(), fallo.Codigo()) !=
         CodigosNoDisponible.end();
}

// What is left of a drive that was taken away is nothing at all, or the empty folder where it
// began.
bool EnVolumenAusente(const QString& carpeta, const QString& base,
                      const std::vector<Montaje>& montajes) {
  if (!EstaEn(carpeta, base)) return false;
  const Montaje* montaje = MontajeDe(montajes, carpeta);
  if (montaje != nullptr && EstaEn(montaje->punto, base)) return false;
  QString queda = carpeta;
  while (!queda.isEmpty() && !QFileInfo::exists(queda)) {
    queda.truncate(queda.lastIndexOf(SeparadorRuta));
  }
  return queda == base || !EstaEn(queda, base) ||
         QDir(queda).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

namespace {

// Nothing may leave a thread.
ResultadoCon<CarpetaLeida> LeerSiCabe(const LectorPaciente::Leer& leer, const QString& carpeta,
                                      Busca que) {
  try {
    return leer(carpeta, que);
  } catch (const std::bad_alloc&) {
    return Resultado::Fallo(ENOMEM);
  }
}

}  // namespace

struct LectorPaciente::Tarea {
  explicit Tarea(QString donde) : punto(std::move(donde)) {}

  QString punto;
  std::mutex cerrojo;
  std::condition_variable aviso;
  bool lista = false;
  ResultadoCon<CarpetaLeida> leida = CarpetaLeida();
};

LectorPaciente::LectorPaciente(std::chrono::milliseconds paciencia, Leer leer)
    : paciencia_(paciencia), leer_(std::move(leer)) {}

bool LectorPaciente::SigueAtascada(const QString& punto) {
  std::erase_if(atascadas_, [](const auto& tarea) {
    const std::lock_guard llave(tarea->cerrojo);
    return tarea->lista;
  });
  return std::any_of(atascadas_.begin(), atascadas_.end(),
                     [&](const auto& tarea) { return tarea->punto == punto; });
}

ResultadoCon<CarpetaLeida> LectorPaciente::operator()(const QString& punto, const QString& carpeta,
                                                      Busca que) {
  if (SigueAtascada(punto)) return Resultado::Fallo(ETIMEDOUT);
  const auto tarea = std::make_shared<Tarea>(punto);
  try {
    std::thread([tarea, leer = leer_, carpeta, que] {
      auto leida = LeerSiCabe(leer, carpeta, que);
      const std::lock_guard llave(tarea->cerrojo);
      tarea->leida = std::move(leida);
      tarea->lista = true;
      tarea->aviso.notify_one();
    }).detach();
  } catch (const std::system_error& sin_hilo) {
    return Resultado::Fallo(sin_hilo.code().value());
  }
  std::unique_lock llave(tarea->cerrojo);
  if (tarea->aviso.wait_for(llave, paciencia_, [&] { return tarea->lista; })) {
    return std::move(tarea->leida);
  }
  atascadas_.push_back(tarea);
  return Resultado::Fallo(ETIMEDOUT);
}
