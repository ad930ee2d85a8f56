#include <gtest/gtest.h>

#include <QUrl>

#include "platform/papelera.h"
#include "shared/carpeta_de_prueba.h"

namespace {

// A home of its own for the whole program: the bin's place is looked up once.
const CarpetaDePrueba& Casa() {
  static const CarpetaDePrueba carpeta;
  qputenv("HOME", carpeta.EnSistema(""));
  qputenv("XDG_DATA_HOME", carpeta.EnSistema("datos"));
  return carpeta;
}

class Papeleras : public testing::Test {
 protected:
  QString Crear(const QString& nombre) const { return casa.Escribir(nombre, "contenido"); }
  QByteArray EnPapelera(const QString& nombre) const { return casa.Leer("datos/Trash/" + nombre); }

  const CarpetaDePrueba& casa = Casa();
  PapeleraReal papelera;
};

TEST_F(Papeleras, a_sent_file_can_be_restored_to_where_it_was) {
  for (const QString nombre : {"ñ con blancos.txt", "100%.txt", "<b>&x;[*].txt", "-r"}) {
    const QString ruta = Crear(nombre);
    EXPECT_EQ(papelera.Enviar(ruta), Envio::Enviada) << qPrintable(nombre);
    EXPECT_FALSE(QFile::exists(ruta));
    EXPECT_EQ(EnPapelera("files/" + nombre), "contenido");
    const QByteArray anotado = EnPapelera("info/" + nombre + ".trashinfo");
    const qsizetype inicio = anotado.indexOf("\nPath=") + 6;
    const QByteArray camino = anotado.mid(inicio, anotado.indexOf('\n', inicio) - inicio);
    EXPECT_EQ(QUrl::fromPercentEncoding(camino), ruta);
    EXPECT_FALSE(camino.contains(' ') || camino.contains('\xc3')) << camino.constData();
  }
}

TEST_F(Papeleras, a_name_too_long_to_be_described_there_is_not_sent) {
  for (const int largo : {9, 233, 234, 239, 246, 255}) {
    const QString nombre = QString(largo - 4, u'x') + ".txt";
    for (const bool otra_vez : {false, true}) {
      const Envio envio = papelera.Enviar(Crear(nombre));
      EXPECT_EQ(envio, largo <= 233 ? Envio::Enviada : Envio::SinPapelera) << largo;
      EXPECT_EQ(QFile::exists(casa.Ruta(nombre)), envio == Envio::SinPapelera) << largo;
      const QString info =
          QString(nombre).replace(".txt", otra_vez ? ".2.txt" : ".txt") + ".trashinfo";
      EXPECT_EQ(EnPapelera("info/" + info).contains("\nPath="), envio == Envio::Enviada) << largo;
      EXPECT_EQ(EnPapelera("files/" + info.chopped(10)) == "contenido", envio == Envio::Enviada);
    }
  }
}

TEST_F(Papeleras, without_a_bin_the_file_stays_until_it_is_erased) {
  EXPECT_TRUE(QFile::link(Crear("original"), casa.Ruta("enlace")));
  EXPECT_EQ(papelera.Enviar(casa.Ruta("enlace")), Envio::Enviada);
  EXPECT_EQ(casa.Leer("original"), "contenido") << "a link goes, what it points to stays";
  EXPECT_EQ(papelera.Enviar(casa.Ruta("no está")), Envio::Fallo) << "no reason to ask";
  EXPECT_EQ(papelera.Enviar(casa.Ruta("sin carpeta/x")), Envio::Fallo);
  QDir(casa.Ruta("datos")).removeRecursively();
  Crear("datos");  // no folder: nothing can be put there
  const QString ruta = Crear("ñ con blancos.txt");
  EXPECT_EQ(papelera.Enviar(ruta), Envio::SinPapelera);
  EXPECT_EQ(casa.Leer("ñ con blancos.txt"), "contenido");
  papelera.Eliminar(ruta);
  EXPECT_FALSE(QFile::exists(ruta));
  QFile::remove(casa.Ruta("datos"));
}

}  // namespace
