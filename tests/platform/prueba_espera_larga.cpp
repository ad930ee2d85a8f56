#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "platform/espera_larga.h"
#include "platform/ventana.h"

TEST(EsperaLarga, escape_leaves_the_work_and_only_a_long_one_shows_a_dialog) {
  Activacion activacion;
  Ventana duena(activacion, Ventana::Marco::Redimensionable);
  duena.Mostrar();
  const QString nombre = QStringLiteral("<b>&uno</b>");
  EXPECT_TRUE(EsperasReales(activacion, std::chrono::hours(1)).Empezar(duena, {}, nombre, 100)(1));
  EXPECT_FALSE(activacion.HayDialogo());
  {
    const auto seguir =
        EsperasReales(activacion, std::chrono::hours(0)).Empezar(duena, {}, nombre, 100);
    EXPECT_TRUE(seguir(10));
    EXPECT_TRUE(activacion.HayDialogo());
    auto* dialogo = QApplication::activeModalWidget();
    ASSERT_NE(dialogo, nullptr);
    const auto* rotulo = dialogo->findChild<QLabel*>();
    EXPECT_EQ(rotulo->text(), nombre);
    EXPECT_EQ(rotulo->textFormat(), Qt::PlainText);
    QTimer::singleShot(0, dialogo, [dialogo] { QTest::keyClick(dialogo, Qt::Key_Escape); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !seguir(20); }));
  }
  EXPECT_FALSE(activacion.HayDialogo());
}
