#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextOption>

#include "shared/pagina_codigos.h"
#include "text_box/banco_caja.h"

namespace {

QFont Fuente(const char* familia, double puntos) {
  QFont fuente(QString::fromLatin1(familia));
  fuente.setPointSizeF(puntos);
  return fuente;
}

// What the toolkit's own editor shows of the same text.
QImage Modelo(const std::string& texto, QFont fuente, const QSize& tamano, int x) {
  QPlainTextEdit editor;
  editor.setLineWrapMode(QPlainTextEdit::NoWrap);
  editor.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  editor.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  fuente.setKerning(false);
  editor.setFont(fuente);
  QPalette paleta = editor.palette();
  paleta.setColor(QPalette::Text, Qt::black);
  paleta.setColor(QPalette::Base, Qt::white);
  editor.setPalette(paleta);
  editor.setPlainText(PaginaCodigos::ATexto(QByteArray::fromStdString(texto)));
  editor.resize(tamano);
  editor.setTextInteractionFlags(Qt::NoTextInteraction);
  editor.show();
  QApplication::processEvents();
  editor.horizontalScrollBar()->setValue(x);
  return editor.viewport()->grab().toImage();
}

}  // namespace

TEST(CajaPintura, rows_look_as_in_the_toolkits_own_editor) {
  const std::string texto = std::string(
                                "El veloz murci\xe9lago hind\xfa\ncom\xed"
                                "a \x80 5, cardillo & kiwi.\n\n"
                                "La cig\xfc"
                                "e\xf1"
                                "a tocaba: <{[(\xbf?\xa1!)]}> \x93"
                                "a\x94\n    0123456789\n") +
                            std::string(200, 'm');
  QFont negrita = Fuente("Liberation Serif", 12);
  negrita.setBold(true);
  negrita.setItalic(true);
  QFont rayas = Fuente("DejaVu Sans", 11);
  rayas.setUnderline(true);
  rayas.setStrikeOut(true);
  for (const QFont& fuente : {Fuente("Liberation Mono", 9.75), Fuente("Liberation Sans", 8.25),
                              Fuente("DejaVu Sans Mono", 24), negrita, rayas}) {
    BancoCaja banco(CajaTexto::Ajuste::SinAjustar);
    banco.caja.PonerFuente(fuente);
    banco.Poner("|" + texto);
    banco.caja.clearFocus();
    QTest::qWait(1);
    for (const int x : {0, 5, 123}) {
      banco.caja.horizontalScrollBar()->setValue(x);
      EXPECT_EQ(banco.Foto(), Modelo(texto, fuente, banco.caja.size(), x))
          << fuente.toString().toStdString() << " at " << x;
    }
  }
}

TEST(CajaPintura, a_character_that_the_font_lacks_comes_from_another) {
  BancoCaja banco;
  banco.Poner("|");
  const QImage vacia = banco.Foto();
  for (const char* texto : {"|\x80", "|\x01", "|\x81", "|a"}) {
    banco.Poner(texto);
    banco.caja.PonerFuente(QFont(QStringLiteral("DejaVu Math TeX Gyre"), 12));
    banco.Teclas("End");
    EXPECT_GT(banco.caja.inputMethodQuery(Qt::ImCursorRectangle).toRect().left(), 8);
    banco.caja.clearFocus();
    EXPECT_NE(banco.Foto(), vacia);
    banco.caja.setFocus();
  }
}

TEST(CajaPintura, caret_and_selection_are_seen_on_every_pair_of_colours) {
  const QColor colores[] = {Qt::black,
                            Qt::white,
                            Qt::blue,
                            Qt::gray,
                            QColor(0x30, 0x8c, 0xc6),
                            Qt::yellow,
                            Qt::darkRed,
                            QColor(0x80, 0x80, 0x88)};
  BancoCaja banco;
  for (const QColor& texto : colores) {
    for (const QColor& fondo : colores) {
      const AspectoCaja aspecto = AspectoCaja::De(texto, fondo, banco.caja.palette());
      EXPECT_GE(Contraste(aspecto.cursor, fondo), 3);
      EXPECT_GE(Contraste(aspecto.fondo_elegido, fondo), 2);
      EXPECT_GE(Contraste(aspecto.fondo_elegido, aspecto.texto_elegido), 3);
      banco.caja.PonerColores(texto, fondo);
      banco.Poner("ab^cd|");
      const QImage foto = banco.Foto();
      EXPECT_EQ(foto.pixelColor(200, 100), fondo);
      EXPECT_EQ(foto.pixelColor(banco.Sitio(4) - QPoint(1, 0)), aspecto.cursor);
      EXPECT_EQ(foto.pixelColor(banco.Sitio(2) + QPoint(0, 7)), aspecto.fondo_elegido);
    }
  }
}

TEST(CajaPintura, two_views_of_one_document_show_the_same_and_the_hidden_one_follows) {
  BancoCaja banco;
  CajaTexto otra(banco.documento, CajaTexto::Ajuste::AlAncho);
  otra.PonerFuente(banco.caja.Fuente());
  otra.resize(banco.caja.size());
  banco.Poner("uno|\ndos\n");
  otra.PonerCursor(6, 6);
  banco.Teclas("x Return");
  EXPECT_EQ(otra.Cursor(), 8);
  otra.show();
  QApplication::processEvents();
  banco.caja.clearFocus();
  otra.clearFocus();
  EXPECT_EQ(otra.viewport()->grab().toImage(), banco.Foto());
}

TEST(CajaPintura, a_change_of_width_keeps_the_text_read_at_the_top) {
  BancoCaja banco;
  std::string texto;
  for (int i = 0; i < 3000; ++i) texto += "palabra" + std::to_string(i) + (i % 50 ? " " : "\n");
  banco.Poner("|" + texto);
  banco.caja.PonerArriba(Posicion(texto.size()) / 2);
  const Posicion leida = banco.caja.Arriba();
  for (const int ancho : {500, 200, 777, 320}) {
    banco.caja.resize(ancho, 160);
    QApplication::processEvents();
    const Posicion arriba = banco.caja.Arriba();
    EXPECT_LE(arriba, leida);
    EXPECT_GT(banco.caja.Vista().Reparto().Siguiente(arriba), leida);
  }
  EXPECT_EQ(banco.caja.Arriba(), leida);
}

TEST(CajaPintura, a_caret_far_inside_an_enormous_line_is_in_sight_once_its_row_is_known) {
  for (const auto ajuste : {CajaTexto::Ajuste::AlAncho, CajaTexto::Ajuste::SinAjustar}) {
    BancoCaja banco(ajuste);
    banco.Poner("|" + std::string(3 * Renglones::Lejos, 'x'));
    banco.Teclas("Ctrl+End");
    EXPECT_EQ(banco.caja.Arriba(), 0);  // nobody waits for that
    while (!banco.caja.Vista().Completo()) QApplication::processEvents();
    const QRect cursor = banco.caja.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_TRUE(banco.caja.viewport()->geometry().contains(cursor)) << cursor.x();
    EXPECT_FALSE(cursor.isEmpty());
  }
}
