#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QSvgRenderer>

#include "platform/dibujos.h"

namespace {

TEST(Dibujos, what_is_named_is_there_and_the_build_has_drawn_what_the_program_would_draw) {
  // By the ways in which the sources name them.
  const QString nombrados =
      "fondo_principal velda texto puntero_menu seleccion_0 seleccion_9 guardar cancelar "
      "puntero_flecha papelera quitar_lista lea_esto fondo_borrar puntero_mano web correo "
      "fondo_autor";
  QStringList dibujos;
  for (const QString& nombre : nombrados.split(' ')) dibujos << nombre + "_64x64";
  for (const QString& dibujo : dibujos + QDir(":/hechos").entryList()) {
    const QStringList lados = dibujo.section('_', -1).split('x');
    const QSize tamano(lados[0].toInt(), lados[1].toInt());
    const QString nombre = dibujo.section('_', 0, -2);
    QImage esperado(tamano, QImage::Format_ARGB32_Premultiplied);
    esperado.fill(Qt::transparent);
    const QImage vacio = esperado;
    QPainter pintor(&esperado);
    QSvgRenderer(QString(":/dibujos/%1.svg").arg(nombre)).render(&pintor, esperado.rect());
    pintor.end();
    EXPECT_NE(esperado, vacio) << qPrintable(dibujo);
    const QImage hallado = Dibujo(nombre, tamano, 1).toImage();
    EXPECT_EQ(hallado.convertToFormat(esperado.format()), esperado) << qPrintable(dibujo);
    EXPECT_EQ(Dibujo(nombre, tamano, 1.5).size(), tamano * 1.5);
  }
  EXPECT_TRUE(QDir(":/hechos").exists("fondo_principal_300x654"));
}

}  // namespace
