// Draws an SVG at fixed sizes: SVG WIDTHxHEIGHT FILE [WIDTHxHEIGHT FILE]..., sizes in pixels. A
// file named *.png is a PNG; any other holds the bare pixels. Part of the build, not of the
// program.
#include <cstdio>
#include <cstdlib>

#include <QPainter>
#include <QSvgRenderer>

#include "pixeles.h"

namespace {

QSize Leer(const QByteArray& tamano) {
  const QByteArrayList lados = tamano.split('x');
  return lados.size() == 2 ? QSize(lados[0].toInt(), lados[1].toInt()) : QSize();
}

QImage Dibujar(QSvgRenderer& dibujo, QSize tamano) {
  QImage imagen(tamano, QImage::Format_ARGB32_Premultiplied);
  imagen.fill(Qt::transparent);
  QPainter pintor(&imagen);
  dibujo.render(&pintor, imagen.rect());
  return imagen;
}

bool Escribir(const QImage& imagen, const QString& ruta) {
  return ruta.endsWith(QStringLiteral(".png")) ? imagen.save(ruta) : EscribirPixeles(imagen, ruta);
}

int Fallar(const char* que, const char* cual) {
  std::fprintf(stderr, "dibujar: %s: %s\n", que, cual);
  return EXIT_FAILURE;
}

}  // namespace

int main(int cuantos, char** argumentos) {
  if (cuantos < 4 || cuantos % 2 != 0) return Fallar("SVG SIZE FILE...", "missing arguments");
  QSvgRenderer dibujo(QFile::decodeName(argumentos[1]));
  if (!dibujo.isValid()) return Fallar("not a drawing", argumentos[1]);
  for (int i = 2; i < cuantos; i += 2) {
    const QSize tamano = Leer(argumentos[i]);
    if (tamano.isEmpty()) return Fallar("not a size", argumentos[i]);
    if (!Escribir(Dibujar(dibujo, tamano), QFile::decodeName(argumentos[i + 1]))) {
      return Fallar("cannot write", argumentos[i + 1]);
    }
  }
  return EXIT_SUCCESS;
}
