// A file descriptor with an owner, and the calls on it that every interruption repeats.
#pragma once

#include <cerrno>
#include <cstddef>
#include <span>
#include <string_view>
#include <sys/stat.h>
#include <utility>

#include <QByteArray>

#include "shared/resultado.h"

// The call again for as long as signals interrupt it.
template <typename Llamada>
auto Repetir(Llamada llamada) {
  auto devuelto = llamada();
  while (devuelto < 0 && errno == EINTR) devuelto = llamada();
  return devuelto;
}

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int numero) : numero_(numero) {}
  Descriptor(Descriptor&& otro) noexcept;
  Descriptor& operator=(Descriptor&& otro) noexcept;
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor();

  bool Abierto() const { return numero_ >= 0; }
  int Numero() const { return numero_; }
  int Soltar() { return std::exchange(numero_, -1); }  // the caller closes it
  // Closes it now. A close that fails may have lost what was written.
  Resultado Cerrar();

 private:
  int numero_ = -1;
};

// openat(2), with O_CLOEXEC; `carpeta` may be AT_FDCWD.
ResultadoCon<Descriptor> AbrirDescriptor(int carpeta, const char* nombre, int modo_apertura,
                                         unsigned permisos = 0);
ResultadoCon<struct stat> EstadoDeArchivo(int descriptor);
// EISDIR for a folder, EMEDIUMTYPE, which no file system gives, for a pipe, socket or device.
Resultado ExigirRegular(const struct stat& estado);
bool MismoNodo(const struct stat& uno, const struct stat& otro);

// From the first byte to the last; false also when either cannot be read.
bool MismoContenido(int uno, int otro);

// 0 bytes read means the end.
ResultadoCon<std::size_t> LeerEn(int descriptor, char* destino, std::size_t maximo);
// Reads on from where it stands, `maximo` bytes or up to the end.
ResultadoCon<QByteArray> LeerTodo(int descriptor, std::size_t maximo);
// Writes the pieces one after the other from the first byte of the file.
Resultado EscribirTodo(int descriptor, std::span<const std::string_view> tramos);
Resultado Truncar(int descriptor, std::size_t tamano);
// Waits for the disk; success where the file system has no such call.
Resultado Sincronizar(int descriptor);
