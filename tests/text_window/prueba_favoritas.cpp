#include <QTextDocument>

#include "mesa_texto.h"
#include "shared/favoritas.h"
#include "text_window/panel_favoritas.h"
#include "text_window/panel_opciones.h"

namespace {

class LasFavoritas : public MesaTexto {
 protected:
  LasFavoritas() {
    gral.ArchivoFavoritas = Ruta("Favoritas.INI");
    gral.ArchivoINI = Ruta("Velda.INI");
    for (const char* nombre : {"casa/ñandú", "casa/Nube/dentro", "casa/.oculta", "disco/sub"}) {
      QDir().mkpath(Ruta(nombre));
    }
    escritorio.unidades.unidades = {{"Personal", Ruta("casa")},
                                    {"DISCO & CON NOMBRE LARGO", Ruta("disco")},
                                    {"Rota", Ruta("rota")}};
    Mostrar();
  }
  void Abrir(const QStringList& guardadas = {}) {
    if (!guardadas.isEmpty()) GuardarFavoritas(gral, guardadas);
    gral.VerFavoritas = true;
    texto->DarFoco();
  }

  QString Ruta(const QString& nombre) const { return carpeta.Ruta(nombre); }
  FraFavoritas& Panel() const { return *texto->findChild<FraFavoritas*>(); }
  CajaTexto& Caja() const { return *texto->findChild<CajaTexto*>("TextBox(0)"); }
  bool Abierto() const {
    const auto* panel = texto->findChild<FraFavoritas*>();
    return panel != nullptr && panel->isVisibleTo(texto.get());
  }
  QString Estados() const {
    QStringList lineas;
    for (const QLabel* linea : Panel().LblEstado) lineas << linea->accessibleName();
    return lineas.join(u'|');
  }
  QString Ultimo() const { return Panel().LblEstado[2]->text(); }
  // What is said when a button is pressed three times.
  QString Lineas(QAbstractButton& boton) const {
    QStringList lineas;
    for (int i = 0; i < 3; ++i) {
      boton.click();
      lineas << Ultimo();
    }
    return lineas.join(u'|');
  }
  static QStringList Entradas(const QListWidget& lista) {
    QStringList textos;
    for (int i = 0; i < lista.count(); ++i) textos << lista.item(i)->text();
    return textos;
  }
  QStringList Favoritas() const { return Entradas(*Panel().LstFav); }
  void Elegir(const char* nombre) const {
    const auto entradas = Panel().DirCarpeta->findItems(nombre, Qt::MatchExactly);
    ASSERT_FALSE(entradas.isEmpty()) << nombre;
    Panel().DirCarpeta->setCurrentItem(entradas.constLast());
  }
  static QStringList Muchas(int cuantas) {
    QStringList carpetas;
    for (int i = 10; i < 10 + cuantas; ++i) carpetas << QString("/f%1").arg(i);
    return carpetas;
  }
};

TEST_F(LasFavoritas, opening_shows_what_is_stored_in_order_and_the_drives_root) {
  Abrir({"/b", "/Ñu", "/nube", "/A", QString()});
  ASSERT_TRUE(Abierto());
  EXPECT_EQ(Vuelta(7), "DrvUnidad DirCarpeta CmdAnhadir LstFav CmdQuitar CmdCerrarFav DrvUnidad");
  EXPECT_EQ(Favoritas(), (QStringList{{}, "/A", "/b", "/nube", "/Ñu"}));
  EXPECT_EQ(Estados(), "> Gestionar favoritas|> Total Favoritas: 5|> Listo...");
  const QStringList carpetas = Entradas(*Panel().DirCarpeta);
  EXPECT_EQ(carpetas.mid(carpetas.indexOf("casa")), (QStringList{"casa", "Nube", "ñandú"}));
  EXPECT_EQ(carpetas.first(), "/");
  EXPECT_EQ(Panel().DirCarpeta->Elegida(), Ruta("casa"));
  Panel().CmdCerrarFav->setFocus();
  QTest::keyClick(Panel().CmdCerrarFav, Qt::Key_Return);
  EXPECT_FALSE(Abierto() || gral.VerFavoritas);
  EXPECT_EQ(LeerFavoritas(gral).constLast(), QString()) << "nothing changed, nothing written";
}

TEST_F(LasFavoritas, a_folder_is_opened_highlighted_and_added_and_the_close_writes_it) {
  Abrir();
  ListaCarpetas& lista = *Panel().DirCarpeta;
  Elegir("Nube");
  QTest::keyClick(&lista, Qt::Key_Return);
  EXPECT_EQ(lista.Elegida(), Ruta("casa/Nube"));
  Elegir("dentro");
  const QPoint raton = lista.visualItemRect(lista.currentItem()).center();
  QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, raton);
  EXPECT_EQ(lista.Elegida(), Ruta("casa/Nube/dentro"));
  Panel().CmdAnhadir->click();
  EXPECT_EQ(Ultimo(), "> Carpeta añadida (1)");
  Elegir("casa");
  Panel().CmdAnhadir->click();
  Elegir("/");
  Panel().CmdAnhadir->click();
  Panel().CmdAnhadir->click();
  Panel().CmdAnhadir->click();
  EXPECT_EQ(Estados(), "> Carpeta añadida (3)|> Imposible ya EXISTE|> Seleccione otra");
  EXPECT_EQ(carpeta.Leer("Favoritas.INI"), "<falta>") << "written before the close";
  principal.DarFoco();
  EXPECT_FALSE(Abierto());
  EXPECT_EQ(LeerFavoritas(gral), (QStringList{"/", Ruta("casa"), Ruta("casa/Nube/dentro")}));
}

