#include "shared/carpeta_de_prueba.h"
#include "shared/favoritas.h"

namespace {

class Favoritas : public testing::Test {
 protected:
  Favoritas() { gral.ArchivoFavoritas = carpeta.Ruta("Favoritas.INI"); }
  QByteArray Archivo() const { return carpeta.Leer("Favoritas.INI"); }

  CarpetaDePrueba carpeta;
  AccesoPerfilArchivo acceso;
  ModGral gral{acceso};
};

TEST_F(Favoritas, as_many_folders_are_read_as_the_total_says) {
  carpeta.Escribir("Favoritas.INI", "[Registros]\nTotal=32767\n[DATOS]\nf3= '/c ' \nF3=/d\n");
  const QStringList leidas = LeerFavoritas(gral);
  EXPECT_EQ(leidas.size(), 32767);
  EXPECT_EQ(leidas.join(QString()), "/c ");
  EXPECT_EQ(leidas[2], "/c ");
}

TEST_F(Favoritas, the_file_holds_the_folders_in_fields_and_thirty_keys) {
  GuardarFavoritas(gral, {"/home/ana/Añadidos", "/srv"});
  EXPECT_EQ(gral.TotalFavoritas, 2);
  QByteArray esperado =
      "[Registros]\r\nTotal=2\r\n[Datos]\r\nF1=/home/ana/A\xF1"
      "adidos" +
      QByteArray(82, ' ') + "\r\nF2=/srv" + QByteArray(96, ' ') + "\r\n";
  for (int i = 3; i <= 30; ++i) esperado += "F" + QByteArray::number(i) + "=\r\n";
  EXPECT_EQ(Archivo(), esperado);
}

TEST_F(Favoritas, every_folder_that_fits_comes_back_as_it_was) {
  const QStringList carpetas{"",
                             "/",
                             "/a b",
                             "/acaba en blanco ",
                             "/'x'",
                             "/x;y=[z]\"",
                             "/" + QString(98, u'ñ'),
                             "/" + QString(99, u'ñ'),
                             "/" + QString(600, u'x')};
  for (const QString& una : carpetas) EXPECT_TRUE(CabeEnFavoritas(una)) << qPrintable(una);
  GuardarFavoritas(gral, carpetas);
  EXPECT_EQ(LeerFavoritas(gral), carpetas);
  for (const char* otra : {"/日本", "/a\nb", "/a\rb", "/a\u0301"}) {
    EXPECT_FALSE(CabeEnFavoritas(otra)) << otra;
  }
}

TEST_F(Favoritas, a_shorter_list_leaves_empty_keys_and_an_empty_one_no_file) {
  GuardarFavoritas(gral, {"/a", "/b", "/c"});
  GuardarFavoritas(gral, {"/a"});
  EXPECT_EQ(LeerFavoritas(gral), QStringList("/a"));
  EXPECT_EQ(Archivo().count("=\r\n"), 29);
  GuardarFavoritas(gral, {});
  EXPECT_EQ(gral.TotalFavoritas, 0);
  EXPECT_TRUE(carpeta.Nombres().empty());
  EXPECT_TRUE(LeerFavoritas(gral).empty());
  EXPECT_TRUE(carpeta.Nombres().empty()) << "a read makes no file";
}

}  // namespace
