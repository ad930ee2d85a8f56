// The bare pixels of a picture, row by row, as the program has them in memory (32 bits, alpha
// premultiplied). Part of the build, not of the program.
#pragma once

#include <QFile>
#include <QImage>

inline bool EscribirPixeles(const QImage& imagen, const QString& ruta) {
  QFile archivo(ruta);
  const auto* pixeles = reinterpret_cast<const char*>(imagen.constBits());
  return archivo.open(QIODevice::WriteOnly) &&
         archivo.write(pixeles, imagen.sizeInBytes()) == imagen.sizeInBytes() && archivo.flush();
}
