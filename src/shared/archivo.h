// Reading and replacing a file whole: the one way any file of the user's is read or written.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "shared/descriptor.h"
#include "shared/resultado.h"

// A regular file that is open for reading from its first byte. Symbolic links are followed.
class LectorArchivo {
 public:
  enum class SiFalta { Fallar, Crear };  // Crear: a missing file is made, empty

  // Anything but a regular file fails: a folder with EISDIR, a pipe or device with EMEDIUMTYPE;
  // it never blocks and never reads from one.
  static ResultadoCon<LectorArchivo> Abrir(const QString& ruta, SiFalta si_falta);

  std::size_t Tamano() const { return tamano_; }  // bytes, when it was opened
  // Reads up to `maximo` bytes; 0 bytes read means the end, which is at Tamano() also in a file
  // that grows. A file that gives no length and yet has bytes, as the system's own do, is read,
  // too; EFBIG when there is no end to them. Interrupted calls are repeated.
  ResultadoCon<std::size_t> Leer(char* destino, std::size_t maximo);
  // Passes over up to `maximo` bytes that are zero because the disk does not hold them; how many.
  std::size_t SaltarHueco(std::size_t maximo);
  ResultadoCon<QByteArray> LeerResto();  // everything that is left; ENOMEM when it is too much

 private:
  Resultado Descontar(std::size_t leidos);

  Descriptor descriptor_;
  std::size_t tamano_ = 0;
  std::size_t quedan_ = 0;     // bytes that may yet be read
  bool tiene_huecos_ = false;  // the disk holds less than its length
};

ResultadoCon<QByteArray> LeerArchivo(const QString& ruta);

// Full paths of the copies that saves which were interrupted while they wrote into this file have
// left beside it. Each holds a whole text that is not the file's; the program never removes them.
QStringList CopiasDeGuardado(const QString& ruta);

enum class Duracion { Sincronizada, SinSincronizar };  // is the disk waited for?

// Replaces the content of an existing file, which keeps its links, mode, owner, access list and
// extended attributes. ENOENT when it has vanished, EACCES when it has no write bit at all. After
// a failure the old content stands. `tramos` are the pieces of the new content, in their order.
Resultado ReemplazarArchivo(const QString& ruta, std::span<const std::string_view> tramos,
                            Duracion duracion);

// The same for a name that may be new: the file is made when it is missing.
Resultado CrearOReemplazarArchivo(const QString& ruta, std::span<const std::string_view> tramos,
                                  Duracion duracion);
