#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QSvgRenderer>

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

TEST(Dibujos, what_the_build_has_drawn_is_what_the_program_would_draw) {
  const QStringList hechos = QDir(":/hechos").entryList();
  for (const char* imprescindible : {"fondo_principal_150x327", "fondo_principal_300x654",
                                     "puntero_menu_32x32", "velda_48x48", "texto_16x16"}) {
    EXPECT_TRUE(hechos.contains(imprescindible)) << imprescindible;
  }
  for (const QString& hecho : hechos) {
    const QString nombre = hecho.section('_', 0, -2);
    const QStringList lados = hecho.section('_', -1).split('x');
    const QSize tamano(lados[0].toInt(), lados[1].toInt());
    QImage esperado(tamano, QImage::Format_ARGB32_Premultiplied);
    esperado.fill(Qt::transparent);
    QPainter pintor(&esperado);
    QSvgRenderer(QString(":/dibujos/%1.svg").arg(nombre)).render(&pintor, esperado.rect());
    pintor.end();
    const QImage hallado = Dibujo(nombre, tamano, 1).toImage();
    EXPECT_EQ(hallado.convertToFormat(esperado.format()), esperado) << qPrintable(hecho);
  }
}

}  // namespace
