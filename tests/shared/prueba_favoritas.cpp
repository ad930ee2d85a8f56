#include "shared/carpeta_de_prueba.h"
#include "shared/favoritas.h"

namespace {

// Counts how often the file is read.
struct AccesoContado : AccesoPerfilArchivo {
  QByteArray LeerCadena(QStringView seccion, QStringView clave, const QByteArray& defecto,
                        const QString& ruta) override {
    ++lecturas;
    return AccesoPerfilArchivo::LeerCadena(seccion, clave, defecto, ruta);
  }
  QList<QByteArray> LeerCadenas(QStringView seccion, std::span<const QString> claves,
                                const QByteArray& defecto, const QString& ruta) override {
    ++lecturas;
    return AccesoPerfilArchivo::LeerCadenas(seccion, claves, defecto, ruta);
  }
  int lecturas = 0;
};

class Favoritas : public testing::Test {
 protected:
  Favoritas() { gral.ArchivoFavoritas = carpeta.Ruta("Favoritas.INI"); }
  QByteArray Archivo() const { return carpeta.Leer("Favoritas.INI"); }

  CarpetaDePrueba carpeta;
  AccesoContado acceso;
  ModGral gral{acceso};
};

TEST_F(Favoritas, a_missing_file_names_none_and_is_not_made) {
  EXPECT_TRUE(LeerFavoritas(gral).empty());
  EXPECT_TRUE(carpeta.Nombres().empty());
  GuardarFavoritas(gral, {});
  EXPECT_TRUE(carpeta.Nombres().empty());
}

TEST_F(Favoritas, the_file_is_not_read_for_every_folder) {
  carpeta.Escribir("Favoritas.INI", "[Registros]\nTotal=32767\n[DATOS]\nf3= '/c ' \nF3=/d\n");
  const QStringList leidas = LeerFavoritas(gral);
  EXPECT_EQ(leidas.size(), 32767);
  EXPECT_EQ(leidas.join(QString()), "/c ");
  EXPECT_EQ(leidas[2], "/c ");
  EXPECT_EQ(acceso.lecturas, 2) << "the number, and all of them";
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
  EXPECT_TRUE(Archivo().contains("\r\nF7=/" + QByteArray(98, '\xF1') + " \r\n"));
  for (const char* otra : {"/日本", "/a\nb", "/a\rb", "/a\u0301"}) {
    EXPECT_FALSE(CabeEnFavoritas(otra)) << otra;
  }
}

TEST_F(Favoritas, a_shorter_list_leaves_empty_keys_and_an_empty_one_no_file) {
  QStringList treinta;
  for (int i = 0; i < 30; ++i) treinta << QString("/%1").arg(i);
  GuardarFavoritas(gral, treinta);
  EXPECT_EQ(LeerFavoritas(gral), treinta);
  GuardarFavoritas(gral, {"/a"});
  EXPECT_EQ(LeerFavoritas(gral), QStringList("/a"));
  EXPECT_EQ(Archivo().count("=\r\n"), 29);
  GuardarFavoritas(gral, {});
  EXPECT_EQ(gral.TotalFavoritas, 0);
  EXPECT_TRUE(carpeta.Nombres().empty());
}

}  // namespace
