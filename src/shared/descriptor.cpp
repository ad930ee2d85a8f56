#include "shared/descriptor.h"

#include <algorithm>
#include <climits>
#include <fcntl.h>
#include <new>
#include <string>
#include <sys/uio.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t MaximoPorLlamada = std::size_t{1} << 30;  // one call moves at most 2 GB

Resultado DeLlamada(int devuelto) {
  return devuelto < 0 ? Resultado::Fallo(errno) : Resultado();
}

// Takes the first `escritos` bytes off the pieces.
void Avanzar(std::vector<iovec>& tramos, std::size_t& primero, std::size_t escritos) {
  while (primero < tramos.size() && escritos >= tramos[primero].iov_len) {
    escritos -= tramos[primero++].iov_len;
  }
  if (primero == tramos.size()) return;
  tramos[primero].iov_base = static_cast<char*>(tramos[primero].iov_base) + escritos;
  tramos[primero].iov_len -= escritos;
}

// In pieces that one call takes whole.
std::vector<iovec> Trocear(std::span<const std::string_view> tramos) {
  std::vector<iovec> trozos;
  for (std::string_view tramo : tramos) {
    while (!tramo.empty()) {
      const std::size_t largo = std::min(tramo.size(), MaximoPorLlamada);
      trozos.push_back({const_cast<char*>(tramo.data()), largo});
      tramo.remove_prefix(largo);
    }
  }
  return trozos;
}

// As many pieces as one call takes.
int CuantosCaben(const std::vector<iovec>& trozos, std::size_t primero) {
  std::size_t suma = 0;
  int cuantos = 0;
  for (std::size_t i = primero; i < trozos.size() && cuantos < IOV_MAX; ++i, ++cuantos) {
    suma += trozos[i].iov_len;
    if (suma > MaximoPorLlamada && cuantos > 0) break;
  }
  return cuantos;
}

}  // namespace

Descriptor::Descriptor(Descriptor&& otro) noexcept : numero_(otro.Soltar()) {}

Descriptor& Descriptor::operator=(Descriptor&& otro) noexcept {
  std::swap(numero_, otro.numero_);
  return *this;
}

Descriptor::~Descriptor() {
  if (Abierto()) ::close(numero_);
}

Resultado Descriptor::Cerrar() {
  if (!Abierto()) return {};
  const int devuelto = ::close(Soltar());
  // An interrupted close has closed the descriptor all the same.
  return devuelto < 0 && errno != EINTR ? Resultado::Fallo(errno) : Resultado();
}

ResultadoCon<Descriptor> AbrirDescriptor(int carpeta, const char* nombre, int modo_apertura,
                                         unsigned permisos) {
  const int numero =
      Repetir([&] { return ::openat(carpeta, nombre, modo_apertura | O_CLOEXEC, permisos); });
  if (numero < 0) return Resultado::Fallo(errno);
  return Descriptor(numero);
}

ResultadoCon<struct stat> EstadoDeArchivo(int descriptor) {
  struct stat estado {};
  if (::fstat(descriptor, &estado) < 0) return Resultado::Fallo(errno);
  return estado;
}

Resultado ExigirRegular(const struct stat& estado) {
  if (S_ISDIR(estado.st_mode)) return Resultado::Fallo(EISDIR);
  return S_ISREG(estado.st_mode) ? Resultado() : Resultado::Fallo(EMEDIUMTYPE);
}

bool MismoNodo(const struct stat& uno, const struct stat& otro) {
  return uno.st_dev == otro.st_dev && uno.st_ino == otro.st_ino;
}

bool MismoContenido(int uno, int otro) {
  constexpr std::size_t Bocado = std::size_t{1} << 16;
  std::string de_uno(Bocado, '\0');
  std::string de_otro(Bocado, '\0');
  for (off_t posicion = 0;;) {
    const ssize_t leidos = ::pread(uno, de_uno.data(), Bocado, posicion);
    if (leidos < 0 || ::pread(otro, de_otro.data(), Bocado, posicion) != leidos) return false;
    if (leidos == 0) return true;
    const auto largo = static_cast<std::size_t>(leidos);
    if (de_uno.compare(0, largo, de_otro, 0, largo) != 0) return false;
    posicion += leidos;
  }
}

ResultadoCon<std::size_t> LeerEn(int descriptor, char* destino, std::size_t maximo) {
  const ssize_t leidos =
      Repetir([&] { return ::read(descriptor, destino, std::min(maximo, MaximoPorLlamada)); });
  if (leidos < 0) return Resultado::Fallo(errno);
  return static_cast<std::size_t>(leidos);
}

ResultadoCon<QByteArray> LeerTodo(int descriptor, std::size_t maximo) {
  try {
    QByteArray contenido(static_cast<qsizetype>(maximo), Qt::Uninitialized);
    std::size_t leidos = 0;
    while (leidos < maximo) {
      const auto ahora = LeerEn(descriptor, contenido.data() + leidos, maximo - leidos);
      if (!ahora.Bien()) return ahora.Fallo();
      if (ahora.Valor() == 0) break;
      leidos += ahora.Valor();
    }
    contenido.truncate(static_cast<qsizetype>(leidos));
    return contenido;
  } catch (const std::bad_alloc&) {
    return Resultado::Fallo(ENOMEM);
  }
}

Resultado EscribirTodo(int descriptor, std::span<const std::string_view> tramos) {
  std::vector<iovec> trozos = Trocear(tramos);
  std::size_t primero = 0;
  off_t posicion = 0;
  while (primero < trozos.size()) {
    const int cuantos = CuantosCaben(trozos, primero);
    const ssize_t escritos =
        Repetir([&] { return ::pwritev(descriptor, &trozos[primero], cuantos, posicion); });
    if (escritos < 0) return Resultado::Fallo(errno);
    if (escritos == 0) return Resultado::Fallo(EIO);
    posicion += escritos;
    Avanzar(trozos, primero, static_cast<std::size_t>(escritos));
  }
  return {};
}

Resultado Truncar(int descriptor, std::size_t tamano) {
  return DeLlamada(Repetir([&] { return ::ftruncate(descriptor, static_cast<off_t>(tamano)); }));
}

Resultado Sincronizar(int descriptor) {
  const Resultado resultado = DeLlamada(Repetir([&] { return ::fsync(descriptor); }));
  const int codigo = resultado.Codigo();
  const bool no_hay = codigo == EINVAL || codigo == ENOSYS || codigo == EOPNOTSUPP;
  return no_hay ? Resultado() : resultado;
}
