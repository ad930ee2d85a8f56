// What the core of the text box costs, from 1 KB to 1 GB, for texts of four shapes.
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <memory>
#include <string>
#include <vector>

#include "bench/textos.h"
#include "text_box/documento.h"
#include "text_box/filas.h"
#include "text_box/renglones_lineas.h"

namespace {

constexpr Punto Pixel = 64;
const std::vector<std::int64_t> Formas{Lineas80, UnaLinea, SoloFines, SinBlancos};

Avances Fijos() {
  Avances avances;
  avances.ancho.fill(7 * Pixel);
  avances.tabulador = 56 * Pixel;
  return avances;
}

Avances Proporcionales() {
  Avances avances = Fijos();
  for (std::size_t i = 0; i < avances.ancho.size(); ++i) {
    avances.ancho[i] = static_cast<std::int32_t>(3 * Pixel + i * 37 % (7 * Pixel));
  }
  return avances;
}

// A document with its wrapped rows, as a view keeps them.
class Puesta : public Observador {
 public:
  // The last one that was made is kept: making one of a gigabyte takes longer than what is
  // measured.
  static Puesta& De(const benchmark::State& estado, const Avances& avances = Fijos()) {
    static std::unique_ptr<Puesta> ultima;
    const Clave clave{estado.range(0), estado.range(1), avances.ancho[0]};
    if (ultima && ultima->clave == clave) return *ultima;
    ultima.reset();
    ultima = std::make_unique<Puesta>(static_cast<Forma>(clave[0]), clave[1], avances);
    return *ultima;
  }
  Puesta(Forma forma, std::int64_t n, const Avances& avances) : clave{forma, n, avances.ancho[0]} {
    const auto antes = Ocupados();
    documento.Poner(Texto(forma, n));
    documento.Observar(this);
    filas.Configurar(avances, 500 * Pixel);
    while (!filas.Avanzar(1000)) continue;
    lineas.Configurar(avances);
    while (!lineas.Avanzar(1000)) continue;
    indice = 100.0 * static_cast<double>(Ocupados() - antes) / static_cast<double>(n);
  }
  void Reemplazado(const Cambio& cambio) override {
    filas.Reemplazado(cambio);
    if (sin_ajustar) lineas.Reemplazado(cambio);
  }
  void Recargado() override {
    filas.Recargado();
    lineas.Recargado();
  }

  Documento documento;
  Filas filas{documento.Texto(), documento.LineasDelTexto()};
  RenglonesLineas lineas{documento.Texto(), documento.LineasDelTexto()};
  bool sin_ajustar = false;
  double indice = 0;  // memory of lines and rows, in percent of the text

