#include "shared/archivo_temporal.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <random>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::string_view Principio = ".velda-";
constexpr std::string_view Final = ".tmp";
constexpr std::string_view Letras =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr std::size_t LetrasPorNombre = 6;
constexpr int MaximoIntentos = 100;

std::string NombreNuevo(std::string_view detras = {}) {
  thread_local std::mt19937 azar{std::random_device{}()};
  std::uniform_int_distribution<std::size_t> letra(0, Letras.size() - 1);
  std::string nombre(Principio);
  for (std::size_t i = 0; i < LetrasPorNombre; ++i) nombre += Letras[letra(azar)];
  return nombre.append(detras).append(Final);
}

std::string MarcaDeCopia(ino_t nodo) {
  return std::string(1, '-').append(std::to_string(nodo));
}

// Is it the name of a temporary file with just this text behind its letters?
bool EsNombre(std::string_view nombre, std::string_view detras) {
  const std::size_t fijo = Principio.size() + LetrasPorNombre;
  if (nombre.size() != fijo + detras.size() + Final.size()) return false;
  const std::string_view letras = nombre.substr(Principio.size(), LetrasPorNombre);
  return nombre.starts_with(Principio) &&
         nombre.substr(fijo) == std::string(detras).append(Final) &&
         letras.find_first_not_of(Letras) == std::string_view::npos;
}

enum class Cerrojo { Tomado, Ajeno, NoHay };

Cerrojo Bloquear(int descriptor) {
  int devuelto = ::flock(descriptor, LOCK_EX | LOCK_NB);
  while (devuelto < 0 && errno == EINTR) devuelto = ::flock(descriptor, LOCK_EX | LOCK_NB);
  if (devuelto == 0) return Cerrojo::Tomado;
  return errno == EWOULDBLOCK ? Cerrojo::Ajeno : Cerrojo::NoHay;
}

bool SigueLlamandose(int carpeta, const char* nombre, int descriptor) {
  struct stat por_nombre {};
  const auto abierto = Estado(descriptor);
  return abierto.Bien() && S_ISREG(abierto.Valor().st_mode) &&
         ::fstatat(carpeta, nombre, &por_nombre, AT_SYMLINK_NOFOLLOW) == 0 &&
         MismoNodo(abierto.Valor(), por_nombre);
}

void QuitarSiAbandonado(int carpeta, const char* nombre) {
  const auto resto = Abrir(carpeta, nombre, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
  if (!resto.Bien()) return;
  const int numero = resto.Valor().Numero();
  if (Bloquear(numero) == Cerrojo::Tomado && SigueLlamandose(carpeta, nombre, numero)) {
    ::unlinkat(carpeta, nombre, 0);
  }
}

void QuitarTodos(int carpeta, std::string_view detras) {
  auto lista = Abrir(carpeta, ".", O_RDONLY | O_DIRECTORY);
  if (!lista.Bien()) return;
  const int numero = ::dup(lista.Valor().Numero());
  const std::unique_ptr<DIR, int (*)(DIR*)> entradas(::fdopendir(numero), ::closedir);
  if (!entradas) {
    if (numero >= 0) ::close(numero);
    return;
  }
  while (const dirent* entrada = ::readdir(entradas.get())) {  // NOLINT: its own stream
    if (EsNombre(entrada->d_name, detras)) QuitarSiAbandonado(carpeta, entrada->d_name);
  }
}

}  // namespace

ArchivoTemporal::ArchivoTemporal(ArchivoTemporal&& otro) noexcept
    : carpeta_(otro.carpeta_),
      nombre_(std::exchange(otro.nombre_, {})),
      escritura_(std::move(otro.escritura_)),
      cerrojo_(std::move(otro.cerrojo_)) {}

ArchivoTemporal& ArchivoTemporal::operator=(ArchivoTemporal&& otro) noexcept {
  std::swap(carpeta_, otro.carpeta_);
  nombre_.swap(otro.nombre_);
  std::swap(escritura_, otro.escritura_);
  std::swap(cerrojo_, otro.cerrojo_);
  return *this;
}

ArchivoTemporal::~ArchivoTemporal() {
  if (Existe()) ::unlinkat(carpeta_, nombre_.c_str(), 0);
}

ResultadoCon<ArchivoTemporal> ArchivoTemporal::Crear(int carpeta, unsigned permisos) {
  for (int intento = 0; intento < MaximoIntentos; ++intento) {
    ArchivoTemporal temporal;
    const std::string nombre = NombreNuevo();
    auto abierto = Abrir(carpeta, nombre.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, permisos);
    if (!abierto.Bien() && abierto.Fallo().Codigo() == EEXIST) continue;
    if (!abierto.Bien()) return abierto.Fallo();
    temporal.escritura_ = std::move(abierto.Valor());
    const Resultado preparado = temporal.Preparar(carpeta, nombre.c_str());
    if (preparado.Bien()) return temporal;
    if (preparado.Codigo() != EAGAIN) return preparado;
  }
  return Resultado::Fallo(EEXIST);
}

Resultado ArchivoTemporal::Preparar(int carpeta, const char* nombre) {
  carpeta_ = carpeta;
  nombre_ = nombre;
  // Another save may have taken the new file for a left-over before it was locked.
  const bool ajeno = Bloquear(Numero()) == Cerrojo::Ajeno;
  if (ajeno || !SigueLlamandose(carpeta, nombre, Numero())) return Resultado::Fallo(EAGAIN);
  const int segundo = ::fcntl(Numero(), F_DUPFD_CLOEXEC, 0);
  if (segundo < 0) return Resultado::Fallo(errno);
  cerrojo_ = Descriptor(segundo);
  return {};
}

Resultado ArchivoTemporal::Reemplazar(const char* nombre) {
  if (::renameat(carpeta_, nombre_.c_str(), carpeta_, nombre) < 0) return Resultado::Fallo(errno);
  nombre_.clear();
  return {};
}

Resultado ArchivoTemporal::Estrenar(const char* nombre) {
  if (::renameat2(carpeta_, nombre_.c_str(), carpeta_, nombre, RENAME_NOREPLACE) == 0) {
    nombre_.clear();
    return {};
  }
  if (errno != EINVAL && errno != ENOSYS) return Resultado::Fallo(errno);
  return EstrenarSinAyuda(nombre);
}

// Not every file system knows that call: there a second name is given, or the name taken by an
// empty file first.
Resultado ArchivoTemporal::EstrenarSinAyuda(const char* nombre) {
  if (::linkat(carpeta_, nombre_.c_str(), carpeta_, nombre, 0) == 0) {
    ::unlinkat(carpeta_, std::exchange(nombre_, {}).c_str(), 0);
    return {};
  }
  const auto sitio = Abrir(carpeta_, nombre, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
  if (!sitio.Bien()) return sitio.Fallo();
  const Resultado puesto = Reemplazar(nombre);
  if (!puesto.Bien()) ::unlinkat(carpeta_, nombre, 0);
  return puesto;
}

Resultado ArchivoTemporal::HacerCopiaDe(ino_t nodo) {
  const std::string nombre = NombreNuevo(MarcaDeCopia(nodo));
  if (::renameat(carpeta_, nombre_.c_str(), carpeta_, nombre.c_str()) < 0) {
    return Resultado::Fallo(errno);
  }
  nombre_ = nombre;
  return {};
}

void QuitarRestos(int carpeta) {
  QuitarTodos(carpeta, {});
}

void QuitarCopias(int carpeta, ino_t nodo) {
  QuitarTodos(carpeta, MarcaDeCopia(nodo));
}
