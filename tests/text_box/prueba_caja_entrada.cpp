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

TEST(CajaEntrada, pasted_text_takes_the_documents_line_ends_and_lacking_characters_become_marks) {
  const struct {
    const char* antes;
    const char16_t* pegado;
    const char* despues;
  } casos[] = {
      {"a|b", u"x\r\ny\rz\n", "ax\ny\nz\n|b"},
      {"\r\n|", u"x\ny", "\r\nx\r\ny|"},
      {"|", u"\u20ac\u00f1\u4e2d\U0001F600\u2029", "\x80\xf1??\n|"},
      {"|", u"e\u0301", "\xe9|"},  // a letter and its accent apart
  };
  BancoCaja banco;
  for (const auto& caso : casos) {
    banco.Poner(caso.antes);
    QApplication::clipboard()->setText(QString::fromUtf16(caso.pegado));
    banco.Teclas("Shift+Ins");
    EXPECT_EQ(banco.Estado(), caso.despues);
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

TEST(CajaEntrada, what_a_box_copied_takes_the_line_ends_of_the_text_it_comes_to) {
  const struct {
    const char* copiado;
    const char* donde;
    const char* despues;
  } casos[] = {
      {"^a\nb\n|", "1\n|", "1\na\nb\n|"},
      {"^a\nb\n|", "1\r\n|", "1\r\na\r\nb\r\n|"},
      {"^a\r\nb\r\n|", "1\r\n|", "1\r\na\r\nb\r\n|"},
      {"^a\r\nb\n|", "1\r\n|", "1\r\na\r\nb\r\n|"},
      {"^a\r\nb\r|", "1\r\n|", "1\r\na\r\nb\r\n|"},
      {"^a\rb\n|", "1\r|", "1\ra\rb\r|"},
  };
  BancoCaja origen;
  BancoCaja destino;
  for (const auto& caso : casos) {
    origen.Poner(caso.copiado);
    origen.Teclas("Ctrl+C Del");
    destino.Poner(caso.donde);
    destino.Teclas("Ctrl+V");
    EXPECT_EQ(destino.Estado(), caso.despues) << caso.copiado;
  }
}

TEST(CajaEntrada, committed_text_counts_as_a_key_and_replaces_what_the_method_says) {
  BancoCaja banco;
  banco.Poner("a^b|c");
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

TEST(CajaEntrada, an_input_method_is_told_what_surrounds_the_caret) {
  BancoCaja banco;
  banco.Poner("a\xf1^bc|d");
  const CajaTexto& caja = banco.caja;
  EXPECT_EQ(caja.inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("a\u00f1bcd"));
  EXPECT_EQ(caja.inputMethodQuery(Qt::ImCursorPosition).toInt(), 4);
  EXPECT_EQ(caja.inputMethodQuery(Qt::ImAnchorPosition).toInt(), 2);
  EXPECT_EQ(caja.inputMethodQuery(Qt::ImCurrentSelection).toString(), QStringLiteral("bc"));
  EXPECT_TRUE(caja.inputMethodQuery(Qt::ImEnabled).toBool());
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

TEST(CajaEntrada, a_text_handed_over_is_no_copy_and_outlives_its_document) {
  BancoCaja banco;
  banco.documento.Poner("uno");
  const char* const donde = banco.documento.Texto().Donde(0).datos;
  const TextoEntero entero = banco.documento.Entero();
  banco.documento.Poner("otro");
  EXPECT_EQ(entero.tramos, std::vector<std::string_view>{"uno"});
  EXPECT_EQ(entero.tramos[0].data(), donde);
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
  const DatosTexto enorme({{}, Posicion{1} << 60, 0, {}}, {});
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
