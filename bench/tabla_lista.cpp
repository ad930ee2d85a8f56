// The list of files: built one by one, and from the favourite folders.
#include <algorithm>
#include <dirent.h>
#include <memory>

#include <QCollator>
#include <QDir>
#include <QFile>

#include "bench/suelos.h"
#include "bench/tabla.h"
#include "bench/ventanas.h"
#include "main_window/lista_archivos.h"
#include "shared/descriptor.h"
#include "shared/favoritas.h"
#include "shared/rutas.h"

namespace {

constexpr int PorCarpeta = 1000;

std::string Archivos(int cuantos) {
  return std::to_string(cuantos) + " files";
}

QStringList Rutas(int cuantas) {
  QStringList rutas;
  for (int i = 0; i < cuantas; ++i) {
    rutas << QStringLiteral("/una/carpeta/%1 ñandú.txt").arg(i * 7919 % 32768);
  }
  return rutas;
}

void FilaUnoAUno(Tabla& tabla, int cuantos) {
  const QStringList rutas = Rutas(cuantos);
  const auto anadir = [&] {
    ListaArchivos lista;
    const double segundos = Segundos([&] {
      for (const QString& ruta : rutas) {
        if (lista.Buscar(ruta) < 0) lista.Agregar(ruta);
      }
    });
    Exigir(lista.Total() == cuantos, "the list is not complete");
    return segundos;
  };
  const auto suelo = [&] {
    QStringList nombres;
    QCollator orden(QLocale(QLocale::Spanish, QLocale::Spain));
    orden.setCaseSensitivity(Qt::CaseInsensitive);
    const double segundos = Segundos([&] {
      for (const QString& ruta : rutas) nombres << ruta.mid(ruta.lastIndexOf(u'/') + 1);
      std::sort(nombres.begin(), nombres.end(), orden);
    });
    Exigir(nombres.size() == cuantos && orden.compare(nombres.first(), nombres.last()) <= 0,
           "the names are not sorted");
    return segundos;
  };
  tabla.Medir({"list, one by one", Archivos(cuantos), cuantos, PorArchivo}, anadir, suelo);
}

// Folders with a thousand texts each. They are made once: where many files were deleted a moment
// ago a disk takes its time to make others.
class Carpetas {
 public:
  explicit Carpetas(int cuantas) {
    for (int i = 0; i < cuantas; ++i) {
      nombres_ << raiz_.filePath(QStringLiteral("Notas ñ %1").arg(i));
      Exigir(QDir().mkdir(nombres_.last()), "a folder could not be made");
      for (int j = 0; j < PorCarpeta; ++j) {
        QFile archivo(
            QStringLiteral("%1/%2 ñandú.txt").arg(nombres_.last()).arg(j * 7919 % 100003));
        Exigir(archivo.open(QIODevice::WriteOnly), "a file could not be made");
      }
    }
  }
  QStringList Primeras(int cuantas) const { return nombres_.first(cuantas); }

 private:
  QTemporaryDir raiz_;
  QStringList nombres_;
};

int Entradas(const QStringList& carpetas) {
  int halladas = 0;
  for (const QString& nombre : carpetas) {
    DIR* carpeta = ::opendir(RutaDelSistema(nombre).constData());
    while (const dirent* entrada = ::readdir(carpeta)) {
      if (entrada->d_name[0] != '.') ++halladas;
    }
    ::closedir(carpeta);
  }
  return halladas;
}

double Listar(Ventanas& ventanas, int total) {
  const double segundos = Segundos([&] {
    ventanas.Principal().ImgMenu_Click(Ventanas::Favoritas);
    ventanas.PintarLista();
  });
  ventanas.ExigirTotal(total);
  return segundos;
}

void FilasFavoritas(Tabla& tabla, const QStringList& carpetas) {
  const int total = PorCarpeta * static_cast<int>(carpetas.size());
  Ventanas listadas;  // what lists them once more
  GuardarFavoritas(listadas.Gral(), carpetas);
  Listar(listadas, total);
  const auto listar = [&] {
    Ventanas ventanas;
    GuardarFavoritas(ventanas.Gral(), carpetas);
    return Listar(ventanas, total);
  };
  Vacia vacia(listadas.TamanoLista());
  const auto suelo = [&] {
    int hallados = 0;
    const double segundos = Segundos([&] {
      hallados = Entradas(carpetas);
      vacia.Pintar();
    });
    Exigir(hallados == total, "the folders hold another number of files");
    return segundos;
  };
  tabla.Medir({"favourites", Archivos(total), total, PorArchivo}, listar, suelo);
  tabla.Medir(
      {"favourites once more", Archivos(total), total, PorArchivo},
      [&] { return Listar(listadas, total); }, suelo);
}

}  // namespace

void MedirLista(Tabla& tabla) {
  for (const int cuantos : {512, 2048, 8192, 32767}) FilaUnoAUno(tabla, cuantos);
  const Carpetas carpetas(30);
  for (const int cuantas : {1, 8, 30}) FilasFavoritas(tabla, carpetas.Primeras(cuantas));
}
