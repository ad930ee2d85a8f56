#include <gtest/gtest.h>

#include <QScrollBar>

#include "text_box/banco_caja.h"

namespace {

constexpr auto Pulsar = QEvent::MouseButtonPress;
constexpr auto Mover = QEvent::MouseMove;
constexpr auto Soltar = QEvent::MouseButtonRelease;
constexpr auto Doble = QEvent::MouseButtonDblClick;

}  // namespace

TEST(CajaRaton, clicks_and_drags_select_characters_words_and_lines) {
  BancoCaja banco;
  const std::string texto = "uno dos\r\ntres, cuatro\nfin";
  banco.Poner("|" + texto);
  banco.Clic(banco.Sitio(5));
  EXPECT_EQ(banco.Estado(), "uno d|os\r\ntres, cuatro\nfin");
  banco.Clic(banco.Sitio(10), Qt::ShiftModifier);
  EXPECT_EQ(banco.Estado(), "uno d^os\r\nt|res, cuatro\nfin");
  banco.Clic({300, 150});  // below the text
  EXPECT_EQ(banco.Estado(), texto + "|");
  banco.Raton(Pulsar, banco.Sitio(12));
  banco.Raton(Mover, banco.Sitio(4));
  banco.Raton(Soltar, banco.Sitio(4));
  EXPECT_EQ(banco.Estado(), "uno |dos\r\ntre^s, cuatro\nfin");
  banco.Clic(banco.Sitio(11), Qt::ShiftModifier);  // ends the drag's selection anew
  banco.Clic(banco.Sitio(0));
  banco.Raton(Pulsar, banco.Sitio(16));
  banco.Raton(Soltar, banco.Sitio(16));
  banco.Raton(Doble, banco.Sitio(16));
  EXPECT_EQ(banco.Estado(), "uno dos\r\ntres, ^cuatro|\nfin");
  banco.Raton(Mover, banco.Sitio(5));
  banco.Raton(Soltar, banco.Sitio(5));
  EXPECT_EQ(banco.Estado(), "uno |dos\r\ntres, cuatro^\nfin");
  banco.Raton(Doble, banco.Sitio(16));
  banco.Raton(Soltar, banco.Sitio(16));
  banco.Clic(banco.Sitio(16));
  EXPECT_EQ(banco.Estado(), "uno dos\r\n^tres, cuatro\n|fin");
  banco.Raton(Pulsar, banco.Sitio(12));
  EXPECT_EQ(banco.Estado(), "uno dos\r\n^tres, cuatro\n|fin") << "kept until it is let go";
  banco.Raton(Soltar, banco.Sitio(12));
  EXPECT_EQ(banco.Estado(), "uno dos\r\ntre|s, cuatro\nfin");
  EXPECT_EQ(banco.avisos, "");
}

// The desktop would have to carry it, so it is only asked for.
TEST(CajaRaton, what_is_selected_is_moved_by_a_drag_in_one_step_of_undo) {
  struct : OyenteEdicion {
    void PorQuitar(const Rango& /*rango*/) override {}
    void CursorMovido() override {}
    void FaltaMemoria() override {}
  } nadie;
  for (const auto& [pos, despues] : {std::pair{0, "cdab\r\nef"},
                                     {1, "acdb\r\nef"},
                                     {3, "abcd\r\nef"},
                                     {6, "ab\r\ncdef"},
                                     {8, "ab\r\nefcd"}}) {
    BancoCaja banco;
    banco.Poner("abcd\r\nef|");
    CursorTexto cursor(banco.documento, banco.caja.Vista());
    EdicionTexto edicion(banco.documento, cursor, nadie);
    cursor.Llevar({2, false}, Seleccion::Quitar);
    cursor.Llevar({4, false}, Seleccion::Extender);
    edicion.MoverElegido(pos);
    EXPECT_EQ(banco.documento.Copia(), despues);
    EXPECT_EQ(banco.documento.Copia(cursor.Elegido().desde, cursor.Elegido().hasta), "cd");
    edicion.Deshacer();
    EXPECT_EQ(banco.documento.Copia(), "abcd\r\nef");
  }
}

