#include "mesa_texto.h"
#include "text_window/panel_opciones.h"

namespace {

const QString Ini = "Velda.INI";

class LasOpciones : public MesaTexto {
 protected:
  void Abrir(const QByteArray& ini = {}) {
    gral.ArchivoINI = carpeta.Escribir(Ini, ini);
    Mostrar();
  }
  void AbrirPanel() {
    gral.VerOpciones = true;
    texto->DarFoco();
  }
  template <typename Control>
  Control& El(const char* nombre) const {
    return *texto->findChild<Control*>(QString::fromLatin1(nombre));
  }
  FraOpciones& Panel() const { return El<FraOpciones>("FraOpciones"); }
  QCheckBox& Casilla(const char* nombre) const { return El<QCheckBox>(nombre); }
  CajaTexto& Caja(int i) const { return El<CajaTexto>(i == 0 ? "TextBox(0)" : "TextBox(1)"); }
  bool SeVe(const QWidget& control) const { return control.isVisibleTo(texto.get()); }

  // The keys of the settings in the order in which they stand in the file.
  QStringList Claves() const {
    QStringList claves;
    for (const QByteArray& linea : carpeta.Leer(Ini).split('\n')) {
      claves << QString::fromLatin1(linea.split('=')[0].trimmed());
    }
    claves.removeAll(QString());
    return claves;
  }
  QByteArray Valor(QStringView seccion, QStringView clave) {
    return acceso.LeerCadena(seccion, clave, "(falta)", gral.ArchivoINI).trimmed();
  }
  static QColor Letra(const QWidget& control) {
    return control.palette().color(QPalette::WindowText);
  }
  static QColor Fondo(const QWidget& control) { return control.palette().color(QPalette::Window); }
};

TEST_F(LasOpciones, a_first_start_wraps_in_black_courier_on_white) {
  Abrir();
  EXPECT_TRUE(SeVe(Caja(0)) && !SeVe(Caja(1)));
  EXPECT_TRUE(texto->findChildren<MarcoTitulado*>().isEmpty()) << "no start waits for a panel";
  for (int i : {0, 1}) {
    EXPECT_EQ(Caja(i).Fuente(), FuenteDe("Courier", 9.75));
    EXPECT_EQ(Caja(i).ColorTexto(), QColor(Qt::black));
    EXPECT_EQ(Caja(i).ColorFondo(), QColor(Qt::white));
  }
  AbrirPanel();
  EXPECT_TRUE(Casilla("ChkAjustar").isChecked());
  EXPECT_FALSE(Casilla("ChkFavoritas").isChecked());
}

TEST_F(LasOpciones, the_stored_appearance_is_there_from_the_start) {
  Abrir(
      "[Fuente]\nNombre=Arial\nTama\xF1o=12,5\nCursiva=Si\nColor=16777215\n"
      "[Fondo]\nColor=0\n[Opciones]\nAjustar=No\nFavoritas=Si\n");
  EXPECT_TRUE(SeVe(Caja(1)) && !SeVe(Caja(0)));
  EXPECT_EQ(Caja(1).Fuente(), FuenteDe({"Arial", 12.5, false, true}));
  EXPECT_EQ(Caja(1).ColorTexto(), QColor(Qt::white));
  AbrirPanel();
  EXPECT_TRUE(Casilla("ChkFavoritas").isChecked());
  EXPECT_FALSE(Casilla("ChkAjustar").isChecked());
  EXPECT_EQ(Letra(Panel()), QColor(Qt::white));
  EXPECT_EQ(Fondo(Panel()), QColor(Qt::black));
}

TEST_F(LasOpciones, leaving_for_the_main_window_closes_the_panel_and_stores_eleven_values) {
  Abrir();
  for (const bool confirmar : {true, false}) {
    gral.opciones.Confirmar = confirmar;
    AbrirPanel();
    EXPECT_TRUE(SeVe(Panel()));
    EXPECT_EQ(Vuelta(8),
              "CmdFuente CmdFColor CmdFavoritas ChkConfirmar "
              "ChkFavoritas ChkAjustar CmdCerrar CmdFuente");
    EXPECT_EQ(Casilla("ChkConfirmar").isChecked(), confirmar);
    principal.DarFoco();
    EXPECT_FALSE(SeVe(Panel()));
    EXPECT_FALSE(gral.VerOpciones);
    EXPECT_EQ(Valor(u"Opciones", u"Confirmar"), confirmar ? "Si" : "No");
  }
  EXPECT_EQ(Claves().join(u' '),
            "[Fuente] Nombre Tamaño Negrita Cursiva Subrayada Tachada Color "
            "[Fondo] Color [Opciones] Ajustar Favoritas Confirmar");
  AbrirPanel();
  Casilla("ChkAjustar").click();
  texto->Cerrar();
  EXPECT_EQ(Claves().indexOf("[PosTam]"), 14) << "stored before the place";
  EXPECT_EQ(Valor(u"Opciones", u"Ajustar"), "No");
}

TEST_F(LasOpciones, a_colour_of_the_system_is_kept_with_a_new_font) {
  Abrir("[Fuente]\nNombre=Arial\nColor=-2147483640\n");
  AbrirPanel();
  escritorio.aspecto.fuente = {{"Arial", 12}, texto->palette().color(QPalette::Text)};
  Panel().CmdFuente->click();
  EXPECT_EQ(escritorio.aspecto.fuentes.at(0).color, escritorio.aspecto.fuente->color);
  Panel().CmdCerrar->click();
  EXPECT_EQ(Valor(u"Fuente", u"Color"), "-2147483640");
  EXPECT_EQ(Valor(u"Fuente", u"Tamaño"), "12");
}

TEST_F(LasOpciones, a_chosen_font_and_background_spread_over_the_window_but_not_its_buttons) {
  Abrir();
  AbrirPanel();
  const QColor boton = Panel().CmdFuente->palette().color(QPalette::Button);
  const FuenteTexto fuente{"Letra que falta", 20, true, false, true, true};
  escritorio.aspecto.fuente = {fuente, Qt::red};
  escritorio.aspecto.color = Qt::yellow;
  Panel().CmdFuente->click();
  Panel().CmdFColor->click();
  for (int i : {0, 1}) {
    EXPECT_EQ(Caja(i).Fuente(), FuenteDe(fuente));
    EXPECT_EQ(Caja(i).ColorTexto(), QColor(Qt::red));
    EXPECT_EQ(Caja(i).ColorFondo(), QColor(Qt::yellow));
  }
  for (const char* nombre : {"FraOpciones", "ChkFavoritas", "ChkAjustar", "ChkConfirmar"}) {
    EXPECT_EQ(Letra(El<QWidget>(nombre)), QColor(Qt::red)) << nombre;
    EXPECT_EQ(Fondo(El<QWidget>(nombre)), QColor(Qt::yellow)) << nombre;
  }
  EXPECT_EQ(Panel().CmdFuente->palette().color(QPalette::Button), boton);
  EXPECT_EQ(Panel().CmdFuente->palette().color(QPalette::ButtonText), QColor(Qt::black));

  EXPECT_EQ(carpeta.Leer(Ini), "") << "nothing is stored before the panel closes";
  Panel().CmdCerrar->click();
  EXPECT_EQ(Valor(u"Fuente", u"Nombre"), "Letra que falta");
  EXPECT_EQ(Valor(u"Fuente", u"Tachada"), "Si");
  EXPECT_EQ(Valor(u"Fuente", u"Color"), "255");
  EXPECT_EQ(Valor(u"Fondo", u"Color"), "65535");
  QTest::keyClicks(&Caja(0), "a");
  EXPECT_EQ(Fondo(El<QWidget>("FraGuardar")), QColor(Qt::yellow));
  EXPECT_EQ(Letra(El<QWidget>("FraGuardar")), Letra(*texto));
  texto->CmdFavoritas_Click();
  for (const char* nombre : {"LblInfoFav(0)", "LblInfoFav(2)", "LblEstado(1)", "Shape1"}) {
    EXPECT_EQ(Letra(El<QWidget>(nombre)), QColor(Qt::red)) << nombre;
  }
  EXPECT_EQ(Fondo(El<QWidget>("FraFavoritas")), QColor(Qt::yellow));
}

TEST_F(LasOpciones, the_colour_dialog_starts_from_what_the_dialogs_held_last) {
  Abrir("[Fuente]\nNombre=Arial\nColor=255\n[Fondo]\nColor=65535\n");
  AbrirPanel();
  AspectoFalso& dialogos = escritorio.aspecto;
  Panel().CmdFColor->click();
  Panel().CmdFuente->click();  // both cancelled
  EXPECT_EQ(Caja(0).ColorFondo(), QColor(Qt::yellow));
  EXPECT_EQ(dialogos.fuentes.at(0), (EleccionFuente{{"Arial", 10}, Qt::red}));
  dialogos.color = Qt::green;
  Panel().CmdFColor->click();
  Panel().CmdFColor->click();
  dialogos.fuente = {{"Arial", 10}, Qt::blue};
  Panel().CmdFuente->click();
  Panel().CmdFColor->click();
  EXPECT_EQ(dialogos.colores, (std::vector<QColor>{Qt::black, Qt::red, Qt::green, Qt::blue}));
  Panel().CmdCerrar->click();
  EXPECT_EQ(Valor(u"Fuente", u"Color"), "16711680");
}

TEST_F(LasOpciones, switching_the_wrap_keeps_caret_selection_and_the_first_line_shown) {
  Abrir();
  AbrirPanel();
  QTest::qWait(0);
  for (int i = 0; i < 400; ++i) {
    Caja(0).Insertar(QString("%1\n").arg(i, 9));  // ten bytes each
  }
  Caja(0).PonerCursor(2005, 2000);
  Caja(0).PonerArriba(1500);
  for (const int i : {1, 0}) {
    Casilla("ChkAjustar").click();
    EXPECT_TRUE(SeVe(Caja(i)) && !SeVe(Caja(1 - i)));
    EXPECT_EQ(Caja(i).Cursor(), 2005);
    EXPECT_EQ(Caja(i).Ancla(), 2000);
    EXPECT_EQ(Caja(i).Arriba(), 1500);
    Caja(i).PonerCursor(2005, 2000);
    Caja(i).PonerArriba(1500);
  }
}

TEST_F(LasOpciones, the_save_panel_comes_before_the_others_whichever_was_made_first) {
  Abrir();
  AbrirPanel();
  Panel().CmdCerrar->click();
  QTest::keyClicks(&Caja(0), "a");
  gral.ArchivoNuevo = false;
  principal.DarFoco();
  AbrirPanel();
  Caja(0).setFocus();
  QTest::keyClick(&Caja(0), Qt::Key_Backtab);
  EXPECT_EQ(texto->focusWidget(), Panel().CmdCerrar);
  const QObjectList hijos = texto->children();
  EXPECT_LT(hijos.indexOf(&El<QWidget>("FraGuardar")), hijos.indexOf(&Panel())) << "lies below it";
}

}  // namespace