// Which of how many is removed, and which is selected then.
TEST_F(LasFavoritas, removing_selects_the_one_above) {
  for (const auto& [cuantas, quitada, elegida] :
       {std::tuple{5, 2, 1}, {5, 0, 0}, {5, 4, 3}, {1, 0, -1}}) {
    Abrir(Muchas(cuantas));
    Panel().LstFav->setCurrentRow(quitada);
    Panel().CmdQuitar->click();
    EXPECT_EQ(Ultimo(), QString("> Eliminada. Quedan %1").arg(cuantas - 1));
    EXPECT_EQ(Panel().LstFav->selectedItems().isEmpty() ? -1 : Panel().LstFav->currentRow(),
              elegida);
    QStringList quedan = Muchas(cuantas);
    quedan.removeAt(quitada);
    Panel().CmdCerrarFav->click();
    EXPECT_EQ(LeerFavoritas(gral), quedan);
    EXPECT_EQ(QFile::exists(gral.ArchivoFavoritas), cuantas > 1);
    principal.DarFoco();
  }
}

TEST_F(LasFavoritas, what_cannot_be_done_is_said_in_turns_and_a_key_selects_from_an_end) {
  Abrir(Muchas(30));
  EXPECT_EQ(Lineas(*Panel().CmdAnhadir),
            "> Demasiadas carpetas|> Elimine alguna|> Demasiadas carpetas");
  EXPECT_EQ(Favoritas().size(), 30);
  EXPECT_EQ(Lineas(*Panel().CmdQuitar),
            "> Marque la carpeta|> Clic en la lista|> Marque la carpeta");
  for (const auto& [tecla, elegida] : {std::pair{Qt::Key_Down, 0}, {Qt::Key_Up, 29}}) {
    Panel().LstFav->setCurrentRow(0, QItemSelectionModel::Clear);
    QTest::keyClick(Panel().LstFav, tecla);
    ASSERT_EQ(Panel().LstFav->selectedItems().size(), 1);
    EXPECT_EQ(Panel().LstFav->currentRow(), elegida);
  }
  for (int i = 1; i < 30; ++i) Panel().CmdQuitar->click();
  EXPECT_EQ(Lineas(*Panel().CmdQuitar),
            "> Eliminada. Quedan 0|> NO hay carpetas fav.|> Añada alguna carpeta");
}

TEST_F(LasFavoritas, folders_of_any_name_are_added_and_come_back) {
  const QString larga = QString(120, u'ñ');
  for (const QString& nombre :
       {QString("日本"), QString("nin\u0303o"), QString("dos\nlíneas"), larga}) {
    ASSERT_TRUE(QDir().mkpath(Ruta("casa/") + nombre));
  }
  Abrir();
  for (int i = Panel().DirCarpeta->count() - 1; Panel().DirCarpeta->item(i)->text() != u"casa";
       --i) {
    Panel().DirCarpeta->setCurrentRow(i);
    Panel().CmdAnhadir->click();
  }
  const QStringList anhadidas = Favoritas();
  EXPECT_EQ(anhadidas,
            (QStringList{Ruta("casa/dos\nlíneas"), Ruta("casa/nin\u0303o"), Ruta("casa/Nube"),
                         Ruta("casa/ñandú"), Ruta("casa/") + larga, Ruta("casa/日本")}));
  Panel().CmdCerrarFav_Click();
  Panel().GestionarFavoritas();
  EXPECT_EQ(Favoritas(), anhadidas);
}

