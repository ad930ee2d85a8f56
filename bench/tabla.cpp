// One table in one run: what the user waits for, next to its floor, over growing sizes.
//   tabla [1g]     1g: a gigabyte, too
// A cost that grows faster than its work shows in the column "per unit". The files lie in the
// folder for temporary files (TMPDIR); the times of saving are those of its disk.
#include "bench/tabla.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string_view>

#include "platform/aplicacion.h"

namespace {

constexpr std::size_t MinimoVeces = 3;
constexpr double Bastante = 0.2;  // seconds measured
constexpr double Demasiado = 2;   // seconds with everything around it

std::string ConUnidad(double valor, double paso, std::initializer_list<const char*> unidades) {
  const auto* unidad = unidades.begin();
  for (; valor >= paso && unidad + 1 != unidades.end(); ++unidad) valor /= paso;
  std::array<char, 32> texto{};
  (void)std::snprintf(texto.data(), texto.size(), "%.3g %s", valor, *unidad);
  return texto.data();
}

// The values of one column of a row.
class Valores {
 public:
  void Anadir(double valor) { valores_.push_back(valor); }
  double Mediana() const {
    std::vector<double> orden = valores_;
    std::sort(orden.begin(), orden.end());
    const std::size_t medio = orden.size() / 2;
    return orden.size() % 2 == 1 ? orden[medio] : (orden[medio - 1] + orden[medio]) / 2;
  }
  double Menor() const { return *std::min_element(valores_.begin(), valores_.end()); }
  double Suma() const {
    double suma = 0;
    for (const double valor : valores_) suma += valor;
    return suma;
  }
  std::size_t Total() const { return valores_.size(); }

 private:
  std::vector<double> valores_;
};

using Columnas = std::array<Valores, 3>;

void Imprimir(const Tabla::Renglon& renglon, const Columnas& columnas) {
  const auto& [programa, suelo, otro] = columnas;
  const auto texto = [&](const Valores& valores) {
    return valores.Total() == 0 ? std::string() : renglon.cuenta.como_texto(valores.Mediana());
  };
  const double mediana = programa.Mediana();
  std::array<char, 32> unidad{};
  (void)std::snprintf(unidad.data(), unidad.size(), "%.3g %s",
                      mediana / static_cast<double>(renglon.unidades) * renglon.cuenta.escala,
                      renglon.cuenta.unidad);
  std::array<char, 16> razon{};
  if (suelo.Total() > 0) {
    (void)std::snprintf(razon.data(), razon.size(), "%.2f", mediana / suelo.Mediana());
  }
  (void)std::printf("%-23s %13s %9s %9s %16s %9s %6s %8s\n", renglon.nombre, renglon.tamano.c_str(),
                    texto(programa).c_str(), renglon.cuenta.como_texto(programa.Menor()).c_str(),
                    unidad.data(), texto(suelo).c_str(), razon.data(), texto(otro).c_str());
  (void)std::fflush(stdout);
}

constexpr const char* Explicacion = R"(
median of the times, least of them; per unit: of the median; x: median / median of the floor
floors:
  load                   read(2) of the file and its bytes as a QString, both in memory that is new
                         to the process, as the text's is. other: read(2) alone
  next file              the same in whatever memory malloc has at hand, and an empty window painted
  first picture, key,    an empty widget of the same size, painted in the same way
  first of other view    other: as many rows of letters, each drawn by the toolkit in one go
  save                   write, fsync, rename of a new file. other: the folder's fsync, too
  all rows               a look at every byte twice: memchr for line ends, and a sum
  memory                 the file's size
  list, one by one       the names in a QStringList, sorted once in Spanish order
  favourites             opendir and readdir of the folders, and an empty window painted
)";

}  // namespace

std::string EnSegundos(double segundos) {
  return ConUnidad(segundos * 1e9, 1000, {"ns", "us", "ms", "s"});
}

std::string EnBytes(double bytes) {
  return ConUnidad(bytes, 1024, {"B", "KB", "MB", "GB"});
}

void Exigir(bool cumplido, const char* mensaje) {
  if (!cumplido) throw std::runtime_error(mensaje);
}

void Tabla::Titulo() {
  (void)std::printf("%-23s %13s %9s %9s %16s %9s %6s %8s\n", "what", "size", "median", "least",
                    "per unit", "floor", "x", "other");
}

void Tabla::Medir(const Renglon& renglon, const Vez& programa, const Vez& suelo, const Vez& otro) {
  const std::array<const Vez*, 3> veces{&programa, &suelo, &otro};
  Columnas columnas;
  double pasado = 0;
  const auto una_vez = [&](bool cuenta) {
    for (std::size_t i = 0; i < veces.size(); ++i) {
      if (!*veces[i]) continue;
      const double valor = (*veces[i])();
      if (cuenta) columnas[i].Anadir(valor);
    }
  };
  una_vez(false);  // warms the caches
  while (columnas[0].Total() < MinimoVeces ||
         (columnas[0].Suma() < Bastante && pasado < Demasiado)) {
    pasado += Segundos([&] { una_vez(true); });
  }
  Imprimir(renglon, columnas);
}

void Tabla::PorTamanos(const std::vector<std::int64_t>& tamanos,
                       const std::function<void(std::int64_t)>& medir) const {
  for (const std::int64_t tamano : tamanos) medir(tamano);
  if (con_gigabyte_) medir(std::int64_t{1} << 30);
}

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](auto...) {});  // it would say what offscreen windows cannot do
  const Aplicacion aplicacion(argv[0]);
  try {
    Tabla tabla(argc > 1 && std::string_view(argv[1]) == "1g");
    tabla.Titulo();
    MedirArchivos(tabla);
    MedirVista(tabla);
    MedirVentanas(tabla);
    MedirLista(tabla);
    (void)std::fputs(Explicacion, stdout);
  } catch (const std::exception& fallo) {
    (void)std::fprintf(stderr, "tabla: %s\n", fallo.what());
    return 1;
  }
  return 0;
}
