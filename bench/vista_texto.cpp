// What a user of the text box waits for: a key with the repaint, a page, a jump, the other view.
// Place: 0 start, 1 middle, 2 end.
#include <array>
#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

#include <QApplication>
#include <QImage>

#include "bench/caja_llena.h"

namespace {

constexpr QSize Ventana(560, 480);
constexpr QSize Maximizada(1920, 1080);

struct Mesa : CajaLlena {
  Mesa(Forma forma, std::int64_t megabytes, bool ajustada, const QSize& tamano)
      : CajaLlena(forma, std::max<std::int64_t>(megabytes << 20, 1024), ajustada, tamano),
        lienzo(tamano, QImage::Format_RGB32) {}

  void Pintar() { caja.viewport()->render(&lienzo); }
  void Tecla(int tecla, Qt::KeyboardModifiers modificadores = {}, const QString& texto = {}) {
    Pulsar(tecla, modificadores, texto);
    Pintar();
  }

  QImage lienzo;
};

// By shape, megabytes (0 is one kilobyte) and wrapping. The last one is kept: making one of a
// gigabyte takes longer than what is measured.
Mesa& LaMesa(const benchmark::State& estado, const QSize& tamano = Ventana) {
  static std::unique_ptr<Mesa> mesa;
  static std::array<std::int64_t, 4> clave{};
  const std::array<std::int64_t, 4> otra{estado.range(0), estado.range(1), estado.range(2),
                                         tamano.width()};
  if (mesa && clave == otra) return *mesa;
  mesa.reset();
  mesa = std::make_unique<Mesa>(static_cast<Forma>(otra[0]), otra[1], otra[2] != 0, tamano);
  clave = otra;
  return *mesa;
}

// A letter and Backspace by turns, so that the line stays in sight.
void Teclear(benchmark::State& estado, Mesa& mesa, std::int64_t donde) {
  const Posicion pos = mesa.documento.Tamano() * donde / 2;
  mesa.caja.PonerCursor(pos, pos);
  bool letra = false;
  for ([[maybe_unused]] auto vuelta : estado) {
    letra = !letra;
    if (letra) {
      mesa.Tecla(Qt::Key_A, {}, QStringLiteral("a"));
    } else {
      mesa.Tecla(Qt::Key_Backspace);
    }
  }
}

void TeclaYPintura(benchmark::State& estado) {
  Teclear(estado, LaMesa(estado), estado.range(3));
}

void TeclaMaximizada(benchmark::State& estado) {
  Teclear(estado, LaMesa(estado, Maximizada), estado.range(3));
}

// A key far from the last one.
void PrimeraTecla(benchmark::State& estado) {
  Mesa& mesa = LaMesa(estado);
  bool fin = false;
  for ([[maybe_unused]] auto vuelta : estado) {
    estado.PauseTiming();
    fin = !fin;
    mesa.Tecla(fin ? Qt::Key_End : Qt::Key_Home, Qt::ControlModifier);
    mesa.Reposar();
    estado.ResumeTiming();
    mesa.Tecla(Qt::Key_A, {}, QStringLiteral("a"));
  }
}

void Pagina(benchmark::State& estado) {
  Mesa& mesa = LaMesa(estado);
  for ([[maybe_unused]] auto vuelta : estado) mesa.Tecla(Qt::Key_PageDown);
}

void Salto(benchmark::State& estado) {
  Mesa& mesa = LaMesa(estado);
  bool fin = false;
  for ([[maybe_unused]] auto vuelta : estado) {
    fin = !fin;
    mesa.Tecla(fin ? Qt::Key_End : Qt::Key_Home, Qt::ControlModifier);
  }
}

// All rows known again, of a font as it is installed.
void OtroAncho(benchmark::State& estado) {
  Mesa& mesa = LaMesa(estado);
  mesa.caja.PonerFuente(QFont(QStringLiteral("Liberation Sans"), 10));
  int ancho = Ventana.width();
  for ([[maybe_unused]] auto vuelta : estado) {
    mesa.caja.resize(ancho ^= 1, Ventana.height());
    mesa.Reposar();
  }
  mesa.caja.PonerFuente(QFont(QStringLiteral("Liberation Mono"), 10));
}

// The other view is shown after a change, so its rows are made anew: the first picture.
void OtraVista(benchmark::State& estado) {
  Mesa& mesa = LaMesa(estado);
  CajaTexto otra(mesa.documento, CajaTexto::Ajuste::AlAncho);
  otra.PonerFuente(mesa.caja.Fuente());
  otra.resize(Ventana);
  for ([[maybe_unused]] auto vuelta : estado) {
    mesa.Tecla(Qt::Key_A, {}, QStringLiteral("a"));
    otra.show();
    otra.viewport()->render(&mesa.lienzo);
    otra.hide();
  }
}

const std::vector<std::int64_t> Formas{Lineas80, UnaLinea, SoloFines, SinBlancos};

}  // namespace

BENCHMARK(TeclaYPintura)
    ->ArgsProduct({Formas, {0, 1, 100, 1024}, {0, 1}, {0, 1, 2}})
    ->ArgNames({"shape", "MB", "wrapped", "place"})
    ->MinTime(0.05)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(TeclaMaximizada)
    ->ArgsProduct({{Lineas80}, {100}, {0, 1}, {1}})
    ->ArgNames({"shape", "MB", "wrapped", "place"})
    ->Unit(benchmark::kMicrosecond);
// By shape, size and wrapping.
void Casos(benchmark::internal::Benchmark* banco) {
  banco->ArgsProduct({Formas, {0, 1, 100, 1024}, {0, 1}})->ArgNames({"shape", "MB", "wrapped"});
  banco->Unit(benchmark::kMicrosecond);
}
void CasosAjustados(benchmark::internal::Benchmark* banco) {
  banco->ArgsProduct({Formas, {0, 1, 100, 1024}, {1}})->ArgNames({"shape", "MB", "wrapped"});
  banco->Unit(benchmark::kMillisecond)->MinTime(0.05);
}

BENCHMARK(Pagina)->Apply(Casos)->MinTime(0.05);
BENCHMARK(Salto)->Apply(Casos)->MinTime(0.05);
BENCHMARK(PrimeraTecla)->Apply(Casos)->Iterations(4);
BENCHMARK(OtroAncho)->Apply(CasosAjustados);
BENCHMARK(OtraVista)->Apply(CasosAjustados);

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