 private:
  using Clave = std::array<std::int64_t, 3>;
  static std::int64_t Ocupados() {
    const struct mallinfo2 memoria = mallinfo2();  // the text itself is not among it
    return static_cast<std::int64_t>(memoria.uordblks + memoria.hblkhd);
  }
  Clave clave;
};

// Sixty rows from the one of `pos` on, as a repaint asks for them.
void Pagina(const Renglones& renglones, Posicion pos) {
  Posicion inicio = renglones.InicioDe(pos);
  for (int i = 0; i < 60 && inicio >= 0; ++i) {
    const Renglones::Corte izquierda = renglones.CorteEnX(inicio, 0);
    benchmark::DoNotOptimize(renglones.CorteEnX(inicio, izquierda.x + 500 * Pixel));
    benchmark::DoNotOptimize(renglones.FinDe(inicio));
    inicio = renglones.Siguiente(inicio);
  }
  benchmark::DoNotOptimize(renglones.Indice(pos) + renglones.Total());
  benchmark::DoNotOptimize(renglones.AnchoMaximo());
}

// What a megabyte costs.
void PorByte(benchmark::State& estado, std::int64_t bytes) {
  estado.counters["per_MB"] = benchmark::Counter(
      static_cast<double>(estado.iterations()) * static_cast<double>(bytes) / (1 << 20),
      benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

// A key at so many percent of the text, with the page around it.
void Tecla(benchmark::State& estado, bool sin_ajustar) {
  Puesta& puesta = Puesta::De(estado);
  puesta.sin_ajustar = sin_ajustar;
  const Renglones& renglones =
      sin_ajustar ? static_cast<const Renglones&>(puesta.lineas) : puesta.filas;
  Posicion pos = puesta.documento.Tamano() * estado.range(2) / 100;
  for ([[maybe_unused]] auto vuelta : estado) {
    puesta.documento.Reemplazar(pos++, 0, "k", Agrupacion::Escribir);
    Pagina(renglones, pos);
    benchmark::DoNotOptimize(renglones.XDe(renglones.InicioDe(pos), pos));
  }
}

// A key at the end when the last one was at the start, and back.
void Salto(benchmark::State& estado) {
  Puesta& puesta = Puesta::De(estado);
  for ([[maybe_unused]] auto vuelta : estado) {
    puesta.documento.Reemplazar(puesta.documento.Tamano(), 0, "k", Agrupacion::Sola);
    Pagina(puesta.filas, puesta.documento.Tamano());
    estado.PauseTiming();
    puesta.documento.Reemplazar(0, 0, "k", Agrupacion::Sola);
    while (!puesta.filas.Avanzar(1000)) continue;
    estado.ResumeTiming();
  }
}

void Partir(benchmark::State& estado, const Avances& avances) {
  Puesta& puesta = Puesta::De(estado, avances);
  Punto ancho = 500 * Pixel;
  for ([[maybe_unused]] auto vuelta : estado) {
    puesta.filas.Configurar(avances, ancho ^= Pixel);
    while (!puesta.filas.Avanzar(1000)) continue;
  }
  PorByte(estado, estado.range(1));
  estado.counters["index%"] = puesta.indice;
}

void Anchos(benchmark::State& estado, const Avances& avances) {
  Puesta& puesta = Puesta::De(estado, avances);
  for ([[maybe_unused]] auto vuelta : estado) {
    puesta.lineas.Configurar(avances);
    while (!puesta.lineas.Avanzar(1000)) continue;
  }
  PorByte(estado, estado.range(1));
}

void PaginaSuelta(benchmark::State& estado) {
  Puesta& puesta = Puesta::De(estado);
  Posicion pos = 0;
  for ([[maybe_unused]] auto vuelta : estado) {
    pos = (pos + Posicion{7919} * 1013) % puesta.documento.Tamano();
    Pagina(puesta.filas, pos);
  }
}

void Textos(benchmark::internal::Benchmark* prueba) {
  prueba->ArgsProduct({Formas, {1 << 10, 1 << 20, 100 << 20, 1 << 30}});
  prueba->MinTime(0.1)->Unit(benchmark::kMicrosecond)->ArgNames({"shape", "bytes"});
}

void Lugares(benchmark::internal::Benchmark* prueba) {
  prueba->ArgsProduct({Formas, {1 << 10, 1 << 20, 100 << 20, 1 << 30}, {0, 50, 100}});
  prueba->MinTime(0.1)->Unit(benchmark::kMicrosecond)->ArgNames({"shape", "bytes", "percent"});
}

BENCHMARK_CAPTURE(Tecla, wrapped, false)->Apply(Lugares);
BENCHMARK_CAPTURE(Tecla, lines, true)->Apply(Lugares);
BENCHMARK(Salto)->Apply(Textos);
BENCHMARK_CAPTURE(Partir, fixed, Fijos())->Apply(Textos);
BENCHMARK_CAPTURE(Partir, proportional, Proporcionales())->Apply(Textos);
BENCHMARK_CAPTURE(Anchos, proportional, Proporcionales())->Apply(Textos);
BENCHMARK(PaginaSuelta)->Apply(Textos);

}  // namespace
