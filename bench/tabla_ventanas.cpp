// The whole program: the same text in its other view, and the next file of the list.
#include <cstring>
#include <numeric>
#include <string>

#include <QCheckBox>

#include "bench/mesa.h"
#include "bench/suelos.h"
#include "bench/tabla.h"
#include "bench/textos.h"
#include "bench/ventanas.h"

namespace {

const QString Uno = QStringLiteral("1.txt");
const QString Otro = QStringLiteral("2.txt");

// The caret in the middle of a text whose other view knows nothing of it, because of a key.
void PrepararCambio(Ventanas& ventanas, bool ajustar) {
  ventanas.ChkAjustar().setChecked(!ajustar);
  ventanas.Reposar();
  CajaTexto& caja = ventanas.Caja();
  caja.PonerCursor(caja.Texto().Tamano() / 2, caja.Texto().Tamano() / 2);
  Pulsar(caja, Qt::Key_A, QStringLiteral("a"));
  Pulsar(caja, Qt::Key_Backspace);
  ventanas.Reposar();
}

void FilaOtraVista(Tabla& tabla, std::int64_t bytes, bool ajustar) {
  Ventanas ventanas;
  ventanas.AbrirArchivo(Uno, bytes);
  Vacia vacia(ventanas.TamanoTexto());
  const auto cambiar = [&] {
    PrepararCambio(ventanas, ajustar);
    const CajaTexto* antes = &ventanas.Caja();
    const double segundos = Segundos([&] {
      ventanas.ChkAjustar().setChecked(ajustar);
      ventanas.PintarTexto();
    });
    Exigir(antes != &ventanas.Caja(), "the view did not change");
    ventanas.ExigirTexto(Uno, bytes);
    return segundos;
  };
  tabla.Medir({ajustar ? "wrap on, first picture" : "wrap off, first picture", EnBytes(bytes), 1,
               PorImagen},
              cambiar, [&] { return Segundos([&] { vacia.Pintar(); }); });
}

double Recorrer(const std::string& texto) {
  std::int64_t lineas = 0;
  std::uint64_t suma = 0;
  const double segundos = Segundos([&] {
    const char* fin = texto.data() + texto.size();
    for (const char* pos = texto.data(); pos != nullptr && pos != fin; ++lineas) {
      const void* hallado = std::memchr(pos, '\n', fin - pos);
      pos = hallado == nullptr ? nullptr : static_cast<const char*>(hallado) + 1;
    }
    suma =
        std::accumulate(texto.begin(), texto.end(), std::uint64_t{0},
                        [](std::uint64_t s, char c) { return s + static_cast<unsigned char>(c); });
  });
  Exigir(lineas >= static_cast<std::int64_t>(texto.size()) / LargoLinea && suma > texto.size(),
         "a pass over the text saw too little");
  return segundos;
}

void FilaTodasLasFilas(Tabla& tabla, std::int64_t bytes, bool ajustar) {
  Ventanas ventanas;
  ventanas.AbrirArchivo(Uno, bytes);
  const std::string texto = Texto(Lineas80, bytes);
  const auto cambiar = [&] {
    PrepararCambio(ventanas, ajustar);
    const double segundos = Segundos([&] {
      ventanas.ChkAjustar().setChecked(ajustar);
      ventanas.Reposar();
    });
    const std::int64_t filas = ventanas.Caja().Vista().Reparto().Total();
    Exigir(filas >= bytes / LargoLinea && (filas > bytes / LargoLinea + 1) == ajustar,
           "the rows of the other view are not known");
    return segundos;
  };
  tabla.Medir({ajustar ? "wrap on, all rows" : "wrap off, all rows", EnBytes(bytes), bytes >> 20,
               PorMegabyte},
              cambiar, [&] { return Recorrer(texto); });
}

void FilaSiguiente(Tabla& tabla, std::int64_t bytes) {
  Ventanas ventanas;
  ventanas.AbrirArchivo(Uno, bytes);
  ventanas.AbrirArchivo(Otro, bytes);
  const QString ruta = ventanas.carpeta.filePath(Otro);
  const auto siguiente = [&] {
    ventanas.Principal().ImgMenu_Click(Ventanas::Anterior);
    ventanas.Reposar();
    const double segundos = Segundos([&] {
      ventanas.Principal().ImgMenu_Click(Ventanas::Siguiente);
      ventanas.PintarTexto();
    });
    ventanas.ExigirTexto(Otro, bytes);
    return segundos;
  };
  Vacia vacia(ventanas.TamanoTexto());
  const auto suelo = [&] {
    Leido leido;
    return Segundos([&] {
      leido = LeerYConvertir(ruta, bytes);
      vacia.Pintar();
    });
  };
  tabla.Medir({"next file", EnBytes(bytes), bytes, PorByte}, siguiente, suelo,
              [&] { return SegundosLeerSolo(ruta, bytes); });
}

}  // namespace

void MedirVentanas(Tabla& tabla) {
  constexpr std::int64_t KB = 1 << 10;
  constexpr std::int64_t MB = 1 << 20;
  for (const auto& fila : {FilaOtraVista, FilaTodasLasFilas}) {
    for (const bool ajustar : {true, false}) {
      tabla.PorTamanos({MB, 10 * MB, 100 * MB},
                       [&](std::int64_t bytes) { fila(tabla, bytes, ajustar); });
    }
  }
  tabla.PorTamanos({10 * KB, 100 * KB, MB, 10 * MB, 100 * MB},
                   [&](std::int64_t bytes) { FilaSiguiente(tabla, bytes); });
}
