#include <functional>
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/ventana.h"

namespace {

// A window that writes down which of its handlers run.
class VentanaAnotada : public Ventana {
 public:
  VentanaAnotada(Activacion& activacion, const QString& nombre, QStringList& notas)
      : Ventana(activacion, Marco::Redimensionable), nombre_(nombre), notas_(notas) {
    resize(200, 100);
  }

  void Form_Load() override { Anotar("carga"); }
  void Form_Activate() override {
    Anotar("activa");
    al_activar();
  }
  void Form_Deactivate() override { Anotar("inactiva"); }
  void Form_Unload() override { Anotar("descarga"); }

  std::function<void()> al_activar = [] {};
  int subidas = 0;  // times that it was raised

 protected:
  bool event(QEvent* evento) override {
    subidas += evento->type() == QEvent::ZOrderChange ? 1 : 0;
    return Ventana::event(evento);
  }
  void mousePressEvent(QMouseEvent* /*evento*/) override { Anotar("pulsada"); }
  void keyPressEvent(QKeyEvent* /*evento*/) override { Anotar("tecla"); }

 private:
  void Anotar(const char* que) { notas_ << nombre_ + ' ' + que; }

  QString nombre_;
  QStringList& notas_;
};

class Activaciones : public testing::Test {
 protected:
  // Both shown, the first one active, nothing noted yet.
  void SetUp() override {
    b.MostrarSinActivar();
    a.Mostrar();
    EsperarActiva(a);
    notas.clear();
  }
  static void EsperarActiva(const Ventana& ventana) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.isActiveWindow(); }));
  }
  // Until nothing that was asked of the desktop is under way: meanwhile its answers are ignored.
  static void EsperarCalma() { QTest::qWait(200); }
  QString Notas() { return std::exchange(notas, {}).join(", "); }
  // Shows the modal window and does `que` inside its loop, once it is the desktop's active one.
  QString DuranteModal(const std::function<void()>& que) {
    QTimer::singleShot(0, &modal, [&] {
      EsperarActiva(modal);
      que();
    });
    modal.MostrarModal(a);
    return Notas();
  }

  Activacion activacion;
  QStringList notas;
  VentanaAnotada a{activacion, "a", notas};
  VentanaAnotada b{activacion, "b", notas};
  VentanaAnotada modal{activacion, "m", notas};
};

TEST_F(Activaciones, the_program_moves_it_inside_the_call_and_the_desktop_follows) {
  b.DarFoco();
  EXPECT_EQ(Notas(), "a inactiva, b activa");
  b.DarFoco();
  EXPECT_EQ(Notas(), "") << "it is active already";
  EsperarActiva(b);
  EXPECT_EQ(activacion.Activa(), &b);
}

TEST_F(Activaciones,
       a_handler_that_gives_the_focus_back_ends_where_it_began_and_its_window_is_up_once) {
  b.al_activar = [this] { a.DarFoco(); };
  b.DarFoco();
  EXPECT_EQ(Notas(), "a inactiva, b activa, b inactiva, a activa");
  QTest::qWait(50);
  EXPECT_TRUE(a.isActiveWindow());
  EXPECT_EQ(Notas(), "") << "the desktop's answer runs nothing";
  const int antes = b.subidas;  // it was mapped in front of all
  emit qApp->applicationStateChanged(Qt::ApplicationInactive);
  for (int i = 0; i < 2; ++i) {
    b.DarFoco();
    EXPECT_EQ(b.subidas, antes + 1);
  }
}

