// Draws the program's icon at fixed sizes: SVG FOLDER SIDE... writes FOLDER/SIDE.png for each side
// in pixels. Part of the build, not of the program.
#include <cstdio>
#include <cstdlib>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

QImage Dibujar(QSvgRenderer& dibujo, int lado) {
  QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
  imagen.fill(Qt::transparent);
  QPainter pintor(&imagen);
  dibujo.render(&pintor, QRectF(0, 0, lado, lado));
  return imagen;
}

int Fallar(const char* que, const char* cual) {
  std::fprintf(stderr, "iconos: %s: %s\n", que, cual);
  return EXIT_FAILURE;
}

}  // namespace

int main(int cuantos, char** argumentos) {
  if (cuantos < 4) return Fallar("SVG FOLDER SIDE...", "missing arguments");
  QSvgRenderer dibujo(QFile::decodeName(argumentos[1]));
  if (!dibujo.isValid()) return Fallar("not a drawing", argumentos[1]);
  const QDir carpeta(QFile::decodeName(argumentos[2]));
  if (!carpeta.mkpath(QStringLiteral("."))) return Fallar("no folder", argumentos[2]);
  for (int i = 3; i < cuantos; ++i) {
    const int lado = QByteArray(argumentos[i]).toInt();
    if (lado <= 0) return Fallar("not a size", argumentos[i]);
    if (!Dibujar(dibujo, lado).save(carpeta.filePath(QStringLiteral("%1.png").arg(lado)))) {
      return Fallar("cannot write size", argumentos[i]);
    }
  }
  return EXIT_SUCCESS;
}
