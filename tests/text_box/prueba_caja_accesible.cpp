#include <gtest/gtest.h>

#include <QAccessible>

#include "text_box/banco_caja.h"

TEST(CajaAccesible, a_screen_reader_finds_text_caret_selection_and_places) {
  BancoCaja banco;
  banco.Poner("uno ^dos|\r\n\xf1 tres");
  QAccessibleInterface* caja = QAccessible::queryAccessibleInterface(&banco.caja);
  ASSERT_TRUE(caja && caja->textInterface() && caja->editableTextInterface());
  EXPECT_EQ(caja->role(), QAccessible::EditableText);
  EXPECT_TRUE(caja->state().editable && caja->state().multiLine);
  QAccessibleTextInterface* texto = caja->textInterface();
  EXPECT_EQ(texto->characterCount(), 15);
  EXPECT_EQ(texto->cursorPosition(), 7);
  int desde = 0;
  int hasta = 0;
  texto->selection(0, &desde, &hasta);
  EXPECT_EQ(std::make_pair(desde, hasta), std::make_pair(4, 7));
  EXPECT_EQ(texto->selectionCount(), 1);
  EXPECT_EQ(texto->text(9, 99), QStringLiteral("\u00f1 tres"));
  using Unidad = QAccessible::TextBoundaryType;
  const struct {
    decltype(&QAccessibleTextInterface::textAtOffset) pregunta;
    int pos;
    Unidad unidad;
    const char16_t* respuesta;
  } casos[] = {
      {&QAccessibleTextInterface::textAtOffset, 5, Unidad::WordBoundary, u"dos"},
      {&QAccessibleTextInterface::textAtOffset, 5, Unidad::LineBoundary, u"uno dos\r\n"},
      {&QAccessibleTextInterface::textAtOffset, 7, Unidad::CharBoundary, u"\r\n"},
      {&QAccessibleTextInterface::textBeforeOffset, 11, Unidad::ParagraphBoundary, u"uno dos\r\n"},
      {&QAccessibleTextInterface::textAfterOffset, 2, Unidad::LineBoundary, u"\u00f1 tres"},
      {&QAccessibleTextInterface::textAfterOffset, 15, Unidad::CharBoundary, u""},
      {&QAccessibleTextInterface::textBeforeOffset, 0, Unidad::WordBoundary, u""},
  };
  for (const auto& caso : casos) {
    EXPECT_EQ((texto->*caso.pregunta)(caso.pos, caso.unidad, &desde, &hasta),
              QString::fromUtf16(caso.respuesta))
        << caso.pos;
  }
  const QRect sitio = texto->characterRect(11);
  EXPECT_GT(sitio.width(), 4);
  EXPECT_EQ(texto->offsetAtPoint(sitio.center()), 11);
  caja->editableTextInterface()->replaceText(0, 3, QStringLiteral("x"));
  EXPECT_EQ(banco.Estado(), "x| dos\r\n\xf1 tres");
  EXPECT_EQ(texto->selectionCount(), 0);
  texto->addSelection(1, 3);
  EXPECT_EQ(banco.Estado(), "x^ d|os\r\n\xf1 tres");
  texto->setSelection(0, 4, 2);
  EXPECT_EQ(banco.Estado(), "x |do^s\r\n\xf1 tres");
  texto->setSelection(1, 0, 5);  // there is one only
  EXPECT_EQ(banco.Estado(), "x |do^s\r\n\xf1 tres");
  texto->removeSelection(0);
  EXPECT_EQ(banco.Estado(), "x |dos\r\n\xf1 tres");
  EXPECT_EQ(banco.avisos, "");
}

TEST(CajaAccesible, a_screen_reader_counts_code_points) {
  BancoCaja banco;
  banco.Poner("\u00f1 e\u0301^\U0001f600|\n\u4e2d\u6587\n");
  QAccessibleInterface* caja = QAccessible::queryAccessibleInterface(&banco.caja);
  QAccessibleTextInterface* texto = caja->textInterface();
  EXPECT_EQ(texto->characterCount(), 9);
  EXPECT_EQ(texto->cursorPosition(), 5);
  int desde = 0;
  int hasta = 0;
  texto->selection(0, &desde, &hasta);
  EXPECT_EQ(std::make_pair(desde, hasta), std::make_pair(4, 5));
  EXPECT_EQ(texto->text(4, 7), QStringLiteral("\U0001f600\n\u4e2d"));
  EXPECT_EQ(texto->textAtOffset(2, QAccessible::CharBoundary, &desde, &hasta), "e\u0301");
  EXPECT_EQ(std::make_pair(desde, hasta), std::make_pair(2, 4));
  EXPECT_EQ(texto->offsetAtPoint(texto->characterRect(6).center() - QPoint(2, 0)), 6);
  texto->setCursorPosition(7);
  banco.Teclas("Backspace");
  EXPECT_EQ(banco.Estado(), "\u00f1 e\u0301\U0001f600\n|\u6587\n");
}
