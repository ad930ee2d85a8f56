#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

#include "platform/papelera.h"

namespace {

// A home of its own for the whole program: the bin's place is looked up once.
const QString& Casa() {
  static const QTemporaryDir carpeta;
  static const QString casa = [] {
    const QByteArray ruta = QFile::encodeName(carpeta.path());
    qputenv("HOME", ruta);
    qputenv("XDG_DATA_HOME", ruta + "/datos");
    return carpeta.path();
  }();
  return casa;
}

QString Crear(const QString& ruta) {
  QFile archivo(ruta);
  EXPECT_TRUE(archivo.open(QIODevice::WriteOnly));
  archivo.write("contenido");
  return ruta;
}

QByteArray Leer(const QString& ruta) {
  QFile archivo(ruta);
  return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray("(no existe)");
}

class Papeleras : public testing::Test {
 protected:
  QString EnCasa(const char* nombre) const { return Casa() + u'/' + QString::fromUtf8(nombre); }
  QString EnPapelera(const char* carpeta, const QString& nombre) const {
    return Casa() + QStringLiteral("/datos/Trash/%1/").arg(QLatin1String(carpeta)) + nombre;
  }

  QString casa_ = Casa();
  PapeleraReal papelera;
};

TEST_F(Papeleras, a_sent_file_can_be_restored_to_where_it_was) {
  for (const char* nombre : {"ñ con blancos.txt", "100%.txt", "<b>&x;[*].txt", "-r"}) {
    const QString ruta = Crear(EnCasa(nombre));
    EXPECT_EQ(papelera.Enviar(ruta), Envio::Enviada) << nombre;
    EXPECT_FALSE(QFile::exists(ruta));
    EXPECT_EQ(Leer(EnPapelera("files", QString::fromUtf8(nombre))), "contenido");
    const QByteArray anotado =
        Leer(EnPapelera("info", QString::fromUtf8(nombre) + QStringLiteral(".trashinfo")));
    const qsizetype inicio = anotado.indexOf("\nPath=") + 6;
    const QByteArray camino = anotado.mid(inicio, anotado.indexOf('\n', inicio) - inicio);
    EXPECT_EQ(QUrl::fromPercentEncoding(camino), ruta);
    EXPECT_FALSE(camino.contains(' ') || camino.contains('\xc3')) << camino.constData();
  }
}

TEST_F(Papeleras, two_files_of_one_name_keep_both_contents) {
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(papelera.Enviar(Crear(EnCasa("igual.txt"))), Envio::Enviada);
  }
  EXPECT_EQ(Leer(EnPapelera("files", QStringLiteral("igual.txt"))), "contenido");
  EXPECT_EQ(Leer(EnPapelera("files", QStringLiteral("igual.2.txt"))), "contenido");
}

TEST_F(Papeleras, a_link_goes_and_what_it_points_to_stays) {
  const QString original = Crear(EnCasa("original"));
  EXPECT_TRUE(QFile::link(original, EnCasa("enlace")));
  EXPECT_EQ(papelera.Enviar(EnCasa("enlace")), Envio::Enviada);
  EXPECT_EQ(Leer(original), "contenido");
}

TEST_F(Papeleras, a_vanished_file_is_a_failure_and_no_reason_to_ask) {
  EXPECT_EQ(papelera.Enviar(EnCasa("no está")), Envio::Fallo);
  EXPECT_EQ(papelera.Enviar(EnCasa("sin carpeta/x")), Envio::Fallo);
}

TEST_F(Papeleras, without_a_bin_the_file_stays_until_it_is_erased) {
  const QTemporaryDir memoria(QStringLiteral("/dev/shm/velda-XXXXXX"));
  struct stat en_casa = {};
  struct stat en_memoria = {};
  if (!memoria.isValid() || stat(QFile::encodeName(Casa()), &en_casa) != 0 ||
      stat(QFile::encodeName(memoria.path()), &en_memoria) != 0 ||
      en_casa.st_dev == en_memoria.st_dev) {
    GTEST_SKIP() << "/dev/shm is no volume of its own here";
  }
  const QString ruta = Crear(memoria.filePath(QStringLiteral("ñ con blancos.txt")));
  EXPECT_EQ(papelera.Enviar(ruta), Envio::SinPapelera);
  EXPECT_EQ(Leer(ruta), "contenido");
  papelera.Eliminar(ruta);
  EXPECT_FALSE(QFileInfo::exists(ruta));
}

TEST_F(Papeleras, a_bin_that_cannot_be_written_is_none) {
  const QString datos = Casa() + QStringLiteral("/datos");
  QDir(datos).removeRecursively();
  Crear(datos);
  const QString ruta = Crear(EnCasa("queda.txt"));
  EXPECT_EQ(papelera.Enviar(ruta), Envio::SinPapelera);
  EXPECT_EQ(Leer(ruta), "contenido");
  QFile::remove(datos);
}

}  // namespace
