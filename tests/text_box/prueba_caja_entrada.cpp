#include <gtest/gtest.h>

#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

#include "text_box/banco_caja.h"
#include "text_box/texto_externo.h"

namespace {

void Componer(BancoCaja& banco, const QString& previo, const QString& confirmado, int desde = 0,
              int cuantos = 0) {
  QInputMethodEvent evento(previo, {});
  if (!confirmado.isEmpty() || cuantos > 0) evento.setCommitString(confirmado, desde, cuantos);
  QApplication::sendEvent(&banco.caja, &evento);
}

bool Soltar(BancoCaja& banco, const QMimeData& datos, const QPoint& punto) {
  QDragEnterEvent entrada(punto, Qt::CopyAction, &datos, Qt::LeftButton, {});
  QApplication::sendEvent(banco.caja.viewport(), &entrada);
  if (!entrada.isAccepted()) return false;
  QDropEvent evento(punto, Qt::CopyAction, &datos, Qt::LeftButton, {});
  QApplication::sendEvent(banco.caja.viewport(), &evento);
  return evento.isAccepted();
}

}  // namespace

TEST(CajaEntrada, what_is_pasted_takes_the_form_of_the_text_it_comes_to) {
  const struct {
    const char* copiado;       // by a box, or else
    const char16_t* de_fuera;  // by another program
    const char* antes;
    const char* despues;
  } casos[] = {
      {nullptr, u"x\r\ny\rz\n", "a|b", "ax\ny\nz\n|b"},
      {nullptr, u"x\ny", "\r\n|", "\r\nx\r\ny|"},
      {nullptr, u"\u20ac\u00f1\u4e2d\U0001F600\u2029", "\xf1|", "\xf1\x80\xf1??\n|"},
      {nullptr, u"\u20ac\u00f1", "|", "\x80\xf1|"},
      {nullptr, u"\u20ac\u00f1\u4e2d", "|", "\u20ac\u00f1\u4e2d|"},  // UTF-8 from now on
      {nullptr, u"e\u0301\u4e2d", "\u00f1|", "\u00f1e\u0301\u4e2d|"},
      {nullptr, u"e\u0301", "|", "\xe9|"},  // a letter and its accent apart
      {"^a\nb\n|", u"", "1\n|", "1\na\nb\n|"},
      {"^a\r\nb\n|", u"", "1\r\n|", "1\r\na\r\nb\r\n|"},
      {"^a\rb\n|", u"", "1\r|", "1\ra\rb\r|"},
      {"^\xf1\x80|", u"", "\u00e1|", "\u00e1\u00f1\u20ac|"},  // and its code page
      {"^\u00f1\u4e2d|", u"", "\xe1|", "\xe1\xf1?|"},
      {"^\u4e2d\u4e2d\xff|", u"", "\u00e1|", "\u00e1\u4e2d\u4e2d\xff|"},
  };
  BancoCaja origen;
  BancoCaja destino;
  for (const auto& caso : casos) {
    QApplication::clipboard()->setText(QString::fromUtf16(caso.de_fuera));
    if (caso.copiado != nullptr) {
      origen.Poner(caso.copiado);
      origen.Teclas("Ctrl+C Del");
    }
    destino.Poner(caso.antes);
    destino.Teclas("Shift+Ins");
    EXPECT_EQ(destino.Estado(), caso.despues);
  }
}

TEST(CajaEntrada, copied_text_keeps_every_byte_and_cut_is_one_step_of_undo) {
  BancoCaja banco;
  std::string todos;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r') todos += char(byte);
  }
  banco.documento.Poner(todos);
  banco.Teclas("Ctrl+A Ctrl+C");
  const QString copiado = QApplication::clipboard()->text();
  ASSERT_EQ(copiado.size(), 255);
  EXPECT_EQ(copiado[0], QChar(0));
  EXPECT_EQ(copiado[0x80 - 1], QChar(0x20ac));
  banco.Teclas("Shift+Del");
  EXPECT_EQ(banco.documento.Tamano(), 0);
  banco.Teclas("Ctrl+V");
  EXPECT_EQ(banco.documento.Copia().toStdString(), todos);
  banco.Teclas("Ctrl+Z Ctrl+Z");
  EXPECT_EQ(banco.documento.Copia().toStdString(), todos);
  banco.Poner("^a\r\nb|");
  banco.Teclas("Ctrl+Ins");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("a\nb"));
}

