#include <QTextDocument>

#include "programa.h"

namespace {

using ListaAbierta = Programa;

TEST_F(ListaAbierta, files_stand_in_order_each_opens_its_own_and_letter_case_makes_another) {
  AbrirTodos({"c.txt", "a.txt", "ñu.txt", "B.txt", "nube.txt", "otra/a.txt", "o.txt", "A.TXT"});
  EXPECT_EQ(Entradas().join(u' '), "A.TXT a.txt a.txt B.txt c.txt nube.txt ñu.txt o.txt");
  EXPECT_EQ(Total(), "08");
  for (int i = 0; i < 8; ++i) {
    Hacer(QString("entrada %1").arg(i));
    EXPECT_TRUE(Ruta(EnCaja()).endsWith(u'/' + Entradas()[i])) << i;
    EXPECT_EQ(gral->ArchivoCargado, Ruta(EnCaja()));
  }
  Pasos({{"abrir B.txt", "B.txt: B.txt"}});
  EXPECT_EQ(Total(), "08") << "it is there already";
  EXPECT_EQ(Lista()->IndiceSeleccionado(), 3);
}

TEST_F(ListaAbierta, a_name_of_more_than_22_characters_is_the_tooltip_letter_by_letter) {
  for (const QString nombre : {"<b>&x_78901234567890.txt", "uno dos tres cuatro cinco seis.txt"}) {
    Abrir(Archivo(nombre, {}));
    QTextDocument ayuda;
    ayuda.setHtml(Lista()->toolTip());
    EXPECT_EQ(ayuda.toPlainText(), nombre);
    EXPECT_TRUE(Lista()->toolTip().contains("white-space:pre") || !nombre.contains(' '))
        << "one line";
  }
  Hacer("abrir veintidos-caracter.txt");
  EXPECT_EQ(Lista()->toolTip(), QString());
}

// Of the files 0 1 2: which is removed, what is selected then.
TEST_F(ListaAbierta, removing_selects_the_entry_above_and_the_last_one_leaves_no_file) {
  for (const auto& [quitada, elegida] : {std::pair{"0", "1"}, {"1", "0"}, {"2", "1"}}) {
    Arrancar();
    AbrirTodos({"0", "1", "2"});
    Pasos({{QString("entrada ") + quitada, QString("%1: %1").arg(quitada)},
           {"lista Del", QString("%1: %1").arg(elegida)}});
    EXPECT_EQ(Total(), "02");
    EXPECT_EQ(EnDisco(quitada), quitada);
    Pasos({{"lista Del", ""}, {"lista Del", "?: "}, {"lista Del", "?: "}});
    EXPECT_EQ(gral->ArchivoActual, "Ninguno");
    EXPECT_EQ(Total(), "00");
    Hacer("cerrar");
  }
}

TEST_F(ListaAbierta, choosing_the_only_entry_brings_the_text_back_and_an_arrow_keeps_the_keyboard) {
  Abrir(Archivo("a", "texto"));
  for (const auto estado : {EstadoVentana::Normal, EstadoVentana::Minimizada}) {
    for (const bool flecha : {true, false}) {
      estado == EstadoVentana::Normal ? Texto()->Cerrar() : Texto()->PonerEstado(estado);
      principal->DarFoco();
      if (flecha) {
        TeclaEnLista(Qt::Key_Down);
        EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
      } else {
        const QPoint entrada = Lista()->visualRect(Lista()->model()->index(0, 0)).center();
        QTest::mouseClick(Lista()->viewport(), Qt::LeftButton, {}, entrada);
      }
      ASSERT_NE(Texto(), nullptr);
      EXPECT_EQ(Texto()->Estado(), EstadoVentana::Normal);
      EXPECT_EQ(Estado(), "a: texto");
    }
  }
}

// As after a listing: the list has the keyboard, and its own idea of where to begin.
TEST_F(ListaAbierta, with_nothing_selected_a_key_starts_from_an_end_and_a_letter_from_the_first) {
  AbrirTodos({"alba", "alfa", "beta"});
  for (const auto& [tecla, elegida] : {std::pair{Qt::Key_Down, 0},
                                       {Qt::Key_Up, 2},
                                       {Qt::Key_Home, 0},
                                       {Qt::Key_End, 2},
                                       {Qt::Key_PageDown, 0},
                                       {Qt::Key_PageUp, 2},
                                       {Qt::Key_A, 0}}) {
    Lista()->selectionModel()->setCurrentIndex(Lista()->model()->index(0, 0),
                                               QItemSelectionModel::Clear);
    TeclaEnLista(tecla);
    EXPECT_EQ(Lista()->IndiceSeleccionado(), elegida) << tecla;
    EXPECT_EQ(Titulo(), "Archivo: " + Ruta(Entradas()[elegida]));
  }
  QTest::keyClicks(Lista(), "lf");
  EXPECT_EQ(EnCaja(), "alfa") << "the letters of a name never reach its text";
}

// Whatever became of the text, the caption tells what is in the window.
TEST_F(ListaAbierta, a_click_on_an_entry_whose_text_is_not_in_the_window_loads_it) {
  Pasos({{"disco a=texto", ""}, {"abrir a", ""}, {"cerrar", ""}, {"icono 4", ""}});
  Texto()->CmdCerrar_Click();
  EXPECT_EQ(EnCaja(), "");
  Pasos({{"entrada 0", "a: texto"}, {"icono 1", ""}});
  ASSERT_TRUE(QFile::remove(Ruta("a")) && QDir().mkdir(Ruta("a")));
  Hacer("cancelar");  // what it would go back to cannot be read
  ASSERT_TRUE(QDir().rmdir(Ruta("a")));
  Pasos({{"disco a=otra vez", ""}, {"entrada 0", "a: otra vez"}});
}

}  // namespace
