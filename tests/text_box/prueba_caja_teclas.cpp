#include <gtest/gtest.h>

#include <QClipboard>

#include "text_box/banco_caja.h"

namespace {

struct Caso {
  const char* antes;
  const char* teclas;
  const char* despues;
};

void Comprobar(BancoCaja& banco, const Caso& caso) {
  banco.Poner(caso.antes);
  banco.Teclas(caso.teclas);
  EXPECT_EQ(banco.Estado(), caso.despues) << caso.antes << " + " << caso.teclas;
}

}  // namespace

TEST(CajaTeclas, each_key_moves_or_edits_as_it_says) {
  const Caso casos[] = {
      {"ab|c", "Left", "a|bc"},
      {"a\r\n|b", "Left", "a|\r\nb"},
      {"a|\r\nb", "Right", "a\r\n|b"},
      {"a^bc|d", "Left", "a|bcd"},
      {"a|bc^d", "Right", "abc|d"},
      {"a|\r\nb", "Shift+Right", "a^\r\n|b"},
      {"uno |dos, tres", "Ctrl+Right", "uno dos|, tres"},
      {"a\xf1o\xfc_1| b", "Ctrl+Left", "|a\xf1o\xfc_1 b"},
      {"uno|\r\n  dos", "Ctrl+Right", "uno\r\n|  dos"},
      {"uno\r\n  |dos", "Ctrl+Left Ctrl+Left", "uno|\r\n  dos"},
      {"abc\ndef|g\nhi", "Home", "abc\n|defg\nhi"},
      {"abc\nde|fg\nhi", "End", "abc\ndefg|\nhi"},
      {"a|bc\ndefg", "Ctrl+Shift+End", "a^bc\ndefg|"},
      {"abcd|e\nx\nabcdef", "Down Down", "abcde\nx\nabcd|ef"},
      {"abcde\nx\nabcdef|", "Up Up", "abcde|\nx\nabcdef"},
      {"ab|cde\nx\nabcdef", "Shift+Down", "ab^cde\nx|\nabcdef"},
      {"a|b", "x y", "axy|b"},
      {"a|b", "Return Tab Enter", "a\n\t\n|b"},
      {"1\r\na|b", "Return", "1\r\na\r\n|b"},
      {"a\r\n|b", "Backspace", "a|b"},
      {"a|\r\nb", "Del", "a|b"},
      {"a|\n\rb", "Del", "a|\rb"},
      {"\rx|\n", "Backspace", "\r\n|"},
      {"uno dos| tres", "Ctrl+Backspace", "uno | tres"},
      {"uno |dos tres", "Ctrl+Del", "uno |tres"},
      {"a|bc^d", "Del", "a|d"},
      {"a|b", "Esc Ctrl+K Ctrl+M Ins Ctrl+1 Alt+x Shift+Tab F5", "a|b"},
      {"a|b", "Ctrl+A", "^ab|"},
      {"a|b", "x y Ctrl+Z", "a|b"},
      {"a|b", "x y Ctrl+Z Ctrl+Y", "axy|b"},
      {"a|b", "x Ctrl+Z Ctrl+Shift+Z", "ax|b"},
      {"a|b", "x Left y Ctrl+Z", "a|xb"},
  };
  BancoCaja banco;
  for (const Caso& caso : casos) Comprobar(banco, caso);
}

TEST(CajaTeclas, each_key_that_marks_an_edit_is_announced_before_it_acts) {
  const struct {
    const char* teclas;
    const char* avisos;
  } casos[] = {
      {"a", "c"},         {"Return", "c"},       {"Backspace", "c"},
      {"Tab", "c"},       {"Esc", "c"},          {"Ctrl+C", "c"},
      {"Ctrl+K", "c"},    {"Ctrl+V", "c"},       {"Ctrl+Ins", "c"},
      {"Shift+Ins", "c"}, {"Del", "s"},          {"Shift+Del", "s"},
      {"Ctrl+Del", "s"},  {"Left Shift+Up", ""}, {"Home Ctrl+End PgUp PgDown", ""},
      {"F5 Ins", ""},     {"Ctrl+Up", ""},       {"Alt+a", ""},
  };
  BancoCaja banco;
  for (const auto& caso : casos) {
    banco.avisos.clear();
    banco.Teclas(caso.teclas);
    EXPECT_EQ(banco.avisos, caso.avisos) << caso.teclas;
  }
}

