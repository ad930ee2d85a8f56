#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>

#include "platform/ventana.h"

namespace {

class Ventanas : public testing::Test {
 protected:
  Activacion activacion;
  Ventana ventana{activacion, Ventana::Marco::Redimensionable};
};

TEST_F(Ventanas, the_rectangle_that_was_set_comes_back_until_the_window_is_moved_or_resized) {
  const RectTwips rect{3200, 1425, 8500, 7200};  // 3200 and 8500 are no whole pixels
  ventana.PonerRectangulo(rect);
  EXPECT_EQ(ventana.Rectangulo(), rect);
  ventana.Mostrar();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.windowHandle()->isExposed(); }));
  EXPECT_EQ(ventana.Rectangulo(), rect);
  ventana.move(ventana.pos() + QPoint(1, 0));
  ventana.resize(ventana.size() + QSize(0, 2));
  const RectTwips otra{214 * 15, 1425, 8500, 7200 + 2 * 15};
  EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.Rectangulo() == otra; }));
}

TEST_F(Ventanas, a_state_set_before_showing_is_the_state_shown) {
  for (const auto estado :
       {EstadoVentana::Maximizada, EstadoVentana::Minimizada, EstadoVentana::Normal}) {
    ventana.PonerEstado(estado);
    ventana.Mostrar();
    EXPECT_EQ(ventana.Estado(), estado);
    EXPECT_TRUE(ventana.Visible()) << "minimised counts as visible";
    ventana.Cerrar();
  }
  ventana.Mostrar();
  ventana.PonerEstado(EstadoVentana::Maximizada);
  ventana.showMinimized();
  ventana.PonerEstado(EstadoVentana::Normal);
  EXPECT_EQ(ventana.Estado(), EstadoVentana::Normal);
  EXPECT_FALSE(ventana.isMaximized()) << "also where it had been maximised";
}

TEST_F(Ventanas, a_title_keeps_every_letter) {
  const QString titulo = "Archivo: /a[*]b/[*][*].txt";
  ventana.PonerTitulo(titulo);
  EXPECT_EQ(ventana.Titulo(), titulo);
  ventana.Mostrar();
  EXPECT_EQ(ventana.windowHandle()->title(), titulo);
}

TEST(Twips, pixels_are_rounded_to_the_nearest_and_halves_to_even) {
  EXPECT_EQ(APixeles(615), 41);
  EXPECT_EQ(APixeles(3200), 213);
  EXPECT_EQ(APixeles(8500), 567);
  EXPECT_EQ(APixeles(-8), -1);
}

}  // namespace
