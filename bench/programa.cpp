// What the user waits for in the windows, offscreen: the next file of the list, shown and
// repainted; opening a large file; building a long list one file at a time.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include "dobles/escritorio_falso.h"
#include "main_window/frm_main.h"
#include "main_window/lista_archivos.h"

namespace {

constexpr int Siguiente = 8;
constexpr int Anterior = 7;

QByteArray Lineas(qsizetype bytes) {
  QByteArray texto;
  texto.reserve(bytes + 80);
  while (texto.size() < bytes) {
    texto += "una linea de texto corriente con sus palabras, de ochenta caracteres mas o menos\n";
  }
  return texto;
}

// The program with `archivos` files of `bytes` bytes each in its list.
struct Programa {
  Programa(int archivos, qsizetype bytes) : principal(gral, escritorio.Servicios()) {
    principal.MostrarSinActivar();
    principal.DarFoco();
    gral.ArchivoINI = carpeta.filePath(QStringLiteral("Velda.INI"));
    const QByteArray texto = Lineas(bytes);
    for (int i = 0; i < archivos; ++i) {
      QFile archivo(carpeta.filePath(QString::number(i)));
      (void)archivo.open(QIODevice::WriteOnly);
      archivo.write(texto);
      archivo.close();
      escritorio.dialogos.respuesta = archivo.fileName();
      principal.ImgMenu_Click(0);
    }
    QApplication::processEvents();
  }

  QTemporaryDir carpeta;
  AccesoPerfilArchivo ajustes;
  ModGral gral{ajustes};
  EscritorioFalso escritorio;
  FrmMain principal;
};

void ArchivoSiguiente(benchmark::State& estado) {
  Programa programa(2, estado.range(0));
  bool atras = true;
  for (auto vuelta : estado) {
    programa.principal.ImgMenu_Click(atras ? Anterior : Siguiente);
    atras = !atras;
    QApplication::processEvents();  // the repaint
  }
  estado.SetBytesProcessed(static_cast<std::int64_t>(estado.iterations()) * estado.range(0));
}

void ListaDeUnoEnUno(benchmark::State& estado) {
  const auto cuantos = static_cast<int>(estado.range(0));
  for (auto vuelta : estado) {
    ListaArchivos lista;
    for (int i = 0; i < cuantos; ++i) {
      lista.Agregar(QStringLiteral("/una/carpeta/%1.txt").arg(i * 7919 % 32768));
    }
    benchmark::DoNotOptimize(lista.Total());
  }
  estado.SetComplexityN(cuantos);
}

BENCHMARK(ArchivoSiguiente)
    ->Unit(benchmark::kMillisecond)
    ->Arg(1024)
    ->Arg(100 * 1024)
    ->Arg(10 * 1024 * 1024)
    ->Arg(100 * 1024 * 1024);
BENCHMARK(ListaDeUnoEnUno)
    ->Unit(benchmark::kMillisecond)
    ->RangeMultiplier(4)
    ->Range(512, 32767)
    ->Complexity();

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
