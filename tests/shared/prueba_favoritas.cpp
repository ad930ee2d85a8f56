#include "shared/carpeta_de_prueba.h"
#include "shared/favoritas.h"

namespace {

class Favoritas : public testing::Test {
 protected:
  Favoritas() { gral.ArchivoFavoritas = carpeta.Ruta("Favoritas.INI"); }
  QStringList Leidas(const QByteArray& contenido) {
    carpeta.Escribir("Favoritas.INI", contenido);
    return LeerFavoritas(gral);
  }
  QByteArray Archivo() const { return carpeta.Leer("Favoritas.INI"); }

  CarpetaDePrueba carpeta;
  AccesoPerfilArchivo acceso;
  ModGral gral{acceso};
};

TEST_F(Favoritas, a_missing_file_names_none_and_is_not_made) {
  EXPECT_TRUE(LeerFavoritas(gral).empty());
  EXPECT_TRUE(carpeta.Nombres().empty());
  GuardarFavoritas(gral, {});
  EXPECT_TRUE(carpeta.Nombres().empty());
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

TEST_F(Favoritas, what_others_wrote_into_the_file_stays) {
  carpeta.Escribir("Favoritas.INI",
                   "; mio\n[datos]\nf1 = \"/x\"\nF31=/y\nNota=1\n[Otra]\nTotal=9\n");
  GuardarFavoritas(gral, {"/a"});
  const QByteArray ahora = Archivo();
  EXPECT_TRUE(
      ahora.startsWith("; mio\n[datos]\nf1 =/a" + QByteArray(98, ' ') + "\nF31=/y\nNota=1\nF2=\n"))
      << ahora.constData();
  EXPECT_TRUE(ahora.contains("\n[Otra]\nTotal=9\n[Registros]\nTotal=1\n"));
  EXPECT_FALSE(ahora.contains('\r'));
}

TEST_F(Favoritas, a_file_edited_by_hand_is_read_as_far_as_it_goes) {
  struct Caso {
    const char* contenido;
    QStringList carpetas;
  };
  for (const auto& [contenido, carpetas] : {
           Caso{"[Registros]\nTotal=3\n[Datos]\nF1=/a\nF2=/b\n", {"/a", "/b", ""}},
           {"[Datos]\r\nF2= \"/b c\" \r\nF1='/a'\r\n[Registros]\r\n total = 2,9 \r\n",
            {"/a", "/b c"}},
           {"[Registros]\nTotal=0\n[Datos]\nF1=/a\n", {}},
           {"[Registros]\nTotal=-2\n[Datos]\nF1=/a\n", {}},
           {"[Registros]\nTotal=dos\n[Datos]\nF1=/a\n", {}},
           {"[Registros]\nTotal=70000\n[Datos]\nF1=/a\n", {}},
           {"[Datos]\nF1=/a\n", {}},
       }) {
    EXPECT_EQ(Leidas(contenido), carpetas) << contenido;
    EXPECT_EQ(gral.TotalFavoritas, carpetas.size() > 0 ? carpetas.size() : gral.TotalFavoritas);
  }
}

}  // namespace
