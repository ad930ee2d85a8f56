#include <gmock/gmock.h>
#include <string>

#include "text_box/bytes.h"
#include "text_box/lineas.h"

namespace {

std::string Todo(const Bytes& bytes) {
  std::string copia(static_cast<std::size_t>(bytes.Tamano()), '?');
  bytes.Copiar(0, bytes.Tamano(), copia.data());
  return copia;
}

Bytes Con(std::string_view contenido) {
  Bytes bytes;
  EXPECT_TRUE(bytes.Reemplazar(0, 0, contenido));
  return bytes;
}

TEST(Bytes, text_put_in_from_itself_is_what_it_was_before) {
  Bytes bytes = Con("abcdef");
  ASSERT_TRUE(bytes.Reemplazar(3, 0, "-"));
  ASSERT_TRUE(bytes.Reemplazar(1, 2, bytes.Tramos(4, 7)[0]));
  EXPECT_EQ(Todo(bytes), "adef-def");
}

TEST(Bytes, loading_goes_on_behind_what_was_edited) {
  Bytes bytes;
  for (const std::string_view tramo : {"uno ", "dos "}) {
    const std::span<char> sitio = bytes.ReservarFinal(3 << 20);
    ASSERT_GE(sitio.size(), 3U << 20);
    tramo.copy(sitio.data(), tramo.size());
    bytes.ConfirmarFinal(tramo.size());
    ASSERT_TRUE(bytes.Reemplazar(bytes.Tamano(), 0, "+"));
  }
  EXPECT_EQ(Todo(bytes), "uno +dos +");
}

TEST(Bytes, memory_that_is_not_to_be_had_changes_nothing) {
  Bytes bytes = Con("abc");
  EXPECT_TRUE(bytes.ReservarFinal(std::size_t{1} << 60).empty());
  EXPECT_EQ(Todo(bytes), "abc");
}

TEST(Bytes, pieces_that_meet_again_become_one) {
  Bytes bytes = Con("uno dos tres");
  std::vector<Pieza> sacados = bytes.Sustituir(4, 4, {});
  EXPECT_EQ(bytes.Tramos().size(), 2);
  EXPECT_EQ(Todo(bytes), "uno tres");
  EXPECT_TRUE(bytes.Sustituir(4, 0, std::move(sacados)).empty());
  EXPECT_EQ(bytes.Tramos(), std::vector<std::string_view>{"uno dos tres"});
}

TEST(Bytes, what_was_taken_out_outlives_the_text) {
  std::vector<Pieza> sacados;
  {
    Bytes bytes = Con("uno dos tres");
    sacados = bytes.Piezas(2, 6);
    ASSERT_TRUE(bytes.Reemplazar(0, bytes.Tamano(), "otro"));
  }
  ASSERT_EQ(sacados.size(), 1);
  EXPECT_EQ(sacados[0].bytes, "o do");
}

TEST(ContadorLineas, line_ends_cut_by_the_pieces_are_counted_once) {
  const std::string texto = "a\r\nb\rc\n\r\r\n\r";
  for (std::size_t paso = 1; paso <= texto.size(); ++paso) {
    for (const int bloque : {1, 2, 3, 4096}) {
      ContadorLineas contador(bloque);
      for (std::size_t i = 0; i < texto.size(); i += paso) {
        contador.Agregar(std::string_view(texto).substr(i, paso));
      }
      const Sumas sumas = contador.Terminar();
      EXPECT_EQ(sumas.Cuenta(), 6) << paso << ' ' << bloque;
      EXPECT_EQ(sumas.Bytes(), std::ssize(texto));
    }
  }
}

}  // namespace
