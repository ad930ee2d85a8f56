#include <cerrno>
#include <fstream>
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include <QTemporaryDir>

#include "text_box/documento.h"

namespace {

using namespace std::chrono_literals;

std::string Todo(const Documento& documento) {
  return documento.Copia().toStdString();
}

TEST(Bytes,
     what_is_taken_out_or_put_in_from_itself_is_as_it_was_and_memory_that_lacks_changes_nothing) {
  std::vector<Pieza> sacados;
  {
    Bytes bytes;
    ASSERT_TRUE(bytes.Reemplazar(0, 0, "abcdef"));
    ASSERT_TRUE(bytes.Reemplazar(3, 0, "-"));
    ASSERT_TRUE(bytes.Reemplazar(1, 2, bytes.Tramos(4, 7)[0]));
    EXPECT_TRUE(bytes.ReservarFinal(std::size_t{1} << 60).empty());
    std::string copia(8, '?');
    bytes.Copiar(0, bytes.Tamano(), copia.data());
    EXPECT_EQ(copia, "adef-def");
    sacados = bytes.Piezas(1, 3);
  }
  ASSERT_EQ(sacados.size(), 1);
  EXPECT_EQ(sacados[0].bytes, "de") << "it outlives the text";
}

void Teclear(Documento& documento, Posicion pos, std::string_view texto) {
  for (const char& letra : texto) {
    ASSERT_TRUE(documento.Reemplazar(pos++, 0, {&letra, 1}, Agrupacion::Escribir));
  }
}

TEST(Documento, typing_is_undone_word_by_word_and_whatever_comes_between_begins_a_step) {
  Documento documento;
  Teclear(documento, 0, "hola  mundo\nfin");
  for (const char* queda : {"hola  mundo\n", "hola  ", ""}) {
    const Cambio cambio = documento.Deshacer();
    EXPECT_EQ(Todo(documento), queda);
    EXPECT_EQ(cambio.pos, documento.Tamano());
  }
  EXPECT_EQ(documento.Deshacer().pos, -1);
  documento.Rehacer();
  EXPECT_EQ(Todo(documento), "hola  ");
  documento.CerrarGrupo();  // the caret was moved
  Teclear(documento, 6, "cd");
  ASSERT_TRUE(documento.Reemplazar(8, 0, "ef", Agrupacion::Sola));
  Teclear(documento, 10, "gh");
  Teclear(documento, 0, "i");
  for (const char* queda : {"hola  cdefgh", "hola  cdef", "hola  cd", "hola  "}) {
    documento.Deshacer();
    EXPECT_EQ(Todo(documento), queda);
  }
}

TEST(Documento, deletions_both_ways_are_one_step_however_many_they_are) {
  Documento documento;
  const std::string antes(5000, 'x');
  documento.Poner(antes);
  for (Posicion pos = 4000; pos > 2500; --pos) {
    ASSERT_TRUE(documento.Reemplazar(pos - 1, 1, "", Agrupacion::Borrar));
  }
  for (int i = 0; i < 500; ++i) ASSERT_TRUE(documento.Reemplazar(2500, 1, "", Agrupacion::Borrar));
  EXPECT_EQ(documento.Tamano(), 3000);
  documento.Deshacer();
  EXPECT_EQ(Todo(documento), antes);
  documento.Rehacer();
  EXPECT_EQ(documento.Tamano(), 3000);
}

TEST(Documento, lines_of_a_big_piece_are_known_when_it_comes_back) {
  std::string antes;
  for (int i = 0; std::ssize(antes) < 1'500'000; ++i) {
    antes += std::string(i * 37 % 90, 'x') + (i % 3 == 0 ? "\r\n" : i % 3 == 1 ? "\r" : "\n");
  }
  Documento documento;
  documento.Poner(antes);
  const std::int64_t lineas = documento.LineasDelTexto().Total();
  for (const auto& [desde, hasta] : {std::pair<Posicion, Posicion>{0, std::ssize(antes)},
                                     {1001, 900'003},
                                     {4096, 8 * 65536},
                                     {77, 1'400'001}}) {
    Extracto copia = documento.Extraer(desde, hasta);
    documento.Reemplazar(desde, hasta - desde, Extracto{}, Agrupacion::Sola);
    documento.Deshacer();
    EXPECT_EQ(documento.LineasDelTexto().Total(), lineas);
    documento.Reemplazar(9, 1, std::move(copia), Agrupacion::Sola);
    EXPECT_EQ(documento.LineasDelTexto().Total(), Lineas(documento.Texto()).Total());
    EXPECT_EQ(documento.LineasDelTexto().Inicio(5000), Lineas(documento.Texto()).Inicio(5000));
    documento.Deshacer();
    EXPECT_EQ(Todo(documento), antes);
  }
}

TEST(Historial, a_pause_begins_a_new_step) {
  Historial historial;
  historial.Anotar({0, 1, {}}, Agrupacion::Escribir, {'a', 'a'}, 0ms);
  historial.Anotar({1, 1, {}}, Agrupacion::Escribir, {'b', 'b'}, 900ms);
  historial.Anotar({2, 1, {}}, Agrupacion::Escribir, {'c', 'c'}, 1900ms);
  EXPECT_EQ(historial.PorDeshacer()->dentro, 1);
  historial.Deshecha();
  EXPECT_EQ(historial.PorDeshacer()->dentro, 2);
}

TEST(Documento, a_loaded_file_is_there_byte_for_byte_and_undo_starts_empty) {
  const QTemporaryDir carpeta;
  const QString ruta = carpeta.filePath(QStringLiteral("texto.txt"));
  std::string contenido(2'500'000, '\0');
  for (std::size_t i = 0; i < contenido.size(); ++i) contenido[i] = static_cast<char>(i * 31 >> 3);
  std::ofstream(ruta.toStdString(), std::ios::binary) << contenido;
  Documento documento;
  ASSERT_TRUE(documento.Reemplazar(0, 0, "antes", Agrupacion::Sola));
  auto lector = LectorArchivo::Abrir(ruta, LectorArchivo::SiFalta::Fallar);
  ASSERT_TRUE(lector.Bien());
  std::ofstream(ruta.toStdString(), std::ios::binary | std::ios::app) << "lo que crece";
  ASSERT_TRUE(documento.Cargar(lector.Valor()).Bien());
  EXPECT_TRUE(Todo(documento) == contenido);
  EXPECT_FALSE(documento.PuedeDeshacer());
  EXPECT_EQ(documento.LineasDelTexto().Total(), Lineas(documento.Texto()).Total());
}

TEST(Documento, a_read_that_fails_leaves_the_old_text) {
  Documento documento;
  documento.Poner("antes");
  LectorArchivo cerrado;
  EXPECT_FALSE(documento.Cargar(cerrado).Bien());
  auto sin_fondo =
      LectorArchivo::Abrir(QStringLiteral("/proc/self/pagemap"), LectorArchivo::SiFalta::Fallar);
  ASSERT_TRUE(sin_fondo.Bien());
  EXPECT_EQ(documento.Cargar(sin_fondo.Valor()).Codigo(), EFBIG);
  auto programa =
      LectorArchivo::Abrir(QStringLiteral("/proc/self/exe"), LectorArchivo::SiFalta::Fallar);
  std::vector<std::size_t> leidos;
  const auto seguir = [&](std::size_t hasta) {
    return (leidos.push_back(hasta), leidos.size() < 2);
  };
  EXPECT_EQ(documento.Cargar(programa.Valor(), seguir).Codigo(), ECANCELED);
  ASSERT_EQ(leidos.size(), 2);
  EXPECT_LT(leidos[0], leidos[1]);
  EXPECT_EQ(Todo(documento), "antes");
}

}  // namespace
