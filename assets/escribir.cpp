// Writes a text as a bold label of the program shows it: TEXT POINTS WIDTH HEIGHT SCALE FILE. Part
// of the build, not of the program.
#include <cstdio>
#include <cstdlib>

#include <QFontInfo>
#include <QGuiApplication>
#include <QPainter>

#include "pixeles.h"
#include "platform/fuentes.h"

namespace {

QImage Escribir(const QString& texto, const QFont& fuente, QSize tamano, int escala) {
  QImage imagen(tamano * escala, QImage::Format_ARGB32_Premultiplied);
  imagen.setDevicePixelRatio(escala);
  imagen.fill(Qt::transparent);
  QPainter pintor(&imagen);
  pintor.setFont(fuente);
  pintor.setPen(Qt::black);
  pintor.drawText(QRect(QPoint(), tamano), Qt::AlignCenter, texto);
  return imagen;
}

}  // namespace

int main(int cuantos, char** argumentos) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication aplicacion(cuantos, argumentos);
  const QStringList ordenes = QGuiApplication::arguments();
  if (ordenes.size() != 7) return EXIT_FAILURE;
  QFont fuente = FuenteDe(FuenteControles, ordenes[2].toDouble());
  fuente.setBold(true);
  if (QFontInfo(fuente).family() != fuente.family()) {
    std::fprintf(stderr, "escribir: %s is not installed\n", qPrintable(fuente.family()));
    return EXIT_FAILURE;
  }
  const QImage imagen =
      Escribir(ordenes[1], fuente, {ordenes[3].toInt(), ordenes[4].toInt()}, ordenes[5].toInt());
  return EscribirPixeles(imagen, ordenes[6]) ? EXIT_SUCCESS : EXIT_FAILURE;
}
