// The picture of a text box: the first one of a file, and the one after a key.
#include <QTemporaryDir>

#include "bench/mesa.h"
#include "bench/suelos.h"
#include "bench/tabla.h"

namespace {

// As many letters, drawn by the toolkit.
Vez SoloLetras(Mesa& mesa) {
  const auto letras = std::make_shared<Letras>(mesa.Caja().size(), mesa.Caja().Fuente());
  return [letras] { return Segundos([&] { letras->Pintar(); }); };
}

void FilaPrimeraImagen(Tabla& tabla, const QString& ruta, std::int64_t bytes) {
  Mesa mesa;
  const auto primera = [&] {
    mesa.Esconder();
    mesa.Cargar(ruta, bytes);  // hidden, so that nothing of the view is made yet
    const double segundos = Segundos([&] {
      mesa.Mostrar();
      mesa.Pintar();
    });
    mesa.ExigirLetras();
    return segundos;
  };
  const auto suelo = [&] {
    mesa.Vacio().Widget().hide();
    return Segundos([&] {
      mesa.Vacio().Widget().show();
      mesa.Vacio().Pintar();
    });
  };
  tabla.Medir({"first picture", EnBytes(bytes), 1, PorImagen}, primera, suelo, SoloLetras(mesa));
}

// A letter in the middle of the text; it is taken away again.
void FilaTecla(Tabla& tabla, const QString& ruta, std::int64_t bytes) {
  Mesa mesa;
  mesa.Cargar(ruta, bytes);
  mesa.Mostrar();
  mesa.Reposar();
  mesa.AlMedio();
  const auto tecla = [&] {
    const double segundos = Segundos([&] {
      Pulsar(mesa.Caja(), Qt::Key_A, QStringLiteral("a"));
      mesa.Pintar();
    });
    Exigir(mesa.Tamano() == bytes + 1, "a key typed nothing");
    mesa.ExigirLetras();
    Pulsar(mesa.Caja(), Qt::Key_Backspace);
    return segundos;
  };
  tabla.Medir(
      {"key in the middle", EnBytes(bytes), 1, PorImagen}, tecla,
      [&] { return Segundos([&] { mesa.Vacio().Pintar(); }); }, SoloLetras(mesa));
}

}  // namespace

void MedirVista(Tabla& tabla) {
  const std::vector<std::int64_t> tamanos{10 << 10, 1 << 20, 10 << 20, 100 << 20};
  for (const auto& fila : {FilaPrimeraImagen, FilaTecla}) {
    tabla.PorTamanos(tamanos, [&](std::int64_t bytes) {
      const QTemporaryDir carpeta;
      const QString ruta = carpeta.filePath(QStringLiteral("texto"));
      EscribirArchivo(ruta, bytes);
      fila(tabla, ruta, bytes);
    });
  }
}
