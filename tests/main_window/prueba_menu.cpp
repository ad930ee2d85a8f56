#include <QAccessible>

#include "programa.h"

namespace {

class Menu : public Programa {
 protected:
  QWidget* Hijo(const char* nombre, int indice) const {
    return principal->findChild<QWidget*>(QString("%1(%2)").arg(nombre).arg(indice));
  }
};

TEST_F(Menu, hovering_names_the_command_and_shows_one_highlight) {
  const auto rotulo = [this] { return principal->grab({0, 94, 86, 18}).toImage(); };
  const QImage vacio = rotulo();
  QImage anterior = vacio;
  for (int i = 0; i < FrmMain::Iconos; ++i) {
    QTest::mouseMove(Hijo("ImgMenu", i));
    const QString nombre = Hijo("ImgMenu", i)->accessibleName();
    EXPECT_EQ(principal->Titulo(), i == FrmMain::IconoVisible ? "S.Visible SI" : nombre);
    for (int j = 0; j < FrmMain::Iconos; ++j) EXPECT_EQ(Hijo("ImgSel", j)->isVisible(), i == j);
    EXPECT_NE(rotulo(), anterior) << "the name in the picture";
    anterior = rotulo();
  }
  principal->Form_MouseMove();
  EXPECT_EQ(principal->Titulo(), "Velda...");
  EXPECT_FALSE(Hijo("ImgSel", 9)->isVisible());
  EXPECT_EQ(rotulo(), vacio);
}

TEST_F(Menu, a_screen_reader_finds_windows_and_buttons_and_presses_an_icon_from_the_text) {
  Abrir(Archivo("a.txt", "a"));
  auto* dibujo = QAccessible::queryAccessibleInterface(Hijo("ImgSel", 4));
  auto* icono = QAccessible::queryAccessibleInterface(Hijo("ImgMenu", 4));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(Texto())->role(), QAccessible::Window);
  EXPECT_EQ(dibujo->role(), QAccessible::Graphic);
  EXPECT_EQ(icono->role(), QAccessible::Button);
  EXPECT_EQ(icono->text(QAccessible::Name), "Opciones");
  Texto()->DarFoco();
  icono->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCoreApplication::processEvents();
  auto* panel = Texto()->findChild<QWidget*>("FraOpciones");
  EXPECT_FALSE(panel->isHidden());
  EXPECT_EQ(QAccessible::queryAccessibleInterface(panel)->role(), QAccessible::Grouping);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(panel)->text(QAccessible::Name), u"Opciones:");
}

TEST_F(Menu, visible_goes_to_and_fro_and_is_named_by_its_state) {
  EXPECT_EQ(escritorio.encima.puestas, (std::vector<bool>{true})) << "the stored wish, once";
  for (const char* estado : {"NO", "SI"}) {
    PulsarIcono(6);
    principal->ImgMenu_MouseMove(6);
    EXPECT_EQ(principal->Titulo(), QString("S.Visible ") + estado);
    Texto()->DarFoco();
    EXPECT_EQ(principal->Titulo(), "Velda...") << "no hover without the window";
  }
  principal->ImgMenu_MouseMove(2);
  principal->PonerEstado(EstadoVentana::Minimizada);
  EXPECT_EQ(principal->Titulo(), "Velda...");
  EXPECT_EQ(escritorio.encima.puestas, (std::vector<bool>{true, false, true}));
}

TEST_F(Menu, previous_and_next_do_not_wrap_around) {
  Pasos({{"icono 8", "?: "}, {"icono 7", "?: "}});
  AbrirTodos({"a", "b"});
  Pasos({{"icono 8", "b: b"}, {"icono 7", "a: a"}, {"icono 7", "a: a"}, {"icono 8", "b: b"}});
  Lista()->clearSelection();
  Pasos({{"icono 7", "b: b"}, {"icono 8", "a: a"}});  // next of nothing is the first
  gral->opciones.Confirmar = false;
  QTest::mouseDClick(Hijo("ImgMenu", 2), Qt::LeftButton);  // only the second press of a gesture
  QTest::mouseRelease(Hijo("ImgMenu", 2), Qt::LeftButton);
  EXPECT_EQ(escritorio.papelera.enviadas.size(), 0);
  QTest::mouseClick(Hijo("ImgMenu", 2), Qt::LeftButton);
  EXPECT_EQ(escritorio.papelera.enviadas.size(), 1);
}

TEST_F(Menu, open_asks_from_the_last_folder_and_a_cancel_changes_nothing) {
  ajustes.valores["Inicial/Carpeta"] = "/una/carpeta/";
  Arrancar();
  Abrir({});
  ASSERT_EQ(escritorio.dialogos.abrir.size(), 1U);
  EXPECT_EQ(escritorio.dialogos.abrir[0].carpeta, "/una/carpeta/");
  EXPECT_EQ(escritorio.dialogos.abrir[0].titulo, "Abrir archivos...");
  const QString a = Archivo("日/a", "a");
  Abrir(a);
  Abrir({});
  EXPECT_EQ(gral->ArchivoActual, a);
  EXPECT_EQ(escritorio.dialogos.abrir[2].carpeta, Ruta("日/"));
  gral->opciones.Confirmar = false;
  PulsarIcono(1);  // while a new text is under way these wait
  for (const int icono : {0, 2, 4}) PulsarIcono(icono);
  EXPECT_EQ(escritorio.dialogos.abrir.size(), 3U);
  EXPECT_EQ(Total(), "01");
  EXPECT_FALSE(gral->VerOpciones);
  principal->Cerrar();
  EXPECT_EQ(ajustes.valores["Inicial/Carpeta"],
            "/dev/null/" + Ruta("").toUtf8() + "/\xE6\x97\xA5/??");
  Arrancar();
  Abrir({});
  EXPECT_EQ(escritorio.dialogos.abrir[3].carpeta, Ruta("日/"));
}

TEST_F(Menu, help_is_the_compiled_file_or_else_the_page) {
  gral->RutaPrograma = Ruta("") + u'/';
  PulsarIcono(9);
  Archivo("Ayuda.chm", {});
  PulsarIcono(9);
  EXPECT_EQ(escritorio.abridor.abiertos, (QStringList{Ruta("Ayuda/Ayuda.htm"), Ruta("Ayuda.chm")}));
}

}  // namespace
