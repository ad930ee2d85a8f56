// A temporary file beside the file that it is to replace, called ".velda-XXXXXX.tmp". It is locked
// while its save lives, so that the next save can tell a left-over of a killed one and remove it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

#include "shared/descriptor.h"

class ArchivoTemporal {
 public:
  ArchivoTemporal() = default;
  ArchivoTemporal(ArchivoTemporal&& otro) noexcept;
  ArchivoTemporal& operator=(ArchivoTemporal&& otro) noexcept;
  ArchivoTemporal(const ArchivoTemporal&) = delete;
  ArchivoTemporal& operator=(const ArchivoTemporal&) = delete;
  ~ArchivoTemporal();  // removes the file, unless it was renamed or kept

  // `carpeta` is the folder's descriptor and must outlive the file.
  static ResultadoCon<ArchivoTemporal> Crear(int carpeta, unsigned permisos);

  bool Existe() const { return !nombre_.empty(); }
  int Numero() const { return escritura_.Numero(); }
  // Closes it for writing; the lock stays.
  Resultado Cerrar() { return escritura_.Cerrar(); }
  // Gives it the name of the file that it replaces.
  Resultado Reemplazar(const char* nombre);
  // The same for a name that must be free: EEXIST when it is not.
  Resultado Estrenar(const char* nombre);
  // From now on the copy from which the file with this inode can be recovered: it is called
  // ".velda-copiaN-INODE.tmp", and stays until the file holds the same.
  Resultado HacerCopiaDe(ino_t nodo);
  // Leaves the file where it is.
  void Conservar() { nombre_.clear(); }

 private:
  Resultado Preparar(int carpeta, const char* nombre);
  Resultado LlamarSiLibre(const char* nombre);
  Resultado LlamarSinAyuda(const char* nombre);

  int carpeta_ = -1;
  std::string nombre_;
  Descriptor escritura_;
  Descriptor cerrojo_;  // the same open file: holds the lock when the first is closed
};

// Removes the left-overs of killed saves in a folder, but no copies.
void QuitarRestos(int carpeta);
// Of the copies that saves of the file with this inode have left: removes those whose bytes the
// file holds itself; names the others. `documento` is that file, open for reading.
void QuitarCopias(int carpeta, ino_t nodo, int documento);
std::vector<std::string> CopiasDistintas(int carpeta, ino_t nodo, int documento);
