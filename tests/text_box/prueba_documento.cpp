#include <cerrno>
#include <fstream>
#include <gmock/gmock.h>
#include <random>
#include <string>
#include <vector>

#include <QTemporaryDir>

#include "text_box/documento.h"
#include "text_box/ingenuo.h"

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

TEST(CodigosDePagina, a_texts_bytes_say_which_one_it_is_in) {
  const Codificacion& utf8 = Codificacion::DeUtf8();
  const Codificacion& antigua = Codificacion::Windows1252();
  const struct {
    std::string bytes;
    const Codificacion* esperada;  // null: the system's
  } casos[] = {
      {"", nullptr},
      {"hola\n", nullptr},
      {"a\u00f1o", &utf8},
      {"a\xf1o", &antigua},
      {"\ufeffhola", &utf8},
      {"\u4e2d\u00f1\xff", &utf8},
      {"\u00f1\xff", &antigua},            // as many of one kind as of the other
      {"\xed\xa0\x80\u00f1", &antigua},    // a surrogate is three bytes of no sequence
      {"\xc0\xaf\u00f1\u00f1", &antigua},  // an overlong form
      {"\xf4\x90\x80\x80\U0010ffff", &antigua},
      {"\u00f1\xe4\xb8", &antigua},  // cut at the end
  };
  for (const Codificacion* sistema : {&utf8, &antigua}) {
    for (const auto& caso : casos) {
      Documento documento(*sistema);
      documento.Poner(caso.bytes);
      EXPECT_EQ(&documento.CodificacionDelTexto(), caso.esperada ? caso.esperada : sistema)
          << caso.bytes;
    }
  }
}

TEST(CodigosDePagina, only_a_text_of_ascii_alone_takes_another_page_while_it_is_edited) {
  Documento documento;
  documento.Poner("a\xf1");
  ASSERT_TRUE(documento.Reemplazar(1, 1, "", Agrupacion::Sola));
  documento.Admitir(u"\u4e2d");
  EXPECT_EQ(&documento.CodificacionDelTexto(), &Codificacion::Windows1252()) << "undo has a byte";
  documento.Poner("a");
  documento.Admitir(u"\u00f1");
  EXPECT_EQ(&documento.CodificacionDelTexto(), &Codificacion::Windows1252());
  documento.Admitir(u"\u4e2d");
  EXPECT_EQ(&documento.CodificacionDelTexto(), &Codificacion::DeUtf8());
}

// Sequences and parts of them, in pieces of any size, edited anywhere.
TEST(CodigosDePagina, characters_are_counted_as_the_slow_way_finds_them) {
  const std::array<std::string, 12> trozos{"a",    "\u00f1",   "\u4e2d", "\U0001f600",
                                           "\xc3", "\xe4",     "\xb8",   "\xed",
                                           "\xa0", "\xf0\x9f", "\xff",   "aaaaaaaaa"};
  std::mt19937 azar(7);
  const auto hasta = [&](std::size_t n) { return static_cast<std::size_t>(azar() % (n + 1)); };
  for (int vez = 0; vez < 300; ++vez) {
    std::string cierto;
    const std::size_t clases = vez % 3 == 0 ? 1 : vez % 3 == 1 ? 3 : 11;
    const std::size_t largo = hasta(900);
    while (cierto.size() < largo) cierto += trozos[hasta(99) == 0 ? 10 : hasta(clases)];
    Bytes bytes;
    Utf8::Recuento recuento;
    for (std::size_t i = 0; i < cierto.size();) {
      const std::string trozo = cierto.substr(i, 1 + hasta(200));
      ASSERT_TRUE(bytes.Reemplazar(bytes.Tamano(), 0, trozo));
      recuento.Agregar(trozo);
      i += trozo.size();
    }
    recuento.Terminar();
    Caracteres caracteres(bytes, 16);
    caracteres.Recargado(recuento.Sueltos() == 0);
    for (int cambio = 0; cambio < 8; ++cambio) {
      std::vector<Posicion> inicios;
      std::int64_t largas = 0;
      std::int64_t sueltas = 0;
      for (std::size_t i = 0; i < cierto.size();) {
        const Utf8::Caracter caracter = ingenuo::Leer(cierto, i);
        inicios.push_back(static_cast<Posicion>(i));
        largas += caracter.largo > 1 ? 1 : 0;
        sueltas += Utf8::EsSuelto(caracter.codigo) ? 1 : 0;
        i += caracter.largo;
      }
      if (cambio == 0) {
        ASSERT_EQ(recuento.Secuencias(), largas);
        ASSERT_EQ(recuento.Sueltos(), sueltas);
      }
      ASSERT_EQ(caracteres.Total(), std::ssize(inicios));
      inicios.push_back(std::ssize(cierto));
      const std::size_t n = hasta(inicios.size() - 1);
      ASSERT_EQ(caracteres.Inicio(static_cast<std::int64_t>(n)), inicios[n]);
      const auto pos = static_cast<Posicion>(hasta(cierto.size()));
      const auto antes = std::ranges::lower_bound(inicios, pos) - inicios.begin();
      ASSERT_EQ(caracteres.Antes(pos), antes);
      ASSERT_EQ(Utf8::Inicio(LectorTexto(bytes), pos), *--std::ranges::upper_bound(inicios, pos));
      const std::size_t quitados =
          hasta(std::min<std::size_t>(cierto.size() - static_cast<std::size_t>(pos), 40));
      const std::string nuevo = hasta(1) ? trozos[hasta(11)] : std::string();
      ASSERT_TRUE(bytes.Reemplazar(pos, static_cast<Posicion>(quitados), nuevo));
      cierto.replace(static_cast<std::size_t>(pos), quitados, nuevo);
      caracteres.Reemplazado({pos, static_cast<Posicion>(quitados), std::ssize(nuevo)});
    }
  }
}
