#include <algorithm>
#include <functional>

#include <QTextDocument>
#include <QToolTip>

#include "programa.h"

namespace {

using ListaAbierta = Programa;

TEST_F(ListaAbierta, files_stand_in_order_and_each_opens_its_own) {
  AbrirTodos({"c.txt", "a.txt", "ñu.txt", "B.txt", "nube.txt", "otra/a.txt", "o.txt"});
  EXPECT_EQ(Entradas().join(u' '), "a.txt a.txt B.txt c.txt nube.txt ñu.txt o.txt");
  EXPECT_EQ(Total(), "07");
  for (int i = 0; i < 7; ++i) {
    Lista()->Seleccionar(i);
    PulsarEntrada();
    EXPECT_TRUE(Ruta(EnCaja()).endsWith(u'/' + Entradas()[i])) << i;
    EXPECT_EQ(gral->ArchivoCargado, Ruta(EnCaja()));
  }
}

TEST_F(ListaAbierta, a_second_add_selects_the_entry_and_letter_case_makes_another_file) {
  AbrirTodos({"a.txt", "b.txt", "a.txt"});
  EXPECT_EQ(Total(), "02");
  EXPECT_EQ(Lista()->IndiceSeleccionado(), 0);
  EXPECT_EQ(EnCaja(), "a.txt");
  Abrir(Archivo("A.TXT", "otro"));
  EXPECT_EQ(Total(), "03");
  EXPECT_EQ(EnCaja(), "otro");
}

TEST_F(ListaAbierta,
       a_name_of_more_than_22_characters_is_the_tooltip_in_one_line_letter_by_letter) {
  for (const char* nombre :
       {"<b>&x_78901234567890.txt", "uno dos tres cuatro cinco seis siete.txt"}) {
    Abrir(Archivo(nombre, {}));
    QTextDocument ayuda;
    ayuda.setHtml(Lista()->toolTip());
    EXPECT_EQ(ayuda.toPlainText(), nombre);
    QToolTip::showText({9, 9}, Lista()->toolTip(), Lista());
    const auto vistas = QApplication::topLevelWidgets();
    const auto vista = std::find_if(vistas.begin(), vistas.end(), [](const QWidget* una) {
      return una->isVisible() && una->inherits("QTipLabel");
    });
    ASSERT_NE(vista, vistas.end());
    EXPECT_LT((*vista)->height(), 2 * (*vista)->fontMetrics().lineSpacing());
    QToolTip::hideText();
  }
  Abrir(Archivo("veintidos-caracter.txt", {}));
  EXPECT_EQ(Lista()->toolTip(), QString());
}

// Of the files 0 1 2: which is removed, what is selected then.
TEST_F(ListaAbierta, removing_selects_the_entry_above_and_shows_it_once) {
  for (const auto& [quitada, elegida] : {std::pair{0, "1"}, {1, "0"}, {2, "1"}}) {
    Arrancar();
    AbrirTodos({"0", "1", "2"});
    Lista()->Seleccionar(quitada);
    PulsarEntrada();
    TeclaEnLista(Qt::Key_Delete);
    EXPECT_EQ(EnCaja(), elegida) << quitada;
    EXPECT_EQ(Total(), "02");
    EXPECT_TRUE(QFile::exists(Ruta(QString::number(quitada))));
    for (int i = 0; i < 3; ++i) TeclaEnLista(Qt::Key_Delete);  // once more than there are
    EXPECT_EQ(gral->ArchivoActual, "Ninguno");
    EXPECT_EQ(Titulo(), "Archivo: ?");
    EXPECT_EQ(EnCaja(), "");
    EXPECT_EQ(Total(), "00");
    Texto()->Cerrar();
  }
}

TEST_F(ListaAbierta, choosing_the_only_entry_brings_the_text_back_and_an_arrow_keeps_the_keyboard) {
  Abrir(Archivo("a", "texto"));
  for (const std::function<void()>& dejar :
       {std::function<void()>([this] { Texto()->Cerrar(); }),
        {[this] { Texto()->PonerEstado(EstadoVentana::Minimizada); }},
        {[] {}}}) {
    for (const bool flecha : {true, false}) {
      dejar();
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
      EXPECT_EQ(EnCaja(), "texto");
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
  const QString a = Archivo("a", "texto");
  Abrir(a);
  Texto()->Cerrar();
  PulsarIcono(4);
  Texto()->CmdCerrar_Click();
  EXPECT_EQ(EnCaja(), "");
  PulsarEntrada();
  EXPECT_EQ(EnCaja(), "texto");
  PulsarIcono(1);
  ASSERT_TRUE(QFile::remove(a) && QDir().mkdir(a));
  Texto()->CmdCancelar_Click();  // what it would go back to cannot be read
  ASSERT_TRUE(QDir().rmdir(a));
  Archivo("a", "otra vez");
  PulsarEntrada();
  EXPECT_EQ(EnCaja(), "otra vez");
}

}  // namespace
