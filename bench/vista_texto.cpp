// What a user of the text box waits for: a key with the repaint, a page, a jump, the other view.
// Arguments: kilobytes, wrapped (1) or not (0), and where: 0 start, 1 middle, 2 end.
#include <benchmark/benchmark.h>
#include <memory>
#include <string>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>

#include "text_box/caja_texto.h"

namespace {

constexpr QSize Ventana(560, 480);
constexpr QSize Maximizada(1920, 1080);

std::string Renglones80(std::int64_t bytes) {
  static const std::string linea =
      "El veloz murcielago hindu comia feliz cardillo y kiwi; la ciguena tocaba el sax\n";
  std::string texto;
  texto.reserve(std::size_t(bytes) + linea.size());
  while (std::int64_t(texto.size()) < bytes) texto += linea;
  return texto;
}

std::string UnaLinea(std::int64_t bytes) {
  std::string texto = Renglones80(bytes);
  for (char& caracter : texto)
    if (caracter == '\n') caracter = ' ';
  return texto;
}

struct Mesa {
  Mesa(const std::string& texto, bool ajustada, const QSize& tamano)
      : caja(documento, ajustada ? CajaTexto::Ajuste::AlAncho : CajaTexto::Ajuste::SinAjustar),
        lienzo(tamano, QImage::Format_RGB32) {
    documento.Poner(texto);
    caja.PonerFuente(QFont(QStringLiteral("Liberation Mono"), 10));
    caja.resize(tamano);
    caja.show();
    Reposar();
  }

  void Reposar() {
    do QApplication::processEvents();
    while (!caja.Vista().Completo());
  }
  void Pintar() { caja.viewport()->render(&lienzo); }
  void Tecla(int tecla, Qt::KeyboardModifiers modificadores = {}, const QString& texto = {}) {
    QKeyEvent evento(QEvent::KeyPress, tecla, modificadores, texto);
    QApplication::sendEvent(&caja, &evento);
    Pintar();
  }

  Documento documento;
  CajaTexto caja;
  QImage lienzo;
};

// A letter and Backspace by turns, so that the line stays in sight.
void Teclear(benchmark::State& estado, Mesa& mesa, std::int64_t donde) {
  const Posicion pos = mesa.documento.Tamano() * donde / 2;
  mesa.caja.PonerCursor(pos, pos);
  bool letra = false;
  for (auto _ : estado) {
    letra = !letra;
    if (letra)
      mesa.Tecla(Qt::Key_A, {}, QStringLiteral("a"));
    else
      mesa.Tecla(Qt::Key_Backspace);
  }
}

void TeclaYPintura(benchmark::State& estado) {
  Mesa mesa(Renglones80(estado.range(0) << 10), estado.range(1) != 0, Ventana);
  Teclear(estado, mesa, estado.range(2));
}

void TeclaMaximizada(benchmark::State& estado) {
  Mesa mesa(Renglones80(estado.range(0) << 10), estado.range(1) != 0, Maximizada);
  Teclear(estado, mesa, estado.range(2));
}

void TeclaEnUnaLinea(benchmark::State& estado) {
  Mesa mesa(UnaLinea(estado.range(0) << 10), estado.range(1) != 0, Ventana);
  Teclear(estado, mesa, estado.range(2));
}

void Pagina(benchmark::State& estado) {
  Mesa mesa(Renglones80(estado.range(0) << 10), estado.range(1) != 0, Ventana);
  for (auto _ : estado) mesa.Tecla(Qt::Key_PageDown);
}

void Salto(benchmark::State& estado) {
  Mesa mesa(Renglones80(estado.range(0) << 10), estado.range(1) != 0, Ventana);
  for (auto _ : estado) {
    mesa.Tecla(Qt::Key_End, Qt::ControlModifier);
    mesa.Tecla(Qt::Key_Home, Qt::ControlModifier);
  }
}

// The other view is shown after a change, so its rows are made anew; then all of them.
void OtraVista(benchmark::State& estado) {
  Mesa mesa(Renglones80(estado.range(0) << 10), false, Ventana);
  CajaTexto otra(mesa.documento, CajaTexto::Ajuste::AlAncho);
  otra.PonerFuente(mesa.caja.Fuente());
  otra.resize(Ventana);
  const bool todo = estado.range(1) != 0;
  for (auto _ : estado) {
    mesa.Tecla(Qt::Key_A, {}, QStringLiteral("a"));
    otra.show();
    otra.viewport()->render(&mesa.lienzo);
    if (todo)
      while (!otra.Vista().Completo()) QApplication::processEvents();
    otra.hide();
  }
}

void Tamanos(benchmark::internal::Benchmark* banco) {
  for (const int kilobytes : {1, 1 << 10, 100 << 10})
    for (const int ajustada : {0, 1})
      for (const int donde : {0, 1, 2}) banco->Args({kilobytes, ajustada, donde});
}

}  // namespace

BENCHMARK(TeclaYPintura)->Apply(Tamanos)->Unit(benchmark::kMicrosecond);
BENCHMARK(TeclaMaximizada)
    ->Args({1 << 10, 0, 1})
    ->Args({100 << 10, 1, 1})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(TeclaEnUnaLinea)
    ->ArgsProduct({{10 << 10}, {0, 1}, {0, 1, 2}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Pagina)->ArgsProduct({{100 << 10}, {0, 1}})->Unit(benchmark::kMicrosecond);
BENCHMARK(Salto)->ArgsProduct({{100 << 10}, {0, 1}})->Unit(benchmark::kMicrosecond);
BENCHMARK(OtraVista)->ArgsProduct({{1 << 10, 100 << 10}, {0, 1}})->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