TEST(CajaRaton, a_drag_back_to_the_first_word_of_a_wrapped_row_leaves_the_caret_in_that_row) {
  BancoCaja banco;
  banco.Poner("|" + std::string(30, 'a') + " " + std::string(30, 'b') + " ccc");
  banco.Raton(Doble, banco.Sitio(63));
  banco.Raton(Mover, banco.Sitio(40));
  banco.Raton(Soltar, banco.Sitio(40));
  EXPECT_EQ(banco.Estado(), std::string(30, 'a') + " |" + std::string(30, 'b') + " ccc^");
  EXPECT_EQ(banco.caja.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().y(),
            banco.Sitio(40).y() + banco.caja.viewport()->y());
}

TEST(CajaRaton, the_wheel_scrolls_three_rows_a_notch_small_turns_add_up_and_the_text_ends) {
  BancoCaja banco(CajaTexto::Ajuste::SinAjustar);
  std::string texto;
  for (int i = 100; i < 200; ++i) texto += std::to_string(i) + "\n";
  banco.Poner("|" + texto + std::string(100, 'x'));
  const auto girar = [&banco](int angulo, bool de_lado = false) {
    const QPoint giro = de_lado ? QPoint(angulo, 0) : QPoint(0, angulo);
    QWheelEvent evento({10, 10}, {10, 10}, {}, giro, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(banco.caja.viewport(), &evento);
  };
  girar(-120);
  EXPECT_EQ(banco.caja.Arriba(), 12);
  for (int i = 0; i < 4; ++i) girar(-30);
  EXPECT_EQ(banco.caja.Arriba(), 24);
  girar(600);
  EXPECT_EQ(banco.caja.Arriba(), 0);
  EXPECT_EQ(banco.caja.Cursor(), 0);
  const QScrollBar& barra = *banco.caja.horizontalScrollBar();
  EXPECT_TRUE(QTest::qWaitFor([&] { return barra.maximum() > 0; }));
  for (int i = 0; i < 40; ++i) girar(-120, true);
  EXPECT_EQ(barra.value(), barra.maximum());
  const QRect fin = banco.caja.Vista().Rectangulo({500, false});
  EXPECT_GT(fin.right(), banco.caja.viewport()->width() - 20) << "no further than the widest line";
}

TEST(CajaRaton, the_scroll_bars_reach_the_last_row_and_the_widest_line) {
  BancoCaja banco(CajaTexto::Ajuste::SinAjustar);
  std::string texto;
  for (int i = 100; i < 200; ++i) texto += std::to_string(i) + "\n";
  banco.Poner("|" + texto + std::string(500, 'x'));
  QTest::qWait(20);
  banco.caja.verticalScrollBar()->setValue(banco.caja.verticalScrollBar()->maximum());
  banco.caja.horizontalScrollBar()->setValue(banco.caja.horizontalScrollBar()->maximum());
  const QRect fin = banco.caja.Vista().Rectangulo({900, false});
  EXPECT_TRUE(banco.caja.viewport()->rect().contains(fin));
  EXPECT_GT(fin.left(), banco.caja.viewport()->width() - 10);
  EXPECT_GT(fin.bottom(), banco.caja.viewport()->height() - 2 * fin.height());
  const Posicion ultima = banco.caja.Arriba();
  banco.caja.PonerArriba(900);
  EXPECT_EQ(banco.caja.Arriba(), ultima);
  banco.caja.verticalScrollBar()->setValue(7);
  EXPECT_EQ(banco.caja.Arriba(), 28);
}

TEST(CajaRaton, a_bar_over_more_rows_than_it_can_count_still_reaches_both_ends) {
  QScrollBar barra;
  BarraLarga larga(&barra);
  const std::int64_t maximo = 5'000'000'007;
  for (const std::int64_t valor : {std::int64_t(0), maximo / 2, maximo}) {
    larga.Poner(valor, maximo, 30, 1);
    EXPECT_NEAR(double(larga.Valor()), double(valor), 8);
    EXPECT_EQ(barra.value() == barra.maximum(), valor == maximo);
  }
  EXPECT_EQ(larga.Valor(), maximo);
}
