#include <gtest/gtest.h>

#include <QList>

#include "shared/perfil_privado.h"

namespace {

using PerfilPrivado::Buscar;
using PerfilPrivado::Poner;
using PerfilPrivado::Seccion;

TEST(PerfilPrivado, values_are_found_as_the_format_says) {
  struct Caso {
    QByteArray contenido;
    std::optional<QByteArray> valor;  // of section "Se", key "año"
  };
  const QList<Caso> casos{{"[Se]\na\xF1o=1", "1"},
                          {"[SE]\r\nA\xD1O=1\r\n", "1"},
                          {"  [ se ] x\n \ta\xF1o \t=\t 1 2 \t\r\n", "1 2"},
                          {"[Se]\na\xF1o=\n", ""},
                          {"[Se]\na\xF1o=x=y;z\n", "x=y;z"},
                          {"[Se]\na\xF1o= \" 1 \" \n", " 1 "},
                          {"[Se]\na\xF1o=''1'\n", "'1"},
                          {"[Se]\na\xF1o=\"1'\n", "\"1'"},
                          {"[Se]\na\xF1o=\"\n", "\""},
                          {"[Se]\na\xF1o=1\na\xF1o=2\n", "1"},
                          {"[Se]\nA\xD1O=\na\xF1o=2\n", ""},
                          {"\xEF\xBB\xBF[Se]\na\xF1o=1\n", "1"},
                          {"[Se]\n;a\xF1o=1\n ; a\xF1o=2\na\xF1o=3\n", "3"},
                          {QByteArray("\0\n[Se]\na\xF1o=\0\xFF\n", 14), QByteArray("\0\xFF", 2)},
                          {"a\xF1o=1\n[Otra]\na\xF1o=2\n", {}},
                          {"[Se]\n[Otra]\na\xF1o=2\n[Se]\na\xF1o=3\n", {}},
                          {"[Se]\na\xF1o\n=1\na\xF1os=1\n", {}},
                          {"[Se\na\xF1o=1\n", {}},
                          {"", {}}};
  for (const Caso& caso : casos) {
    EXPECT_EQ(Buscar(caso.contenido, "Se", "a\xF1o"), caso.valor) << caso.contenido.constData();
    const auto toda = Seccion(caso.contenido, "sE");
    EXPECT_EQ(toda.contains("A\xD1O"), caso.valor.has_value()) << caso.contenido.constData();
    EXPECT_EQ(toda.value("A\xD1O"), caso.valor.value_or("")) << caso.contenido.constData();
  }
}

TEST(PerfilPrivado, a_write_changes_one_value_and_nothing_else) {
  struct Caso {
    QByteArray antes;
    QByteArray despues;  // with " v " as the value of section "S", key "k"
  };
  const QList<Caso> casos{{"", "[S]\r\nk= v \r\n"},
                          {"[s]\nK = 'x' \r\n\r\n[T]\n", "[s]\nK = v \r\n\r\n[T]\n"},
                          {"[S]\nk=x", "[S]\nk= v "},
                          {"[S]", "[S]\r\nk= v \r\n"},
                          {"a\n[S]", "a\n[S]\nk= v \n"},
                          {"[S]\na=1\r\n\n  \n[T]\nk=2\n", "[S]\na=1\r\nk= v \r\n\n  \n[T]\nk=2\n"},
                          {"[S]\n;k=1\n\n", "[S]\n;k=1\nk= v \n\n"},
                          {"k=1\n[T]\nk=2", "k=1\n[T]\nk=2\n[S]\nk= v \n"},
                          {"\n\n", "\n\n[S]\nk= v \n"},
                          {QByteArray("\0\0", 2), QByteArray("\0\0\r\n[S]\r\nk= v \r\n", 16)}};
  for (const Caso& caso : casos) {
    EXPECT_EQ(Poner(caso.antes, "S", "k", " v "), caso.despues) << caso.antes.constData();
  }
}

TEST(PerfilPrivado, a_line_end_in_a_value_makes_no_line) {
  EXPECT_EQ(Poner("[S]\nk=1\n", "S", "k", "a\r\nx=2"), "[S]\nk=a??x=2\n");
}

}  // namespace
