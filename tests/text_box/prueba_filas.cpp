#include <gtest/gtest.h>
#include <string>

#include "text_box/filas.h"
#include "text_box/renglones_lineas.h"

namespace {

Avances Unos(std::int32_t tabulador = 4) {
  Avances avances;
  avances.ancho.fill(1);
  avances.tabulador = tabulador;
  return avances;
}

// A text and its rows, told of each change.
class Texto {
 public:
  explicit Texto(std::string_view bytes) { Cambiar(0, 0, bytes); }
  void Cambiar(Posicion pos, Posicion quitados, std::string_view nuevos) {
    ASSERT_TRUE(bytes_.Reemplazar(pos, quitados, nuevos));
    const Cambio cambio{pos, quitados, std::ssize(nuevos)};
    lineas_.Reemplazado(cambio);
    filas_.Reemplazado(cambio);
    renglones_.Reemplazado(cambio);
  }
  Filas& PorFilas(const Avances& avances, Punto ancho) {
    filas_.Configurar(avances, ancho);
    return filas_;
  }
  RenglonesLineas& PorLineas(const Avances& avances) {
    renglones_.Configurar(avances);
    return renglones_;
  }

 private:
  Bytes bytes_;
  Lineas lineas_{bytes_};
  Filas filas_{bytes_, lineas_};
  RenglonesLineas renglones_{bytes_, lineas_};
};

// Rows of a line without blanks never meet the old ones: what is shown must be right all the same.
TEST(Filas, rows_of_a_huge_line_are_right_at_once_after_a_change) {
  constexpr Posicion Tamano = 10'000'000;
  Texto texto(std::string(Tamano, 'x'));
  Filas& filas = texto.PorFilas(Unos(), 100);
  while (!filas.Avanzar(10)) continue;
  ASSERT_EQ(filas.Total(), Tamano / 100);
  texto.Cambiar(250, 0, "\n");  // from here on rows start at 51 past a hundred
  EXPECT_FALSE(filas.Completo());
  EXPECT_NEAR(static_cast<double>(filas.Total()), Tamano / 100, 10);
  EXPECT_EQ(filas.InicioDe(400), 351);
  texto.Cambiar(5'000'010, 0, "yy");
  EXPECT_EQ(filas.InicioDe(9'000'000), 8'999'951);
  texto.Cambiar(260, 1, "");
  EXPECT_EQ(filas.InicioDe(4'000'050), 3'999'951);
  while (!filas.Avanzar(10)) continue;
  EXPECT_EQ(filas.Total(), 3 + (Tamano + 2 - 251 + 99) / 100);
  EXPECT_EQ(filas.PosicionDe(50'000), 251 + (50'000 - 3) * 100);
}

TEST(RenglonesLineas, x_in_a_huge_line_goes_both_ways) {
  constexpr Posicion Tamano = 3'000'000;
  Texto texto(std::string(Tamano, 'x'));
  texto.Cambiar(1'000'000, 1, "\t");  // stops every seven: on to 1'000'006
  RenglonesLineas& renglones = texto.PorLineas(Unos(7));
  EXPECT_EQ(renglones.XDe(0, 999'999), 999'999);
  EXPECT_EQ(renglones.XDe(0, 2'000'001), 2'000'006);
  EXPECT_EQ(renglones.PosicionEnX(0, 2'000'006), 2'000'001);
  EXPECT_EQ(renglones.CorteEnX(0, 1'000'003).pos, 1'000'000);
  while (!renglones.Avanzar(10)) continue;
  EXPECT_EQ(renglones.AnchoMaximo(), Tamano + 5);
  texto.Cambiar(2'999'999, 1, "");
  EXPECT_TRUE(renglones.Completo());
  EXPECT_EQ(renglones.AnchoMaximo(), Tamano + 4);
}

}  // namespace
