#include <cerrno>
#include <fstream>
#include <gmock/gmock.h>
#include <random>
#include <string>
#include <vector>

#include <QTemporaryDir>

#include "text_box/documento.h"

namespace {

using namespace std::chrono_literals;

std::string Todo(const Documento& documento) {
  return documento.Copia().toStdString();
}

// Keeps a copy of the text in step by what it is told alone.
class Espejo : public Observador {
 public:
  explicit Espejo(Documento& documento) : documento_(documento) { documento.Observar(this); }
  void Reemplazado(const Cambio& cambio) override {
    const auto pos = static_cast<std::size_t>(cambio.pos);
    const QByteArray nuevos = documento_.Copia(cambio.pos, cambio.pos + cambio.puestos);
    texto.replace(pos, static_cast<std::size_t>(cambio.quitados), nuevos.toStdString());
  }
  void Recargado() override { texto = Todo(documento_); }

  std::string texto;

 private:
  Documento& documento_;
};

TEST(Documento, undoing_everything_gives_the_bytes_back_and_redoing_too) {
  std::mt19937 azar(7);
  Documento documento;
  Espejo espejo(documento);
  const std::string antes = "uno dos\r\ntres\n";
  documento.Poner(antes);
  std::string seguro = antes;
  for (int i = 0; i < 3000; ++i) {
    const std::size_t pos = azar() % (seguro.size() + 1);
    const std::size_t quitados = std::min<std::size_t>(azar() % 5, seguro.size() - pos);
    const std::string nuevos(azar() % 4, static_cast<char>('a' + azar() % 26));
    const auto agrupacion = static_cast<Agrupacion>(azar() % 3);
    ASSERT_TRUE(documento.Reemplazar(static_cast<Posicion>(pos), static_cast<Posicion>(quitados),
                                     nuevos, agrupacion));
    seguro.replace(pos, quitados, nuevos);
    if (azar() % 4 == 0) documento.Deshacer();
    if (azar() % 4 == 0) documento.Rehacer();
    seguro = espejo.texto;
    ASSERT_EQ(Todo(documento), espejo.texto);
  }
  while (documento.PuedeDeshacer()) documento.Deshacer();
  EXPECT_EQ(Todo(documento), antes);
  while (documento.PuedeRehacer()) documento.Rehacer();
  EXPECT_EQ(Todo(documento), seguro);
  EXPECT_EQ(espejo.texto, seguro);
}

void Teclear(Documento& documento, Posicion pos, std::string_view texto) {
  for (const char& letra : texto) {
    ASSERT_TRUE(documento.Reemplazar(pos++, 0, {&letra, 1}, Agrupacion::Escribir));
  }
}

TEST(Documento, typing_is_undone_word_by_word) {
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
}

TEST(Documento, a_moved_caret_and_a_paste_begin_steps_of_their_own) {
  Documento documento;
  Teclear(documento, 0, "ab");
  documento.CerrarGrupo();
  Teclear(documento, 2, "cd");
  ASSERT_TRUE(documento.Reemplazar(4, 0, "ef", Agrupacion::Sola));
  Teclear(documento, 6, "gh");
  Teclear(documento, 0, "i");
  for (const char* queda : {"abcdefgh", "abcdef", "abcd", "ab", ""}) {
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

TEST(Documento, the_form_of_the_first_line_end_is_the_documents) {
  const std::vector<std::pair<const char*, const char*>> casos = {
      {"", "\n"}, {"abc", "\n"}, {"a\r\nb\n", "\r\n"}, {"a\rb\r\n", "\r"}, {"a\nb\r\n", "\n"}};
  for (const auto& [texto, forma] : casos) {
    Documento documento;
    documento.Poner(texto);
    EXPECT_EQ(documento.FinDeLinea(), forma) << texto;
  }
}

TEST(Documento, a_loaded_file_is_there_byte_for_byte_and_undo_starts_empty) {
  const QTemporaryDir carpeta;
  const QString ruta = carpeta.filePath(QStringLiteral("texto.txt"));
  std::string contenido(2'500'000, '\0');
  for (std::size_t i = 0; i < contenido.size(); ++i) contenido[i] = static_cast<char>(i * 31 >> 3);
  std::ofstream(ruta.toStdString(), std::ios::binary) << contenido;
  Documento documento;
  Espejo espejo(documento);
  ASSERT_TRUE(documento.Reemplazar(0, 0, "antes", Agrupacion::Sola));
  auto lector = LectorArchivo::Abrir(ruta, LectorArchivo::SiFalta::Fallar);
  ASSERT_TRUE(lector.Bien());
  std::ofstream(ruta.toStdString(), std::ios::binary | std::ios::app) << "lo que crece";
  ASSERT_TRUE(documento.Cargar(lector.Valor()).Bien());
  EXPECT_TRUE(espejo.texto == contenido);
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