TEST(CajaEntrada, committed_text_counts_as_a_key_and_replaces_what_the_method_says) {
  BancoCaja banco;
  banco.Poner("a^b|c");
  EXPECT_EQ(banco.caja.inputMethodQuery(Qt::ImCurrentSelection).toString(), QStringLiteral("b"));
  Componer(banco, {}, QStringLiteral("\u00e1"));
  EXPECT_EQ(banco.Estado(), "a\xe1|c");
  EXPECT_EQ(banco.avisos, "c");
  Componer(banco, {}, QStringLiteral("xy"), -2, 2);
  EXPECT_EQ(banco.Estado(), "xy|c");
  banco.deja_escribir = false;
  Componer(banco, {}, QStringLiteral("z"));
  EXPECT_EQ(banco.Estado(), "xy|c");
}

TEST(CajaEntrada, text_under_composition_is_shown_and_leaves_no_trace) {
  BancoCaja banco;
  banco.Poner("hola| mundo");
  const auto dicho = [&](Qt::InputMethodQuery que) { return banco.caja.inputMethodQuery(que); };
  EXPECT_EQ(dicho(Qt::ImSurroundingText).toString(), QStringLiteral("hola mundo"));
  EXPECT_EQ(dicho(Qt::ImCursorPosition).toInt(), 4);
  EXPECT_EQ(dicho(Qt::ImAnchorPosition).toInt(), 4);
  EXPECT_TRUE(dicho(Qt::ImEnabled).toBool());
  const QImage antes = banco.Foto();
  const QRect cursor = banco.caja.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  Componer(banco, QStringLiteral("nihao"), {});
  EXPECT_NE(banco.Foto(), antes);
  EXPECT_GT(banco.caja.inputMethodQuery(Qt::ImCursorRectangle).toRect().left(), cursor.left());
  EXPECT_EQ(banco.Estado(), "hola| mundo");
  EXPECT_EQ(banco.avisos, "");
  Componer(banco, {}, {});
  EXPECT_EQ(banco.Foto(), antes);
}

TEST(CajaEntrada, dropped_text_is_inserted_and_selected_and_a_dropped_file_does_nothing) {
  BancoCaja banco;
  banco.Poner("abc|");
  QMimeData texto;
  texto.setText(QStringLiteral("xy"));
  EXPECT_TRUE(Soltar(banco, texto, banco.Sitio(1)));
  EXPECT_EQ(banco.Estado(), "a^xy|bc");
  QMimeData archivo;
  archivo.setText(QStringLiteral("/tmp/uno.txt"));
  archivo.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/uno.txt"))});
  EXPECT_FALSE(Soltar(banco, archivo, banco.Sitio(1)));
  EXPECT_EQ(banco.Estado(), "a^xy|bc");
  EXPECT_EQ(banco.avisos, "");
}

TEST(CajaEntrada, what_memory_cannot_hold_is_told_and_changes_nothing) {
  struct Demasiado : QMimeData {
    QStringList formats() const override { return {"text/plain"}; }
    QVariant retrieveData(const QString& formato, QMetaType /*tipo*/) const override {
      return formato == "text/plain" ? throw std::bad_alloc() : QVariant();
    }
  };
  BancoCaja banco;
  banco.Poner("a^b|c");
  EXPECT_TRUE(Soltar(banco, Demasiado(), banco.Sitio(1)));
  QApplication::clipboard()->setMimeData(new Demasiado);
  banco.Teclas("Ctrl+V");
  EXPECT_EQ(banco.Estado(), "a^b|c");
  EXPECT_EQ(banco.avisos, "mcm");
  QApplication::clipboard()->clear();
  const DatosTexto enorme({{}, Posicion{1} << 60, 0, {}}, Codificacion::Windows1252());
  EXPECT_EQ(enorme.text(), "") << "asked for by another program";
}

TEST(CajaEntrada, the_menu_is_spanish_and_offers_what_can_be_done) {
  BancoCaja banco;
  banco.Poner("a|b");
  QApplication::clipboard()->clear();
  banco.Teclas("Shift+F10");
  auto* menu = banco.caja.findChild<QMenu*>();
  ASSERT_TRUE(menu);
  QStringList activas;
  QAction* todo = nullptr;
  for (QAction* accion : menu->actions()) {
    if (accion->isEnabled() && !accion->isSeparator()) activas += accion->text();
    todo = accion;
  }
  EXPECT_EQ(activas, QStringList{QStringLiteral("&Seleccionar todo\tCtrl+A")});
  todo->trigger();
  EXPECT_EQ(banco.Estado(), "^ab|");
  EXPECT_EQ(banco.avisos, "");
  menu->close();
}
