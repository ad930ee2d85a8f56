// Listing the favourite folders: what the program adds to reading the folders, and the merge of
// many files into the list. Both must grow with the number of files and no faster.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "main_window/lista_archivos.h"
#include "platform/unidades.h"

namespace {

constexpr int PorCarpeta = 1000;

// Folders with a thousand texts each, made once.
const QStringList& Carpetas(int cuantas) {
  static const QTemporaryDir raiz;
  static QStringList carpetas;
  while (carpetas.size() < cuantas) {
    carpetas << raiz.filePath(QStringLiteral("Notas ñ %1").arg(carpetas.size()));
    QDir().mkdir(carpetas.last());
    for (int i = 0; i < PorCarpeta; ++i) {
      QFile archivo(QStringLiteral("%1/%2 ñandú.txt").arg(carpetas.last()).arg(i * 7919 % 100003));
      (void)archivo.open(QIODevice::WriteOnly);
    }
  }
  return carpetas;
}

// The folders alone, read with nothing added.
void LeerSolo(benchmark::State& estado) {
  const QStringList carpetas = Carpetas(static_cast<int>(estado.range(0)));
  for (auto vuelta : estado) {
    for (int i = 0; i < estado.range(0); ++i) {
      benchmark::DoNotOptimize(LeerCarpeta(carpetas[i], Busca::Textos));
    }
  }
}

void Listar(benchmark::State& estado) {
  const QStringList carpetas = Carpetas(static_cast<int>(estado.range(0)));
  UnidadesReales unidades;
  for (auto vuelta : estado) {
    ListaArchivos lista;
    QStringList rutas;
    for (int i = 0; i < estado.range(0); ++i) {
      const auto leida = unidades.Leer(carpetas[i], Busca::Textos);
      for (const QString& nombre : leida.Valor().nombres) {
        rutas << leida.Valor().carpeta + u'/' + nombre;
      }
    }
    benchmark::DoNotOptimize(lista.AgregarVarios(rutas));
  }
  estado.SetComplexityN(estado.range(0) * PorCarpeta);
}

// The second run of the command: everything is listed already.
void ListarOtraVez(benchmark::State& estado) {
  QStringList rutas;
  for (int i = 0; i < estado.range(0); ++i) {
    rutas << QStringLiteral("/notas/%1.txt").arg(i * 7919 % 32771);
  }
  ListaArchivos lista;
  lista.AgregarVarios(rutas);
  for (auto vuelta : estado) {
    benchmark::DoNotOptimize(lista.AgregarVarios(rutas));
  }
  estado.SetComplexityN(estado.range(0));
}

BENCHMARK(LeerSolo)->Arg(30)->Unit(benchmark::kMillisecond);
BENCHMARK(Listar)->Arg(1)->Arg(8)->Arg(30)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(ListarOtraVez)
    ->RangeMultiplier(8)
    ->Range(512, 32767)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication aplicacion(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
