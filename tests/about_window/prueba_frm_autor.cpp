#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "about_window/direcciones.h"
#include "about_window/frm_autor.h"
#include "dobles/escritorio_falso.h"

namespace {

const QString Fondo = "Información sobre el programa...";
const QString Web = "Visitar WEB del programa...";
const QString Correo = "Enviar e-mail al autor...";

class Autor : public testing::Test {
 protected:
  void SetUp() override {
    ventana.Mostrar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.isActiveWindow(); }));
  }
  QToolButton* Boton(int indice) {
    return ventana.findChild<QToolButton*>(QString("CmdAutor(%1)").arg(indice));
  }
  QWidget* Foco() { return ventana.findChild<QPushButton*>("CmdFoco"); }

  EscritorioFalso escritorio;
  FrmAutor ventana{escritorio.Servicios()};
};

TEST_F(Autor, opens_with_its_caption_and_the_focus_out_of_sight) {
  EXPECT_EQ(ventana.Titulo(), Fondo);
  EXPECT_EQ(ventana.size(), QSize(250, 149));
  EXPECT_TRUE(Foco()->hasFocus());
  EXPECT_EQ(ventana.childAt(Foco()->geometry().center()), Boton(0));
  EXPECT_TRUE(Boton(0)->geometry().contains(Foco()->geometry()));
  auto* version = ventana.findChild<QLabel*>("LblVer");
  EXPECT_EQ(version->text(), "1.1");
  EXPECT_GE(version->width(), version->sizeHint().width());
}

TEST_F(Autor, the_caption_names_what_is_under_the_mouse) {
  const QPoint fuera(5, 5);
  const QPoint web = Boton(0)->geometry().center();
  const QPoint correo = Boton(1)->geometry().center();
  for (const auto& [donde, titulo] :
       {std::pair{web, Web}, {fuera, Fondo}, {correo, Correo}, {web, Web}, {fuera, Fondo}}) {
    QTest::mouseMove(ventana.windowHandle(), donde);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.Titulo() == titulo; })) << qPrintable(titulo);
  }
}

TEST_F(Autor, a_click_opens_the_address_of_the_tooltip_and_gives_up_the_focus) {
  EXPECT_EQ(Boton(0)->toolTip(), PaginaWeb);
  EXPECT_EQ(Boton(1)->toolTip(), CorreoAutor);
  for (int i = 0; i < FrmAutor::Enlaces; ++i) {
    QTest::mouseClick(Boton(i), Qt::LeftButton);
    EXPECT_TRUE(Foco()->hasFocus());
  }
  EXPECT_EQ(escritorio.abridor.abiertos, (QStringList{PaginaWeb, "mailto:" + CorreoAutor}));
}

}  // namespace