TEST(CajaTeclas, a_refused_character_is_dropped_and_read_only_keeps_the_text_and_copies) {
  BancoCaja banco;
  banco.deja_escribir = false;
  Comprobar(banco, {"a|bc", "x Return Backspace Ctrl+V Ctrl+A", "a|bc"});
  Comprobar(banco, {"a|bc", "Del Right", "ac|"});
  banco.deja_escribir = true;
  banco.caja.PonerSoloLectura(true);
  banco.avisos.clear();
  Comprobar(banco, {"a|bc", "x Del Backspace Ctrl+Z Shift+Del Return Shift+Right Ctrl+C", "a^b|c"});
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("b"));
  EXPECT_EQ(banco.avisos, "");
}

TEST(CajaTeclas, end_of_a_wrapped_row_stays_on_that_row_and_home_returns_to_its_start) {
  BancoCaja banco;  // 320 pixels hold fewer than 40 columns of 8
  banco.Poner("|" + std::string(30, 'a') + " " + std::string(30, 'b'));
  banco.Teclas("End");
  const Posicion rotura = banco.caja.Cursor();
  EXPECT_EQ(rotura, 31);
  const auto cursor = [&banco] {
    return banco.caja.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  };
  const QRect en_fin = cursor();
  banco.caja.PonerCursor(rotura, rotura);
  EXPECT_GT(cursor().top(), en_fin.top());
  EXPECT_LT(cursor().left(), en_fin.left());
  banco.Teclas("Up End Home");
  EXPECT_EQ(banco.caja.Cursor(), 0);
  banco.Teclas("End Down");
  EXPECT_EQ(banco.caja.Cursor(), 61);
  banco.Teclas("Up");  // back to the wanted column, the row's end
  EXPECT_EQ(cursor(), en_fin);
}

TEST(CajaTeclas, a_page_moves_caret_and_view_by_the_rows_in_sight_less_one) {
  BancoCaja banco(CajaTexto::Ajuste::SinAjustar);
  std::string texto;
  for (int i = 100; i < 200; ++i) texto += std::to_string(i) + "\n";
  banco.Poner("12|3\n" + texto);
  banco.Teclas("PgDown");
  const int filas = banco.caja.Vista().FilasVisibles() - 1;
  EXPECT_EQ(banco.caja.Cursor(), filas * 4 + 2);
  EXPECT_EQ(banco.caja.Arriba(), filas * 4);
  banco.Teclas("Ctrl+Down");
  EXPECT_EQ(banco.caja.Cursor(), filas * 4 + 2);
  EXPECT_EQ(banco.caja.Arriba(), filas * 4 + 4);
  banco.Teclas("PgUp PgUp");
  EXPECT_EQ(banco.caja.Cursor(), 2);
  EXPECT_EQ(banco.caja.Arriba(), 0);
}

TEST(CajaTeclas, what_is_read_as_one_character_is_stepped_over_and_deleted_at_once) {
  const struct {
    const char* antes;
    const char* teclas;
    const char* despues;
  } casos[] = {
      {"|e\u0301a", "Right", "e\u0301|a"},
      {"e\u0301|a", "Left", "|e\u0301a"},
      {"|e\u0301a", "Del", "|a"},
      {"e\u0301|a", "Backspace", "e|a"},  // a code point
      {"a\U0001f468\u200d\U0001f469|b", "Left", "a|\U0001f468\u200d\U0001f469b"},
      {"\U0001f1ea\U0001f1f8|\U0001f1ea\U0001f1f8", "Del", "\U0001f1ea\U0001f1f8|"},
      {"\u00f1\u00f1\u00f1|\xff", "Right Left Left", "\u00f1\u00f1|\u00f1\xff"},
      {"\u00f1\u00f1\u00f1|\xff\xfe", "Del", "\u00f1\u00f1\u00f1|\xfe"},
      {"|\u00e1rbol e\u0301l\u00e9 \u4e2d\u6587, fin", "Ctrl+Right Ctrl+Right",
       "\u00e1rbol e\u0301l\u00e9 |\u4e2d\u6587, fin"},
      {"\u041c\u0438\u0440|", "Ctrl+Left", "|\u041c\u0438\u0440"},
      {"\ufeff|hola", "Left", "|\ufeffhola"},
      {"\u05d0\u05d1|\u05d2", "Right", "\u05d0\u05d1\u05d2|"},  // by logical position
  };
  BancoCaja banco;
  for (const auto& caso : casos) {
    banco.Poner(caso.antes);
    banco.Teclas(caso.teclas);
    EXPECT_EQ(banco.Estado(), caso.despues) << caso.antes << caso.teclas;
  }
}
