#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>

#include "ventana_anotada.h"

namespace {

class Activaciones : public testing::Test {
 protected:
  // Both shown, the first one active, nothing noted yet.
  void SetUp() override {
    b.MostrarSinActivar();
    a.Mostrar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return a.isActiveWindow(); }));
    notas.clear();
  }
  QStringList Notas() { return std::exchange(notas, {}); }

  Activacion activacion;
  QStringList notas;
  VentanaAnotada a{activacion, QStringLiteral("a"), notas};
  VentanaAnotada b{activacion, QStringLiteral("b"), notas};
};

QStringList Lista(const char* texto) {
  return QString::fromLatin1(texto).split(QStringLiteral(", "));
}

TEST_F(Activaciones, the_program_moves_it_inside_the_call) {
  b.DarFoco();
  EXPECT_EQ(Notas(), Lista("a inactiva, b activa"));
  b.DarFoco();
  EXPECT_EQ(Notas(), QStringList()) << "it is active already";
}

TEST_F(Activaciones, a_handler_that_gives_the_focus_back_ends_where_it_began) {
  b.al_activar = [this] { a.DarFoco(); };
  b.DarFoco();
  EXPECT_EQ(Notas(), Lista("a inactiva, b activa, b inactiva, a activa"));
  QTest::qWait(50);
  EXPECT_TRUE(a.isActiveWindow());
  EXPECT_EQ(Notas(), QStringList()) << "the desktop's answer runs nothing";
}

TEST_F(Activaciones, the_desktop_follows_the_program) {
  b.DarFoco();
  EXPECT_TRUE(QTest::qWaitFor([&] { return b.isActiveWindow(); }));
  EXPECT_EQ(activacion.Activa(), &b);
}

TEST_F(Activaciones, a_press_in_another_window_moves_it_before_the_press_is_handled) {
  QTest::mouseClick(b.windowHandle(), Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(Notas(), Lista("a inactiva, b activa, b pulsada"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return b.isActiveWindow(); }));
  QTest::qWait(50);
  EXPECT_EQ(Notas(), QStringList());
}

TEST_F(Activaciones, the_desktop_s_own_activation_moves_it_too) {
  b.activateWindow();  // perhaps right after the start: then it is heard when that has settled
  EXPECT_TRUE(QTest::qWaitFor([&] { return !notas.isEmpty(); }));
  EXPECT_EQ(Notas(), Lista("a inactiva, b activa"));
}

TEST_F(Activaciones, nothing_moves_while_a_dialog_is_open) {
  {
    const Activacion::DialogoAbierto dialogo(activacion, a);
    b.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return b.isActiveWindow(); }));
  }
  EXPECT_EQ(Notas(), QStringList());
  EXPECT_TRUE(QTest::qWaitFor([&] { return a.isActiveWindow(); }));
  EXPECT_EQ(Notas(), QStringList());
}

TEST_F(Activaciones, a_closed_window_unloads_and_loads_anew) {
  a.Cerrar();
  EXPECT_EQ(Notas(), Lista("a descarga"));
  EXPECT_FALSE(a.Visible());
  EXPECT_EQ(activacion.Activa(), nullptr);
  a.Mostrar();
  EXPECT_EQ(Notas(), Lista("a carga, a activa"));
}

TEST_F(Activaciones, leaving_the_program_and_coming_back_to_the_same_window_runs_nothing) {
  QWindow ajena;
  ajena.show();
  ajena.requestActivate();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !a.isActiveWindow(); }));
  a.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([&] { return a.isActiveWindow(); }));
  EXPECT_EQ(Notas(), QStringList());
}

}  // namespace
