#include <gtest/gtest.h>
#include <random>

#include <QList>
#include <QString>

#include "shared/pagina_codigos.h"
#include "shared/perfil_privado.h"

namespace {

using PerfilPrivado::Buscar;
using PerfilPrivado::Poner;

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

// The same rules once more, written without any care for speed.
struct Ingenuo {
  QList<QByteArray> lineas;
  qsizetype donde = -1;  // the line with the key
  QByteArray valor;

  Ingenuo(const QByteArray& contenido, const QString& seccion, const QString& clave)
      : lineas(contenido.split('\n')) {
    bool dentro = false;
    for (qsizetype i = 0; i < lineas.size(); ++i) {
      const QString linea = PaginaCodigos::ATexto(lineas[i]).trimmed();
      const bool es_seccion = linea.startsWith(u'[') && linea.contains(u']');
      if (es_seccion && dentro) return;
      if (es_seccion) {
        const QString nombre = linea.section(u']', 0, 0).mid(1).trimmed();
        dentro = nombre.toUpper() == seccion.toUpper();
      }
      const QString izquierda = linea.section(u'=', 0, 0).trimmed();
      if (!dentro || es_seccion || linea.startsWith(u';') || !linea.contains(u'=') ||
          izquierda.toUpper() != clave.toUpper()) {
        continue;
      }
      donde = i;
      valor = Limpio(lineas[i].mid(lineas[i].indexOf('=') + 1));
      return;
    }
  }

  static QByteArray Limpio(const QByteArray& bruto) {
    const QByteArray recortado = bruto.trimmed();
    const bool comillas = recortado.size() > 1 && recortado.front() == recortado.back() &&
                          QByteArray("'\"").contains(recortado.front());
    return comillas ? recortado.mid(1, recortado.size() - 2) : recortado;
  }
};

class PerfilAlAzar : public testing::Test {
 protected:
  QByteArray Alguno(const QList<QByteArray>& piezas, int maximo) {
    QByteArray texto;
    for (auto n = azar() % static_cast<unsigned>(maximo); n > 0; --n) texto += Uno(piezas);
    return texto;
  }
  template <typename T>
  T Uno(const QList<T>& de) {
    return de[static_cast<qsizetype>(azar() % static_cast<std::size_t>(de.size()))];
  }

  std::mt19937 azar{20'251};
  const QList<QByteArray> trozos{"[",
                                 "]",
                                 "=",
                                 ";",
                                 "\n",
                                 "\r\n",
                                 "\r",
                                 " ",
                                 "\t",
                                 "\"",
                                 "'",
                                 "a",
                                 "B",
                                 "b",
                                 "\xF1",
                                 "\xD1",
                                 "[a]\n",
                                 "\n[\xF1]\r\n",
                                 "\nb=",
                                 "\nA=1",
                                 QByteArray("\0", 1),
                                 "\x81\xFF",
                                 "\xEF\xBB\xBF",
                                 "\n\n"};
};

TEST_F(PerfilAlAzar, reads_agree_with_the_naive_reader_and_writes_change_one_line) {
  const QList<QString> nombres{"a", "A", "b", u"ñ"_qs, u"Ñ"_qs, "bb"};
  const QList<QByteArray> de_valor{" ", "\"", "'", "=", ";", "[", "]", "x", "\xF1", "\t"};
  for (int vuelta = 0; vuelta < 20'000; ++vuelta) {
    QByteArray contenido = Alguno(trozos, 25);
    if (contenido.startsWith("\xEF\xBB\xBF")) contenido.prepend(' ');
    const QString seccion = Uno(nombres);
    const QString clave = Uno(nombres);
    const QByteArray s = PaginaCodigos::ABytes(seccion);
    const QByteArray k = PaginaCodigos::ABytes(clave);
    const QByteArray valor = Alguno(de_valor, 6);

    const Ingenuo antes(contenido, seccion, clave);
    const auto hallado = Buscar(contenido, s, k);
    ASSERT_EQ(hallado.has_value(), antes.donde >= 0) << contenido.constData();
    ASSERT_EQ(hallado.value_or(QByteArray()), antes.valor) << contenido.constData();

    const QByteArray puesto = Poner(contenido, s, k, valor);
    ASSERT_EQ(Buscar(puesto, s, k), Ingenuo::Limpio(valor)) << contenido.constData();
    ASSERT_EQ(Poner(puesto, s, k, valor), puesto) << contenido.constData();
    const Ingenuo despues(puesto, seccion, clave);
    ASSERT_GE(despues.donde, 0) << contenido.constData();
    if (!hallado) continue;
    QList<QByteArray> esperadas = antes.lineas;
    QByteArray& cambiada = esperadas[antes.donde];
    const bool retorno = cambiada.endsWith('\r') && antes.donde + 1 < esperadas.size();
    cambiada = cambiada.left(cambiada.indexOf('=') + 1) + valor + (retorno ? "\r" : "");
    ASSERT_EQ(puesto, esperadas.join('\n')) << contenido.constData();
  }
}

// Is `despues` the same bytes with something put in at one place?
bool SoloAnade(const QByteArray& antes, const QByteArray& despues) {
  const auto distinto = std::mismatch(antes.begin(), antes.end(), despues.begin(), despues.end());
  return despues.endsWith(antes.mid(distinto.first - antes.begin()));
}

TEST_F(PerfilAlAzar, an_added_key_keeps_every_byte_around_it) {
  for (int vuelta = 0; vuelta < 5'000; ++vuelta) {
    const QByteArray antes = Alguno(trozos, 25);
    const QByteArray con_seccion = Poner(antes, "nueva", "clave", "v");
    ASSERT_TRUE(con_seccion.startsWith(antes)) << antes.constData();
    const QByteArray en_medio = con_seccion + Alguno(trozos, 25);
    const QByteArray despues = Poner(en_medio, "nueva", "otra", "w");
    ASSERT_TRUE(SoloAnade(en_medio, despues)) << en_medio.constData();
    ASSERT_EQ(Buscar(despues, "nueva", "otra"), "w") << en_medio.constData();
    ASSERT_EQ(Buscar(despues, "nueva", "clave"), "v") << en_medio.constData();
  }
}

}  // namespace
