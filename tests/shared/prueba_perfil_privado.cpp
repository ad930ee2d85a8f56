#include <gtest/gtest.h>
#include <optional>
#include <random>

#include <QList>

#include "shared/pagina_codigos.h"
#include "shared/perfil_privado.h"

namespace {

using PerfilPrivado::Buscar;
using PerfilPrivado::Poner;
using PerfilPrivado::Seccion;

// The format once more, line by line and without any care for speed.
class PerfilIngenuo {
 public:
  PerfilIngenuo(const QByteArray& contenido, const QByteArray& seccion, const QByteArray& clave)
      : lineas_(contenido.split('\n')) {
    for (qsizetype i = 0; i < lineas_.size(); ++i) {
      const QByteArray linea = Texto(i);
      const qsizetype cierre = linea.startsWith('[') ? linea.indexOf(']') : -1;
      if (cierre > 0 && seccion_ >= 0) return;
      if (cierre > 0 && Igual(linea.mid(1, cierre - 1), seccion)) seccion_ = i;
      if (seccion_ < 0) continue;
      if (!linea.isEmpty()) ultima_ = i;
      const qsizetype igual = cierre > 0 || linea.startsWith(';') ? -1 : linea.indexOf('=');
      if (igual < 0 || !Igual(linea.left(igual), clave)) continue;
      clave_ = i;
      return;
    }
  }

  std::optional<QByteArray> Valor() const {
    if (clave_ < 0) return std::nullopt;
    const QByteArray valor = lineas_[clave_].mid(lineas_[clave_].indexOf('=') + 1).trimmed();
    const bool comillas = valor.size() > 1 && valor.front() == valor.back() &&
                          QByteArray("'\"").contains(valor.front());
    return comillas ? valor.mid(1, valor.size() - 2) : valor;
  }

  QByteArray Puesto(const QByteArray& seccion, const QByteArray& clave, QByteArray valor) {
    valor.replace('\n', '?').replace('\r', '?');
    if (clave_ >= 0) {
      QByteArray& linea = lineas_[clave_];
      const bool retorno = TieneFin(clave_) && linea.endsWith('\r');
      linea = linea.left(linea.indexOf('=') + 1) + valor + (retorno ? "\r" : "");
      return lineas_.join('\n');
    }
    qsizetype donde = seccion_ >= 0 ? ultima_ + 1 : lineas_.size();
    if (seccion_ < 0 && lineas_.last().isEmpty()) --donde;
    const QByteArray retorno = RetornoVecino(donde);
    if (donde == lineas_.size()) {  // the line before it gets the end that it lacks
      lineas_.last() += retorno;
      lineas_ << QByteArray();
    }
    if (seccion_ < 0) lineas_.insert(donde++, '[' + seccion + ']' + retorno);
    lineas_.insert(donde, clave + '=' + valor + retorno);
    return lineas_.join('\n');
  }

 private:
  bool TieneFin(qsizetype linea) const { return linea + 1 < lineas_.size(); }
  QByteArray Texto(qsizetype linea) const {
    const bool marca = linea == 0 && lineas_[0].startsWith("\xEF\xBB\xBF");
    return lineas_[linea].mid(marca ? 3 : 0).trimmed();
  }
  static bool Igual(const QByteArray& uno, const QByteArray& otro) {
    return PaginaCodigos::ATexto(uno.trimmed())
               .compare(PaginaCodigos::ATexto(otro), Qt::CaseInsensitive) == 0;
  }
  // A "\r" when lines there end in CR LF, as they do in an empty file.
  QByteArray RetornoVecino(qsizetype donde) const {
    while (--donde >= 0) {
      const bool separa = seccion_ >= 0 && donde > seccion_ && Texto(donde).isEmpty();
      if (TieneFin(donde) && !separa) return lineas_[donde].endsWith('\r') ? "\r" : "";
    }
    return "\r";
  }

