// The table of bench/tabla: what the user waits for, and next to it the least that the same machine
// needs for the same bytes, files or picture.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// In what a row counts: the unit as it is printed, and how many of it one second (or byte) is.
struct Cuenta {
  const char* unidad;
  double escala;
  std::string (*como_texto)(double);
};

std::string EnSegundos(double segundos);  // "1.23 ms"
std::string EnBytes(double bytes);        // "1.23 MB", of 1024 KB of 1024 bytes
inline std::string EnBytes(std::int64_t bytes) {
  return EnBytes(static_cast<double>(bytes));
}

inline constexpr Cuenta PorByte{"ns/byte", 1e9, EnSegundos};
inline constexpr Cuenta PorMegabyte{"ms/MB", 1e3, EnSegundos};
inline constexpr Cuenta PorArchivo{"us/file", 1e6, EnSegundos};
inline constexpr Cuenta PorImagen{"ms/picture", 1e3, EnSegundos};
inline constexpr Cuenta Memoria{"byte/byte", 1, EnBytes};

// Does a thing once and gives back what it took. What has to be done before and after it is not in
// the time: only the part inside Segundos() is.
using Vez = std::function<double()>;

template <typename Hacer>
double Segundos(Hacer&& hacer) {
  const auto antes = std::chrono::steady_clock::now();
  hacer();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
}

// Ends the run with that message: a row that did not do its work is worth nothing.
void Exigir(bool cumplido, const char* mensaje);

class Tabla {
 public:
  explicit Tabla(bool con_gigabyte) : con_gigabyte_(con_gigabyte) {}

  struct Renglon {
    const char* nombre;
    std::string tamano;
    std::int64_t unidades;  // how many of its unit one time is made of
    Cuenta cuenta;
  };
  void Titulo();
  // Measures and prints a row. Program and floor take turns, so that both meet the same noise.
  // `suelo` and `otro` may be empty.
  void Medir(const Renglon& renglon, const Vez& programa, const Vez& suelo, const Vez& otro = {});
  // For each of the sizes, in bytes, and for a gigabyte when that was asked for.
  void PorTamanos(const std::vector<std::int64_t>& tamanos,
                  const std::function<void(std::int64_t)>& medir) const;

 private:
  const bool con_gigabyte_;
};

void MedirArchivos(Tabla& tabla);  // loading, saving, memory
void MedirVista(Tabla& tabla);     // the picture of one text box
void MedirVentanas(Tabla& tabla);  // the whole program: the other view, the next file
void MedirLista(Tabla& tabla);     // the list of files and the favourite folders
