#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QTest>
#include <QToolButton>

#include "delete_window/frm_borrar.h"
#include "delete_window/texto_ayuda.h"
#include "dobles/escritorio_falso.h"
#include "text_box/caja_texto.h"

namespace {

const QString TituloArchivo = "Eliminar: /un/ñ [*].txt";
const QString TituloAyuda = "PULSE «ESC» PARA CERRAR LA AYUDA";

class Borrado : public testing::Test {
 protected:
  void SetUp() override {
    principal.PonerRectangulo({1000, 2000, 3000, 4000});
    gral.ArchivoActual = "/un/ñ [*].txt";
    gral.opciones.Confirmar = true;
    gral.AccionBorrar = AccionNada;
    ventana.Mostrar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.isActiveWindow(); }));
  }
  QToolButton* Boton(int indice) {
    return ventana.findChild<QToolButton*>(QString("CmdBorrar(%1)").arg(indice));
  }
  QCheckBox* Casilla() { return ventana.findChild<QCheckBox*>(); }
  CajaTexto* Ayuda() { return ventana.findChild<CajaTexto*>(); }

  AccesoPerfilArchivo ajustes;
  ModGral gral{ajustes};
  EscritorioFalso escritorio;
  Ventana principal{escritorio.activacion, Ventana::Marco::Fijo};
  FrmBorrar ventana{gral, escritorio.Servicios(), principal};
};

TEST_F(Borrado, opens_beside_the_main_window_naming_the_file) {
  EXPECT_EQ(ventana.Rectangulo().izquierda, 4030);
  EXPECT_EQ(ventana.Rectangulo().arriba, 3000);
  EXPECT_EQ(ventana.size(), QSize(297, 150));
  EXPECT_EQ(ventana.Titulo(), TituloArchivo);
  EXPECT_TRUE(Casilla()->hasFocus());
  EXPECT_FALSE(Casilla()->isChecked());
  EXPECT_FALSE(Ayuda()->isVisible());
  EXPECT_EQ(escritorio.encima.puestas, std::vector<bool>{false}) << "never above all others";
  for (const QLabel* etiqueta : ventana.findChildren<QLabel*>()) {
    EXPECT_GE(etiqueta->width(), etiqueta->sizeHint().width()) << qPrintable(etiqueta->text());
    EXPECT_GE(etiqueta->height(), etiqueta->sizeHint().height());
    EXPECT_TRUE(ventana.rect().contains(etiqueta->geometry()));
    for (int i = 0; i < FrmBorrar::Botones; ++i) {
      EXPECT_FALSE(Boton(i)->geometry().intersects(etiqueta->geometry()));
    }
  }
}

TEST_F(Borrado, esc_closes_the_help_but_never_the_window) {
  gral.AccionBorrar = AccionQuitar;
  QTest::mouseClick(Boton(2), Qt::LeftButton);
  EXPECT_EQ(gral.AccionBorrar, 2);
  EXPECT_EQ(ventana.Titulo(), TituloAyuda);
  EXPECT_TRUE(Ayuda()->hasFocus());
  EXPECT_TRUE(Ayuda()->geometry().contains(ventana.rect()));
  const Encuadre& vista = Ayuda()->Vista();
  const QByteArray texto = Ayuda()->Texto().Copia();
  const Posicion guiones = texto.indexOf("\r\n") + 2;
  EXPECT_EQ(vista.Andar(guiones, 1), guiones + 90) << "the hyphens are one row";
  EXPECT_TRUE(TextoAyuda.startsWith("     SI DECIDE") && TextoAyuda.count("\r\n") == 12);
  for (const auto tecla : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Space, Qt::Key_A, Qt::Key_Return,
                           Qt::Key_Delete, Qt::Key_Down}) {
    QTest::keyClick(ventana.windowHandle(), tecla);
    EXPECT_TRUE(Ayuda()->hasFocus()) << tecla;
  }
  EXPECT_EQ(Ayuda()->Texto().Copia(), texto) << "read-only";
  QTest::keyClick(ventana.windowHandle(), Qt::Key_Escape);
  EXPECT_FALSE(Ayuda()->isVisible());
  EXPECT_EQ(ventana.Titulo(), TituloArchivo);
  EXPECT_TRUE(Casilla()->hasFocus());
  QTest::keyClick(ventana.windowHandle(), Qt::Key_Escape);
  EXPECT_TRUE(ventana.Visible());
}

TEST_F(Borrado, enter_presses_nothing_and_the_space_bar_what_has_the_focus) {
  for (QWidget* control : std::initializer_list<QWidget*>{Casilla(), Boton(0)}) {
    control->setFocus();
    QTest::keyClick(ventana.windowHandle(), Qt::Key_Return);
    QTest::keyClick(ventana.windowHandle(), Qt::Key_Enter);
  }
  EXPECT_TRUE(ventana.Visible());
  EXPECT_TRUE(gral.opciones.Confirmar);
  Casilla()->setFocus();
  for (QWidget* control :
       std::initializer_list<QWidget*>{Boton(0), Boton(1), Boton(2), Casilla(), Boton(0)}) {
    QTest::keyClick(ventana.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(control->hasFocus());
  }
  QTest::keyClick(ventana.windowHandle(), Qt::Key_Space);
  EXPECT_FALSE(ventana.Visible());
}

}  // namespace
