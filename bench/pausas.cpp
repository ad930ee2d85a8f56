// For how long the window does not answer: of all that one action sets off until nothing is left
// to do, the longest that a single event takes.
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>

#include <QApplication>
#include <QClipboard>

#include "bench/caja_llena.h"

namespace {

using Reloj = std::chrono::steady_clock;

// Takes the time of every event, those sent from within another one included in it.
class Aplicacion : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* quien, QEvent* evento) override {
    if (dentro_) return QApplication::notify(quien, evento);
    dentro_ = true;
    const Reloj::time_point antes = Reloj::now();
    const bool hecho = QApplication::notify(quien, evento);
    mayor_ = std::max(mayor_, std::chrono::duration<double>(Reloj::now() - antes).count());
    dentro_ = false;
    return hecho;
  }
  double SacarMayor() { return std::exchange(mayor_, 0.0); }

 private:
  bool dentro_ = false;
  double mayor_ = 0;
};

Aplicacion& LaAplicacion() {
  return *static_cast<Aplicacion*>(qApp);
}

struct Mesa : CajaLlena {
  using CajaLlena::CajaLlena;

  void Tecla(int tecla, Qt::KeyboardModifiers modificadores = {}, const QString& texto = {}) {
    Pulsar(tecla, modificadores, texto);
    Reposar();
  }
};

struct Accion {
  const char* nombre;
  std::function<void(Mesa&)> hacer;
};

const auto Acciones = std::to_array<Accion>({
    {"jump to the end", [](Mesa& m) { m.Tecla(Qt::Key_End, Qt::ControlModifier); }},
    {"first key there", [](Mesa& m) { m.Tecla(Qt::Key_A, {}, QStringLiteral("a")); }},
    {"jump to the start", [](Mesa& m) { m.Tecla(Qt::Key_Home, Qt::ControlModifier); }},
    {"key at the start", [](Mesa& m) { m.Tecla(Qt::Key_A, {}, QStringLiteral("a")); }},
    {"caret in the middle",
     [](Mesa& m) {
       const Posicion medio = m.documento.Tamano() / 2;
       m.caja.PonerCursor(medio, medio);
       m.Reposar();
     }},
    {"key in the middle", [](Mesa& m) { m.Tecla(Qt::Key_A, {}, QStringLiteral("a")); }},
    {"next key there", [](Mesa& m) { m.Tecla(Qt::Key_A, {}, QStringLiteral("a")); }},
    {"undo", [](Mesa& m) { m.Tecla(Qt::Key_Z, Qt::ControlModifier); }},
    {"undo far away", [](Mesa& m) { m.Tecla(Qt::Key_Z, Qt::ControlModifier); }},
    {"other width",
     [](Mesa& m) {
       m.caja.resize(640, 480);
       m.Reposar();
     }},
    {"other font",
     [](Mesa& m) {
       m.caja.PonerFuente(QFont(QStringLiteral("Liberation Sans"), 11));
       m.Reposar();
     }},
    {"select all", [](Mesa& m) { m.Tecla(Qt::Key_A, Qt::ControlModifier); }},
    {"copy", [](Mesa& m) { m.Tecla(Qt::Key_C, Qt::ControlModifier); }},
    {"delete all", [](Mesa& m) { m.Tecla(Qt::Key_Delete); }},
    {"undo it", [](Mesa& m) { m.Tecla(Qt::Key_Z, Qt::ControlModifier); }},
    {"redo it", [](Mesa& m) { m.Tecla(Qt::Key_Y, Qt::ControlModifier); }},
    {"paste all", [](Mesa& m) { m.Tecla(Qt::Key_V, Qt::ControlModifier); }},
});

// Not the longest of several turns: each action is done once, one after the other.
void Pausas(benchmark::State& estado) {
  for ([[maybe_unused]] auto vuelta : estado) {
    Mesa mesa(static_cast<Forma>(estado.range(0)), estado.range(1) << 20, estado.range(2) != 0,
              QSize(560, 480));
    LaAplicacion().SacarMayor();
    for (const Accion& accion : Acciones) {
      accion.hacer(mesa);
      estado.counters[accion.nombre] = LaAplicacion().SacarMayor() * 1000;
    }
    QApplication::clipboard()->clear();
  }
}

BENCHMARK(Pausas)
    ->ArgNames({"shape", "megabytes", "wrapped"})
    ->ArgsProduct({{Lineas80, UnaLinea, SoloFines, SinBlancos}, {1, 100, 1024}, {0, 1}})
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const Aplicacion app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
