#include <gtest/gtest.h>

#include <QGlyphRun>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
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
QImage Modelo(const QString& texto, QFont fuente, const QSize& tamano, int x,
              qreal* base = nullptr) {
  QPlainTextEdit editor;
  editor.setLineWrapMode(QPlainTextEdit::NoWrap);
  editor.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  editor.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  fuente.setKerning(false);
  fuente.setLetterSpacing(QFont::PercentageSpacing, 100);  // no ligatures
  editor.setFont(fuente);
  QPalette paleta = editor.palette();
  paleta.setColor(QPalette::Text, Qt::black);
  paleta.setColor(QPalette::Base, Qt::white);
  editor.setPalette(paleta);
  editor.setPlainText(texto);
  editor.resize(tamano);
  editor.setTextInteractionFlags(Qt::NoTextInteraction);
  editor.show();
  QApplication::processEvents();
  editor.horizontalScrollBar()->setValue(x);
  if (base) *base = editor.document()->firstBlock().layout()->lineAt(0).ascent();
  return editor.viewport()->grab().toImage();
}

// Does any font have it?
bool SeTiene(char32_t letra) {
  QTextLayout maqueta(QString::fromUcs4(&letra, 1), Fuente("Liberation Mono", 10));
  Maquetar(maqueta);
  const QList<QGlyphRun> trazos = maqueta.glyphRuns();
  return !trazos.isEmpty() && trazos[0].glyphIndexes().value(0) != 0;
}

// Where another font makes the toolkit's row higher, ours shows the part around the base line.
void CompararFila(const std::string& texto, const QFont& fuente) {
  BancoCaja banco(CajaTexto::Ajuste::SinAjustar);
  banco.caja.PonerFuente(fuente);
  banco.documento.Poner(texto);
  banco.caja.clearFocus();
  QTest::qWait(1);
  qreal base = 0;
  const QImage modelo = Modelo(QString::fromStdString(texto), fuente, banco.caja.size(), 0, &base);
  const TablaGlifos& tabla = banco.caja.Vista().Tabla();
  const qreal escala = modelo.devicePixelRatio();
  const auto fila = [&](qreal su_base) {
    const int mas_abajo = qRound(su_base * escala) - qRound(tabla.Base() * escala);
    return QRectF(0, Encuadre::Margen * escala + mas_abajo, modelo.width(),
                  tabla.AltoFila() * escala)
        .toRect();
  };
  EXPECT_EQ(banco.Foto().copy(fila(tabla.Base())), modelo.copy(fila(base)))
      << texto << fuente.toString().toStdString();
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
  const QString modelo = PaginaCodigos::ATexto(QByteArray::fromStdString(texto));
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
      EXPECT_EQ(banco.Foto(), Modelo(modelo, fuente, banco.caja.size(), x))
          << fuente.toString().toStdString() << " at " << x;
    }
  }
}

TEST(CajaPintura, rows_of_every_script_look_as_in_the_toolkits_own_editor) {
  const struct {
    const char* texto;
    char32_t letra;  // some font has to have it
  } casos[] = {
      {"El murci\u00e9lago hind\u00fa: \u2018\u20ac 5\u2019 \u2014\u00bfya? \u2192 fin", U'\u2192'},
      {"El murcie\u0301lago n\u0303o u\u0308 a\u0301e\u0301", U'\u0301'},
      {"Za\u017c\u00f3\u0142\u0107 g\u0119\u015bl\u0105 ja\u017a\u0144", U'\u0142'},
      {"\u039e\u03b5\u03c3\u03ba\u03b5\u03c0\u03ac\u03b6\u03c9 \u03c4\u1f74\u03bd", U'\u1f74'},
      {"\u0421\u044a\u0435\u0448\u044c \u0451\u0449\u0451, abc", U'\u0449'},
      {"Ti\u1ebfng Vi\u1ec7t \u0111\u1eb7c", U'\u1ec7'},
      {"\u6211\u80fd\u541e\u4e0b\u73bb\u7483\uff0c\u4e0d\u4f24\u3002", U'\u6211'},
      {"\u3044\u308d\u306f\u30ab\u30bf \u6f22\u5b57 abc", U'\u3044'},
      {"\ud55c\uad6d\uc5b4 \u1112\u1161\u11ab", U'\ud55c'},
      {"\u0e1b\u0e47\u0e19\u0e21\u0e19\u0e38\u0e29\u0e22\u0e4c\u0e19\u0e49\u0e33", U'\u0e1b'},
      {"\u0939\u093f\u0928\u094d\u0926\u0940 \u0915\u094d\u0937", U'\u0939'},
      {"\u0627\u0644\u0633\u0644\u0627\u0645 \u0639\u0644\u064a\u0643\u0645 abc", U'\u0639'},
      {"\u05e9\u05c1\u05dc\u05d5\u05dd abc \u05e2\u05d5\u05dc\u05dd", U'\u05e9'},
      {"a \U0001f44d\U0001f3fd \U0001f468\u200d\U0001f469\u200d\U0001f467 "
       "\U0001f1ea\U0001f1f8 b",
       U'\U0001f44d'},
  };
  QString faltan;
  for (const auto& caso : casos) {
    if (SeTiene(caso.letra)) {
      for (const QFont& fuente : {Fuente("Liberation Mono", 9.75), Fuente("DejaVu Sans", 12)}) {
        CompararFila(caso.texto, fuente);
      }
    } else {
      faltan += QString::fromUcs4(&caso.letra, 1);
    }
  }
  if (!faltan.isEmpty()) GTEST_SKIP() << "no font here has " << faltan.toStdString();
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

TEST(CajaPintura, an_empty_text_has_no_caret_while_the_fonts_are_still_to_come) {
  BancoCaja banco;
  const QImage con_cursor = banco.Foto();
  banco.caja.PonerEsperaFuentes(true);
  EXPECT_NE(banco.Foto(), con_cursor);
  EXPECT_TRUE(banco.caja.inputMethodQuery(Qt::ImCursorRectangle).toRect().size().isEmpty());
  banco.caja.PonerEsperaFuentes(false);
  EXPECT_EQ(banco.Foto(), con_cursor);
  banco.Poner("a|");
  const QImage con_letra = banco.Foto();
  banco.caja.PonerEsperaFuentes(true);
  EXPECT_EQ(banco.Foto(), con_letra) << "a text waits for them";
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
