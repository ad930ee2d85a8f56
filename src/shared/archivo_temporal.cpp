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
constexpr std::string_view NumerosDeCopia = "123456789";
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

// A name that can be looked for without reading the folder.
std::string NombreDeCopia(char numero, ino_t nodo) {
  return std::string(Principio)
      .append("copia")
      .append(1, numero)
      .append(MarcaDeCopia(nodo))
      .append(Final);
}

bool EsNombre(std::string_view nombre) {
  const std::string_view letras = nombre.substr(std::min(Principio.size(), nombre.size()));
  return nombre.size() == Principio.size() + LetrasPorNombre + Final.size() &&
         nombre.starts_with(Principio) && nombre.ends_with(Final) &&
         letras.find_first_not_of(Letras) == LetrasPorNombre;
}

enum class Cerrojo { Tomado, Ajeno, NoHay };

Cerrojo Bloquear(int descriptor) {
  const int devuelto = Repetir([&] { return ::flock(descriptor, LOCK_EX | LOCK_NB); });
  if (devuelto == 0) return Cerrojo::Tomado;
  return errno == EWOULDBLOCK ? Cerrojo::Ajeno : Cerrojo::NoHay;
}

bool SigueLlamandose(int carpeta, const char* nombre, int descriptor) {
  struct stat por_nombre {};
  const auto abierto = EstadoDeArchivo(descriptor);
  return abierto.Bien() && S_ISREG(abierto.Valor().st_mode) &&
         ::fstatat(carpeta, nombre, &por_nombre, AT_SYMLINK_NOFOLLOW) == 0 &&
         MismoNodo(abierto.Valor(), por_nombre);
}

void QuitarSiAbandonado(int carpeta, const char* nombre) {
  const auto resto =
      AbrirDescriptor(carpeta, nombre, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
  if (!resto.Bien()) return;
  const int numero = resto.Valor().Numero();
  if (Bloquear(numero) == Cerrojo::Tomado && SigueLlamandose(carpeta, nombre, numero)) {
    ::unlinkat(carpeta, nombre, 0);
  }
}

// A copy that this user's saves have left; not open when it is another's, or of a save that lives.
Descriptor CopiaAbandonada(int carpeta, const char* nombre) {
  auto copia = AbrirDescriptor(carpeta, nombre, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
  if (!copia.Bien()) return {};
  const auto estado = EstadoDeArchivo(copia.Valor().Numero());
  const bool propia =
      estado.Bien() && S_ISREG(estado.Valor().st_mode) && estado.Valor().st_uid == ::geteuid();
  if (!propia || Bloquear(copia.Valor().Numero()) == Cerrojo::Ajeno) return {};
  return std::move(copia.Valor());
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
    auto abierto =
        AbrirDescriptor(carpeta, nombre.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, permisos);
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
  const Resultado puesto = LlamarSiLibre(nombre);
  if (puesto.Bien()) Conservar();
  return puesto;
}

Resultado ArchivoTemporal::LlamarSiLibre(const char* nombre) {
  const int devuelto = ::renameat2(carpeta_, nombre_.c_str(), carpeta_, nombre, RENAME_NOREPLACE);
  if (devuelto < 0 && errno != EINVAL && errno != ENOSYS) return Resultado::Fallo(errno);
  const Resultado puesto = devuelto == 0 ? Resultado() : LlamarSinAyuda(nombre);
  if (puesto.Bien()) nombre_ = nombre;
  return puesto;
}

// Not every file system knows that call: there a second name is given, or the name taken by an
// empty file first.
Resultado ArchivoTemporal::LlamarSinAyuda(const char* nombre) {
  if (::linkat(carpeta_, nombre_.c_str(), carpeta_, nombre, 0) == 0) {
    ::unlinkat(carpeta_, nombre_.c_str(), 0);
    return {};
  }
  const auto sitio =
      AbrirDescriptor(carpeta_, nombre, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
  if (!sitio.Bien()) return sitio.Fallo();
  if (::renameat(carpeta_, nombre_.c_str(), carpeta_, nombre) == 0) return {};
  const Resultado rehusado = Resultado::Fallo(errno);
  ::unlinkat(carpeta_, nombre, 0);
  return rehusado;
}

Resultado ArchivoTemporal::HacerCopiaDe(ino_t nodo) {
  for (const char numero : NumerosDeCopia) {
    const Resultado nombrada = LlamarSiLibre(NombreDeCopia(numero, nodo).c_str());
    if (nombrada.Codigo() != EEXIST) return nombrada;
  }
  return LlamarSiLibre(NombreNuevo(MarcaDeCopia(nodo)).c_str());
}

void QuitarRestos(int carpeta) {
  auto lista = AbrirDescriptor(carpeta, ".", O_RDONLY | O_DIRECTORY);
  if (!lista.Bien()) return;
  const std::unique_ptr<DIR, int (*)(DIR*)> entradas(::fdopendir(lista.Valor().Numero()),
                                                     ::closedir);
  if (!entradas) return;
  (void)lista.Valor().Soltar();
  while (const dirent* entrada = ::readdir(entradas.get())) {  // NOLINT: its own stream
    if (EsNombre(entrada->d_name)) QuitarSiAbandonado(carpeta, entrada->d_name);
  }
}

void QuitarCopias(int carpeta, ino_t nodo, int documento) {
  for (const char numero : NumerosDeCopia) {
    const std::string nombre = NombreDeCopia(numero, nodo);
    const Descriptor copia = CopiaAbandonada(carpeta, nombre.c_str());
    const bool sobra = copia.Abierto() && MismoContenido(copia.Numero(), documento) &&
                       Sincronizar(documento).Bien();
    if (sobra) ::unlinkat(carpeta, nombre.c_str(), 0);
  }
}

std::vector<std::string> CopiasDistintas(int carpeta, ino_t nodo, int documento) {
  std::vector<std::string> distintas;
  for (const char numero : NumerosDeCopia) {
    const std::string nombre = NombreDeCopia(numero, nodo);
    const Descriptor copia = CopiaAbandonada(carpeta, nombre.c_str());
    const bool distinta = copia.Abierto() && !MismoContenido(copia.Numero(), documento);
    if (distinta) distintas.push_back(nombre);
  }
  return distintas;
}
