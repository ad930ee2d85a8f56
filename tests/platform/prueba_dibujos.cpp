#include <gtest/gtest.h>

#include <QDirIterator>
#include <QSvgRenderer>

#include "platform/dibujos.h"

namespace {

// Every drawing that the sources name, by the way they name it.
const QStringList Nombrados =
    QStringLiteral(
        "fondo_principal velda texto puntero_menu seleccion_0 seleccion_9 guardar cancelar "
        "puntero_flecha papelera quitar_lista lea_esto fondo_borrar puntero_mano web "
        "correo fondo_autor")
        .split(u' ');

TEST(Dibujos, every_drawing_loads_and_shows_something_at_each_scale) {
  for (const QString& nombre : Nombrados) {
    for (const qreal escala : {1.0, 1.5, 2.0}) {
      const QImage imagen = Dibujo(nombre, {32, 32}, escala).toImage();
      EXPECT_EQ(imagen.deviceIndependentSize(), QSizeF(32, 32));
      QImage vacia(imagen.size(), imagen.format());
      vacia.fill(Qt::transparent);
      EXPECT_NE(imagen.convertToFormat(vacia.format()), vacia) << nombre.toStdString();
    }
  }
}

TEST(Dibujos, every_file_in_the_resources_is_a_valid_drawing) {
  QDirIterator dibujos(QStringLiteral(":/dibujos"));
  int cuantos = 0;
  for (; dibujos.hasNext(); ++cuantos) {
    EXPECT_TRUE(QSvgRenderer(dibujos.next()).isValid()) << dibujos.filePath().toStdString();
  }
  EXPECT_GE(cuantos, Nombrados.size());
}

}  // namespace