TEST_F(LasFavoritas, a_drive_that_fails_gives_way_to_the_one_before_once) {
  Abrir();
  ListaUnidades& unidades = *Panel().DrvUnidad;
  unidades.setCurrentIndex(1);
  EXPECT_EQ(Panel().DirCarpeta->Elegida(), Ruta("disco"));
  unidades.setCurrentIndex(2);
  EXPECT_EQ(Estados(), "> Selec. unidad Rota|> Unidad no disponible|> Selec. unidad Personal");
  EXPECT_EQ(unidades.currentText(), "Personal");
  EXPECT_EQ(Panel().DirCarpeta->Elegida(), Ruta("casa"));
  escritorio.unidades.fallos[Ruta("casa")] = EIO;
  unidades.setCurrentIndex(2);
  EXPECT_EQ(Estados(), "> Unidad no disponible|> Selec. unidad Personal|> Unidad no disponible");
}

TEST_F(LasFavoritas, opening_the_drive_list_finds_new_drives_and_changes_nothing) {
  Abrir();
  Panel().DrvUnidad->setCurrentIndex(1);
  escritorio.unidades.unidades.insert(escritorio.unidades.unidades.begin(),
                                      {"Nueva", Ruta("nueva")});
  escritorio.unidades.unidades.erase(escritorio.unidades.unidades.begin() + 2);
  const QString antes = Estados();
  Panel().DrvUnidad->showPopup();
  EXPECT_EQ(Estados(), antes);
  EXPECT_EQ(Panel().DrvUnidad->currentText(), "DISCO & CON NOMBRE LARGO");
  EXPECT_GE(Panel().DrvUnidad->findText("Nueva"), 0);
  Panel().CmdCerrarFav_Click();
  Panel().GestionarFavoritas();
  EXPECT_EQ(Panel().DirCarpeta->Elegida(), Ruta("disco")) << "the drive stays between openings";
}

TEST_F(LasFavoritas, a_folder_that_cannot_be_read_is_said_and_no_key_reaches_the_text_but_delete) {
  Abrir();
  QTest::keyClick(&Caja(), Qt::Key_A);
  EXPECT_EQ(texto->Titulo(), "Archivo: ?") << "typing is dropped";
  const QStringList antes = Entradas(*Panel().DirCarpeta);
  for (const auto& [codigo, linea] :
       {std::pair{EACCES, "> Carpeta no legible"}, {ENOTCONN, "> Unidad no disponible"}}) {
    escritorio.unidades.fallos[Ruta("casa/Nube")] = codigo;
    Elegir("Nube");
    QTest::keyClick(Panel().DirCarpeta, Qt::Key_Return);
    EXPECT_EQ(Ultimo(), linea);
    EXPECT_EQ(Entradas(*Panel().DirCarpeta), antes);
  }
  Panel().CmdCerrarFav_Click();
  escritorio.unidades.fallos[Ruta("casa")] = EIO;
  Panel().GestionarFavoritas();
  EXPECT_EQ(Ultimo(), "> Unidad no disponible");
  Panel().CmdAnhadir->click();
  EXPECT_TRUE(Favoritas().isEmpty()) << "no folder is open";
  QTest::keyClick(&Caja(), Qt::Key_Delete);
  EXPECT_EQ(texto->Titulo(), "Archivo: Nuevo") << "but Delete acts";
}

TEST_F(LasFavoritas, every_line_fits_and_a_long_drive_is_shortened_in_its_middle) {
  Abrir();
  for (const int unidad : {1, 0}) {
    Panel().DrvUnidad->setCurrentIndex(unidad);
    const QLabel& linea = *Panel().LblEstado[2];
    EXPECT_LE(linea.fontMetrics().horizontalAdvance(linea.text()), linea.width());
    EXPECT_TRUE(Panel().Shape1->geometry().contains(linea.geometry()));
    QTextDocument ayuda;
    ayuda.setHtml(linea.toolTip());
    EXPECT_EQ(ayuda.toPlainText(), unidad == 1 ? "DISCO & CON NOMBRE LARGO" : QString());
  }
  EXPECT_TRUE(Panel().LblEstado[1]->text().startsWith("> Selec. unidad D"));
  EXPECT_TRUE(Panel().LblEstado[1]->text().contains(u'…'));
  EXPECT_EQ(Ultimo(), "> Selec. unidad Personal");
  for (const QLabel* titulo : Panel().LblInfoFav) {
    EXPECT_GE(titulo->width(), titulo->sizeHint().width()) << qPrintable(titulo->text());
  }
}

TEST_F(LasFavoritas, the_options_panel_leads_to_it_and_is_stored_first) {
  gral.VerOpciones = true;
  gral.VerFavoritas = true;
  texto->DarFoco();
  EXPECT_FALSE(Abierto()) << "the options come first";
  texto->findChild<QToolButton*>("CmdFavoritas")->click();
  EXPECT_TRUE(Abierto());
  EXPECT_FALSE(gral.VerOpciones);
  EXPECT_TRUE(texto->findChild<FraOpciones*>()->isHidden());
  EXPECT_TRUE(carpeta.Leer("Velda.INI").contains("Confirmar="));
}

}  // namespace