  QList<QByteArray> lineas_;
  qsizetype seccion_ = -1;  // numbers of lines; -1 where there is none
  qsizetype clave_ = -1;
  qsizetype ultima_ = -1;  // of the section's lines with a text
};

TEST(PerfilPrivado, random_files_are_read_and_written_as_by_the_plain_parser) {
  const QList<QByteArray> piezas{"[S]",
                                 " [ s ] x",
                                 "[T]",
                                 "[\xD1]",
                                 "[",
                                 "]",
                                 "k",
                                 "K=",
                                 " k\t=1",
                                 "\xF1=",
                                 "\xF1 = 2",
                                 "\xDF",
                                 ";",
                                 "=",
                                 " ",
                                 "\t",
                                 "\n",
                                 "\n",
                                 "\n",
                                 "\r\n",
                                 "\r\n",
                                 "\r",
                                 "'",
                                 "\"",
                                 "' a '",
                                 "\"\"",
                                 "\xEF\xBB\xBF",
                                 QByteArray("\0", 1)};
  const QList<QByteArray> valores{"", "1", " v ", "'q'", "a\r\nx=2", "x=y;z"};
  std::mt19937 azar(1);
  const auto una = [&](const QList<QByteArray>& lista) { return lista[azar() % lista.size()]; };
  for (int i = 0; i < 40000; ++i) {
    QByteArray contenido;
    for (auto quedan = azar() % 25; quedan > 0; --quedan) contenido += una(piezas);
    const QByteArray seccion = una({"S", "\xF1"});
    const QByteArray clave = una({"k", "\xD1", "K"});
    SCOPED_TRACE(contenido.toPercentEncoding().constData());
    PerfilIngenuo ingenuo(contenido, seccion, clave);
    const auto valor = ingenuo.Valor();
    ASSERT_EQ(Buscar(contenido, seccion, clave), valor);
    const auto toda = Seccion(contenido, seccion);
    ASSERT_EQ(toda.contains(clave.toUpper()), valor.has_value());
    ASSERT_EQ(toda.value(clave.toUpper()), valor.value_or(""));
    const QByteArray nuevo = una(valores);
    const QByteArray puesto = Poner(contenido, seccion, clave, nuevo);
    ASSERT_EQ(puesto, ingenuo.Puesto(seccion, clave, nuevo));
    ASSERT_EQ(Poner(puesto, seccion, clave, nuevo), puesto);
  }
}

TEST(PerfilPrivado, values_are_found_as_the_format_says) {
  const std::vector<std::pair<QByteArray, std::optional<QByteArray>>> casos{
      {"[SE]\r\nA\xD1O=1\r\n", "1"},
      {"  [ se ] x\n \ta\xF1o \t=\t 1 2 \t\r\n", "1 2"},
      {"[Se]\na\xF1o=x=y;z\n", "x=y;z"},
      {"[Se]\na\xF1o= \" 1 \" \n", " 1 "},
      {"[Se]\na\xF1o=\"1'\n", "\"1'"},
      {"[Se]\nA\xD1O=\na\xF1o=2\n", ""},
      {"\xEF\xBB\xBF[Se]\n;a\xF1o=1\na\xF1o=3\n", "3"},
      {"a\xF1o=1\n[Se]\n[Otra]\na\xF1o=2\n[Se]\na\xF1o=3\n", {}},
      {"[Se\na\xF1o=1\n", {}}};
  for (const auto& [contenido, valor] : casos) {
    EXPECT_EQ(Buscar(contenido, "Se", "a\xF1o"), valor) << contenido.constData();
  }
  EXPECT_EQ(Poner("", "S", "k", " v "), "[S]\r\nk= v \r\n");
  EXPECT_EQ(Poner("[S]\na=1\r\n\n[T]\nk=2", "S", "k", "v"), "[S]\na=1\r\nk=v\r\n\n[T]\nk=2");
}

}  // namespace