TEST_F(Activaciones, a_press_in_another_window_moves_it_before_the_press_is_handled) {
  QTest::mouseClick(b.windowHandle(), Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(Notas(), "a inactiva, b activa, b pulsada");
  EsperarActiva(b);
  QTest::qWait(50);
  EXPECT_EQ(Notas(), "");
}

TEST_F(Activaciones, the_desktop_s_own_activation_moves_it_too) {
  b.activateWindow();  // perhaps right after the start: then it is heard when that has settled
  EXPECT_TRUE(QTest::qWaitFor([&] { return !notas.isEmpty(); }));
  EXPECT_EQ(Notas(), "a inactiva, b activa");
}

TEST_F(Activaciones, a_keyboard_that_is_refused_is_passed_on_until_the_user_moves_it) {
  const auto muestra = [](const Ventana& ventana) {
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &ventana; });
  };
  b.windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
  b.DarFoco();
  EXPECT_TRUE(muestra(b));
  EXPECT_EQ(QGuiApplication::focusWindow(), a.windowHandle());
  QTest::keyClick(a.windowHandle(), Qt::Key_X);
  EXPECT_EQ(Notas(), "a inactiva, b activa, b tecla");
  QTest::mouseClick(a.windowHandle(), Qt::LeftButton, {}, {10, 10});
  QTest::keyClick(a.windowHandle(), Qt::Key_X);
  EXPECT_EQ(Notas(), "b inactiva, a activa, a pulsada, a tecla");
  EXPECT_TRUE(muestra(a));
}

TEST_F(Activaciones, nothing_moves_while_a_dialog_is_open) {
  EsperarCalma();
  {
    const Activacion::DialogoAbierto dialogo(activacion, a);
    b.activateWindow();
    EsperarActiva(b);
  }
  EXPECT_EQ(Notas(), "");
  EsperarActiva(a);
  EXPECT_EQ(Notas(), "");
}

TEST_F(Activaciones, a_closed_window_unloads_and_loads_anew) {
  a.Cerrar();
  EXPECT_EQ(Notas(), "a descarga");
  EXPECT_FALSE(a.Visible());
  EXPECT_EQ(activacion.Activa(), nullptr);
  a.Mostrar();
  EXPECT_EQ(Notas(), "a carga, a activa");
}

TEST_F(Activaciones, leaving_the_program_and_coming_back_to_the_same_window_runs_nothing) {
  QWindow ajena;
  ajena.show();
  ajena.requestActivate();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !a.isActiveWindow(); }));
  a.activateWindow();
  EsperarActiva(a);
  EXPECT_EQ(Notas(), "");
}

TEST_F(Activaciones, a_modal_one_that_hides_stays_loaded_and_its_owner_is_active_at_once) {
  EXPECT_EQ(DuranteModal([&] { modal.Ocultar(); }),
            "m carga, a inactiva, m activa, m inactiva, a activa");
  EXPECT_EQ(activacion.Activa(), &a);
  EXPECT_FALSE(modal.isVisible());
  modal.Cerrar();
  EXPECT_EQ(Notas(), "m descarga");
  EsperarActiva(a);
}

TEST_F(Activaciones, a_modal_one_that_the_user_closes_is_unloaded_at_once) {
  EXPECT_EQ(DuranteModal([&] { modal.windowHandle()->close(); }),
            "m carga, a inactiva, m activa, m descarga, a activa");
  EXPECT_FALSE(modal.Visible());
}

TEST_F(Activaciones, no_other_window_answers_while_a_modal_one_is_open) {
  EXPECT_EQ(DuranteModal([&] {
              EXPECT_EQ(modal.windowHandle()->transientParent(), a.windowHandle());
              EsperarCalma();
              for (VentanaAnotada* tapada : {&a, &b}) {
                QTest::mouseClick(tapada->windowHandle(), Qt::LeftButton, {}, {10, 10});
                tapada->activateWindow();
                QTest::qWait(20);
              }
              EXPECT_EQ(activacion.Activa(), &modal);
              modal.Ocultar();
            }),
            "m carga, a inactiva, m activa, m inactiva, a activa");
}

TEST_F(Activaciones, handlers_inside_the_loop_reach_the_desktop_and_the_one_that_waits_ends_later) {
  VentanaAnotada dentro(activacion, "d", notas);
  VentanaAnotada despues(activacion, "e", notas);
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

TEST_F(Activaciones, a_modal_one_that_closes_while_it_is_being_activated_never_waits) {
  modal.al_activar = [&] { modal.Cerrar(); };
  modal.MostrarModal(a);
  EXPECT_EQ(Notas(), "m carga, a inactiva, m activa, m descarga, a activa");
}

}  // namespace
