#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>

#include "ventana_anotada.h"

namespace {

class Modales : public testing::Test {
 protected:
  // `principal` active, `otra` shown, nothing noted yet.
  void SetUp() override {
    otra.Mostrar();
    principal.Mostrar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return principal.isActiveWindow(); }));
    notas.clear();
  }

  // Shows the modal window and does `que` inside its loop, once it is the desktop's active one.
  QStringList DuranteModal(const std::function<void()>& que) {
    QTimer::singleShot(0, &modal, [&] {
      EXPECT_TRUE(QTest::qWaitFor([&] { return modal.isActiveWindow(); }));
      que();
    });
    modal.MostrarModal(principal);
    return std::exchange(notas, {});
  }

  Activacion activacion;
  QStringList notas;
  VentanaAnotada principal{activacion, QStringLiteral("p"), notas};
  VentanaAnotada otra{activacion, QStringLiteral("o"), notas};
  VentanaAnotada modal{activacion, QStringLiteral("m"), notas};
};

QStringList Lista(const char* texto) {
  return QString::fromLatin1(texto).split(QStringLiteral(", "));
}

TEST_F(Modales, a_hidden_one_stays_loaded_and_its_owner_is_active_before_the_call_returns) {
  EXPECT_EQ(DuranteModal([&] { modal.Ocultar(); }),
            Lista("m carga, p inactiva, m activa, m inactiva, p activa"));
  EXPECT_EQ(activacion.Activa(), &principal);
  EXPECT_FALSE(modal.isVisible());
  modal.Cerrar();
  EXPECT_EQ(notas, Lista("m descarga"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return principal.isActiveWindow(); }));
}

TEST_F(Modales, one_that_the_user_closes_is_unloaded_at_once) {
  EXPECT_EQ(DuranteModal([&] { modal.windowHandle()->close(); }),
            Lista("m carga, p inactiva, m activa, m descarga, p activa"));
  EXPECT_FALSE(modal.Visible());
}

TEST_F(Modales, no_other_window_answers_meanwhile) {
  EXPECT_EQ(DuranteModal([&] {
              EXPECT_EQ(modal.windowHandle()->transientParent(), principal.windowHandle());
              for (VentanaAnotada* tapada : {&principal, &otra}) {
                QTest::mouseClick(tapada->windowHandle(), Qt::LeftButton, {}, {10, 10});
                tapada->activateWindow();
                QTest::qWait(20);
              }
              EXPECT_EQ(activacion.Activa(), &modal);
              modal.Ocultar();
            }),
            Lista("m carga, p inactiva, m activa, m inactiva, p activa"));
}

TEST_F(Modales, handlers_inside_the_loop_reach_the_desktop_and_the_one_that_waits_ends_later) {
  VentanaAnotada dentro(activacion, QStringLiteral("d"), notas);
  VentanaAnotada despues(activacion, QStringLiteral("e"), notas);
  {
    const Activacion::Manejador manejador(activacion);
    DuranteModal([&] {
      dentro.MostrarSinActivar();
      EXPECT_TRUE(dentro.isVisible());
      modal.Ocultar();
    });
    despues.MostrarSinActivar();
    EXPECT_FALSE(despues.isVisible()) << "the handler that waited has not ended";
  }
  EXPECT_TRUE(despues.isVisible());
}

TEST_F(Modales, one_that_closes_while_it_is_being_activated_never_waits) {
  modal.al_activar = [&] { modal.Cerrar(); };
  modal.MostrarModal(principal);
  EXPECT_EQ(notas, Lista("m carga, p inactiva, m activa, m descarga, p activa"));
}

}  // namespace
