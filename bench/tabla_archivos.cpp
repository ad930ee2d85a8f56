// Loading a file, saving a text, and the memory that a text takes.
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <malloc.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>

#include "bench/mesa.h"
#include "bench/suelos.h"
#include "bench/tabla.h"
#include "bench/textos.h"
#include "shared/descriptor.h"

namespace {

double Cargar(const QString& ruta, std::int64_t bytes) {
  Documento documento;
  const double segundos = Segundos([&] { CargarEn(documento, ruta); });
  Exigir(
      documento.Tamano() == bytes && documento.LineasDelTexto().Total() == bytes / LargoLinea + 1,
      "a load gave another text");
  return segundos;
}

void FilaCargar(Tabla& tabla, std::int64_t bytes) {
  const QTemporaryDir carpeta;
  const QString ruta = carpeta.filePath(QStringLiteral("texto"));
  EscribirArchivo(ruta, bytes);
  const auto suelo = [&] {
    ::malloc_trim(0);
    Leido leido;
    const double segundos = Segundos([&] { leido = LeerYConvertir(ruta, bytes); });
    Exigir(leido.texto.size() == bytes, "a text was not converted whole");
    return segundos;
  };
  const auto solo = [&] {
    ::malloc_trim(0);
    return SegundosLeerSolo(ruta, bytes);
  };
  tabla.Medir(
      {"load", EnBytes(bytes), bytes, PorByte}, [&] { return Cargar(ruta, bytes); }, suelo, solo);
}

// Both names are in the folder `carpeta`, which is synced when it is open.
void EscribirYRenombrar(std::string_view texto, const char* nueva, const char* vieja,
                        const Descriptor& carpeta) {
  auto archivo = AbrirDescriptor(AT_FDCWD, nueva, O_WRONLY | O_CREAT | O_TRUNC, 0600);
  Exigir(archivo.Bien() && EscribirTodo(archivo.Valor().Numero(), {&texto, 1}).Bien() &&
             ::fsync(archivo.Valor().Numero()) == 0 && archivo.Valor().Cerrar().Bien() &&
             std::rename(nueva, vieja) == 0,
         "a plain write failed");
  if (carpeta.Abierto()) Exigir(::fsync(carpeta.Numero()) == 0, "a folder cannot be synced");
}

void ExigirTamano(const char* ruta, std::int64_t bytes) {
  struct stat estado {};
  Exigir(::stat(ruta, &estado) == 0 && estado.st_size == bytes, "a save wrote another size");
}

void FilaGuardar(Tabla& tabla, std::int64_t bytes) {
  const QTemporaryDir carpeta;
  const std::string base = carpeta.path().toStdString();
  const std::string documento_en = base + "/documento";
  const std::string copia_en = base + "/copia";
  const QString ruta = QString::fromStdString(documento_en);
  EscribirArchivo(ruta, 1);
  Documento documento;
  documento.Poner(Texto(Lineas80, bytes - 1));
  documento.Reemplazar(bytes / 2, 0, "x", Agrupacion::Sola);  // as after a change: several pieces
  const std::string texto = Texto(Lineas80, bytes);
  auto abierta = AbrirDescriptor(AT_FDCWD, base.c_str(), O_RDONLY | O_DIRECTORY);
  const auto guardar = [&] {
    const double segundos = Segundos([&] {
      Exigir(ReemplazarArchivo(ruta, documento.Texto().Tramos(), Duracion::Sincronizada).Bien(),
             "a save failed");
    });
    ExigirTamano(documento_en.c_str(), bytes);
    return segundos;
  };
  const auto escribir = [&](const Descriptor& sincronizada) {
    const double segundos = Segundos([&] {
      EscribirYRenombrar(texto, (base + "/nueva").c_str(), copia_en.c_str(), sincronizada);
    });
    ExigirTamano(copia_en.c_str(), bytes);
    return segundos;
  };
  tabla.Medir(
      {"save", EnBytes(bytes), bytes, PorByte}, guardar, [&] { return escribir({}); },
      [&] { return escribir(abierta.Valor()); });
}

double Residente() {
  ::malloc_trim(0);
  std::ifstream estado("/proc/self/statm");
  double paginas = 0;
  estado >> paginas >> paginas;
  return paginas * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

void FilaMemoria(Tabla& tabla, std::int64_t bytes) {
  const QTemporaryDir carpeta;
  const QString ruta = carpeta.filePath(QStringLiteral("texto"));
  EscribirArchivo(ruta, bytes);
  const auto ocupar = [&] {
    Mesa mesa;
    mesa.Mostrar();
    mesa.Reposar();
    const double antes = Residente();
    mesa.Cargar(ruta, bytes);
    mesa.Reposar();
    mesa.ExigirFilas(bytes);
    return Residente() - antes;
  };
  tabla.Medir({"memory, all rows known", EnBytes(bytes), bytes, Memoria}, ocupar,
              [&] { return static_cast<double>(bytes); });
}

constexpr std::int64_t KB = 1 << 10;
constexpr std::int64_t MB = 1 << 20;

}  // namespace

void MedirArchivos(Tabla& tabla) {
  tabla.PorTamanos({10 * KB, 100 * KB, MB, 10 * MB, 100 * MB},
                   [&](std::int64_t bytes) { FilaCargar(tabla, bytes); });
  tabla.PorTamanos({10 * KB, 100 * KB, MB, 10 * MB, 100 * MB},
                   [&](std::int64_t bytes) { FilaGuardar(tabla, bytes); });
  tabla.PorTamanos({10 * MB, 100 * MB}, [&](std::int64_t bytes) { FilaMemoria(tabla, bytes); });
}
