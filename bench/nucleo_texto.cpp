// What the core of the text box costs, from 1 KB to 100 MB, for texts of four shapes.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "bench/textos.h"
#include "text_box/documento.h"
#include "text_box/filas.h"
#include "text_box/renglones_lineas.h"

namespace {

constexpr Punto Pixel = 64;

Avances Fijos() {
  Avances avances;
  avances.ancho.fill(7 * Pixel);
  avances.tabulador = 56 * Pixel;
  return avances;
}

Avances Proporcionales() {
  Avances avances = Fijos();
  for (std::size_t i = 0; i < avances.ancho.size(); ++i)
    avances.ancho[i] = static_cast<std::int32_t>(3 * Pixel + i * 37 % (7 * Pixel));
  return avances;
}

// A document with its wrapped rows, as a view keeps them.
class Puesta : public Observador {
 public:
  explicit Puesta(const benchmark::State& estado, const Avances& avances = Fijos())
      : Puesta(static_cast<Forma>(estado.range(0)), estado.range(1), avances) {}
  Puesta(Forma forma, std::int64_t n, const Avances& avances) {
    documento.Poner(Texto(forma, n));
    documento.Observar(this);
    filas.Configurar(avances, 500 * Pixel);
    while (!filas.Avanzar(1000)) continue;
    lineas.Configurar(avances);
    while (!lineas.Avanzar(1000)) continue;
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

std::string Archivo(std::int64_t n) {
  std::string ruta = "/tmp/nucleo_textoXXXXXX";
  const int descriptor = mkstemp(ruta.data());
  const std::string texto = Texto(Lineas80, n);
  if (write(descriptor, texto.data(), texto.size()) < 0) std::abort();
  close(descriptor);
  return ruta;
}

void LeerSinMas(benchmark::State& estado) {
  const std::string ruta = Archivo(estado.range(0));
  for (auto vuelta : estado) {
    Bytes bytes;
    const auto n = static_cast<std::size_t>(estado.range(0));
    const std::span<char> sitio = bytes.ReservarFinal(n);
    const int descriptor = open(ruta.c_str(), O_RDONLY | O_CLOEXEC);
    benchmark::DoNotOptimize(read(descriptor, sitio.data(), n));
    close(descriptor);
  }
  unlink(ruta.c_str());
}

void Cargar(benchmark::State& estado) {
  const std::string ruta = Archivo(estado.range(0));
  for (auto vuelta : estado) {
    Documento documento;
    auto lector =
        LectorArchivo::Abrir(QString::fromStdString(ruta), LectorArchivo::SiFalta::Fallar);
    if (!documento.Cargar(lector.Valor()).Bien()) std::abort();
  }
  unlink(ruta.c_str());
}

// A key at so many percent of the text, with the page around it.
void Tecla(benchmark::State& estado, bool sin_ajustar) {
  Puesta puesta(estado);
  puesta.sin_ajustar = sin_ajustar;
  const Renglones& renglones =
      sin_ajustar ? static_cast<const Renglones&>(puesta.lineas) : puesta.filas;
  Posicion pos = puesta.documento.Tamano() * estado.range(2) / 100;
  for (auto vuelta : estado) {
    puesta.documento.Reemplazar(pos++, 0, "k", Agrupacion::Escribir);
    Pagina(renglones, pos);
    benchmark::DoNotOptimize(renglones.XDe(renglones.InicioDe(pos), pos));
  }
}

// A key at the end when the gap is at the start, and back.
void Salto(benchmark::State& estado) {
  Puesta puesta(estado);
  for (auto vuelta : estado) {
    puesta.documento.Reemplazar(puesta.documento.Tamano(), 0, "k", Agrupacion::Sola);
    Pagina(puesta.filas, puesta.documento.Tamano());
    estado.PauseTiming();
    puesta.documento.Reemplazar(0, 0, "k", Agrupacion::Sola);
    while (!puesta.filas.Avanzar(1000)) continue;
    estado.ResumeTiming();
  }
}

void Partir(benchmark::State& estado, const Avances& avances) {
  Puesta puesta(estado, avances);
  Punto ancho = 500 * Pixel;
  for (auto vuelta : estado) {
    puesta.filas.Configurar(avances, ancho ^= Pixel);
    while (!puesta.filas.Avanzar(1000)) continue;
  }
}

void Anchos(benchmark::State& estado, const Avances& avances) {
  Puesta puesta(estado, avances);
  for (auto vuelta : estado) {
    puesta.lineas.Configurar(avances);
    while (!puesta.lineas.Avanzar(1000)) continue;
  }
}

void PaginaSuelta(benchmark::State& estado) {
  Puesta puesta(estado);
  Posicion pos = 0;
  for (auto vuelta : estado) {
    pos = (pos + 7919 * 1013) % puesta.documento.Tamano();
    Pagina(puesta.filas, pos);
  }
}

void Tamanos(benchmark::internal::Benchmark* prueba) {
  for (const std::int64_t n : {1 << 10, 100 << 10, 10 << 20, 100 << 20}) prueba->Arg(n);
  prueba->Unit(benchmark::kMicrosecond);
}

void Textos(benchmark::internal::Benchmark* prueba) {
  for (const std::int64_t forma : {Lineas80, UnaLinea, SoloFines, SinBlancos})
    for (const std::int64_t n : {1 << 10, 1 << 20, 10 << 20, 100 << 20}) prueba->Args({forma, n});
  prueba->Unit(benchmark::kMicrosecond)->ArgNames({"shape", "bytes"});
}

void Lugares(benchmark::internal::Benchmark* prueba) {
  for (const std::int64_t forma : {Lineas80, UnaLinea, SoloFines, SinBlancos})
    for (const std::int64_t n : {1 << 10, 1 << 20, 10 << 20, 100 << 20})
      for (const std::int64_t lugar : {0, 50, 100}) prueba->Args({forma, n, lugar});
  prueba->Unit(benchmark::kMicrosecond)->ArgNames({"shape", "bytes", "percent"});
}

BENCHMARK(LeerSinMas)->Apply(Tamanos);
BENCHMARK(Cargar)->Apply(Tamanos);
BENCHMARK_CAPTURE(Tecla, wrapped, false)->Apply(Lugares);
BENCHMARK_CAPTURE(Tecla, lines, true)->Apply(Lugares);
BENCHMARK(Salto)->Apply(Textos);
BENCHMARK_CAPTURE(Partir, fixed, Fijos())->Apply(Textos);
BENCHMARK_CAPTURE(Partir, proportional, Proporcionales())->Apply(Textos);
BENCHMARK_CAPTURE(Anchos, proportional, Proporcionales())->Apply(Textos);
BENCHMARK(PaginaSuelta)->Apply(Textos);

}  // namespace
