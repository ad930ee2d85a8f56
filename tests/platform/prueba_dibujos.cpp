#include <gtest/gtest.h>

#include <QDir>

#include "platform/dibujos.h"

namespace {

TEST(Dibujos, all_that_are_named_and_all_that_are_there_show_something_at_each_scale) {
  // By the ways in which the sources name them.
  const QString nombrados =
      "fondo_principal velda texto puntero_menu seleccion_0 seleccion_9 guardar cancelar "
      "puntero_flecha papelera quitar_lista lea_esto fondo_borrar puntero_mano web correo "
      "fondo_autor";
  QStringList nombres = nombrados.split(' ');
  nombres << QDir(":/dibujos").entryList().replaceInStrings(".svg", "");
  EXPECT_GE(nombres.size(), 2 * nombrados.count(' '));
  for (const QString& nombre : nombres) {
    for (const qreal escala : {1.0, 1.5, 2.0}) {
      const QImage imagen = Dibujo(nombre, {32, 32}, escala).toImage();
      EXPECT_EQ(imagen.deviceIndependentSize(), QSizeF(32, 32));
      QImage vacia(imagen.size(), imagen.format());
      vacia.fill(Qt::transparent);
      EXPECT_NE(imagen.convertToFormat(vacia.format()), vacia) << qPrintable(nombre);
    }
  }
}

}  // namespace
