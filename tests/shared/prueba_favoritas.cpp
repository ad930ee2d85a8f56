#include <random>

#include "shared/carpeta_de_prueba.h"
#include "shared/favoritas.h"
#include "shared/pagina_codigos.h"
#include "shared/ruta_guardada.h"
#include "shared/rutas.h"

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

TEST_F(Favoritas, every_folder_that_fits_comes_back_and_a_shorter_list_leaves_empty_keys) {
  const QStringList carpetas{"",
                             "/",
                             "/acaba en blanco ",
                             "/'x'",
                             "/x;y=[z]\"",
                             "/" + QString(99, u'ñ'),
                             "/" + QString(600, u'x')};
  for (const QString& una : carpetas) EXPECT_EQ(RutaAGuardar(una), una);
  for (const QStringList& lista : {carpetas, carpetas.mid(2, 1), QStringList()}) {
    GuardarFavoritas(gral, lista);
    EXPECT_EQ(LeerFavoritas(gral), lista);
    EXPECT_EQ(gral.TotalFavoritas, lista.size());
    EXPECT_EQ(carpeta.Nombres().isEmpty(), lista.isEmpty()) << "an empty list leaves no file";
    EXPECT_EQ(Archivo().count("=\r\n"), lista.isEmpty() ? 0 : 30 - lista.size());
  }
}

TEST_F(Favoritas, what_the_page_lacks_is_stored_below_a_device_and_a_part_of_it_stays_there) {
  for (const auto& [ruta, valor] : {std::pair<const char*, const char*>{
                                        "/日 €?\n", "/dev/null//\xE6\x97\xA5 \xE2\x82\xAC?3f?0a??"},
                                    {"/nin\u0303o", "/dev/null//nin\xCC\x83o??"},
                                    {"/\xF1", "/dev/null//\xF1??"},
                                    {"/\xED\xB2\x80\xF0\x9F", "/dev/null//\xED\xB2\x80\xF0\x9F??"},
                                    {"/dev/null//a??", "/dev/null//dev/null//a?3f?3f??"}}) {
    const QString entero = RutaAGuardar(RutaComoTexto(ruta));
    EXPECT_EQ(entero, PaginaCodigos::ATexto(valor)) << ruta;
    EXPECT_EQ(RutaDelSistema(RutaGuardada(entero)), ruta);
    for (qsizetype i = 0; i < entero.size(); ++i) {
      EXPECT_EQ(RutaGuardada(entero.left(i)), entero.left(i)) << ruta;
    }
  }
  for (const char* otra : {"/dev/null/a?3??", "/dev/null/a?3F??", "/dev/null/?", "/dev/null/a"}) {
    EXPECT_EQ(RutaGuardada(otra), otra);
  }
}

TEST_F(Favoritas, paths_of_any_bytes_come_back_from_the_file) {
  const QList<QByteArray> partes{"/",  "?",        "??",   "\n",   "\r",      " ",    "/dev/null/",
                                 "3f", "\xC3\xB1", "\xE6", "\x97", "\xA5",    "\xCC", "\x83",
                                 "\"", "\xED\xA0", "\xFF", "日本", "n\u0303", "📄",    ";"};
  std::mt19937 azar(4);
  for (int vez = 0; vez < 60; ++vez) {
    QList<QByteArray> rutas(MaximoFavoritas, "/");
    QStringList textos;
    for (QByteArray& ruta : rutas) {
      for (unsigned i = azar() % 30; i > 0; --i) {
        const unsigned parte = azar() % 40;
        ruta += parte < partes.size() ? partes[parte] : QByteArray(1, char(azar() % 255 + 1));
      }
      textos << RutaComoTexto(ruta);
    }
    GuardarFavoritas(gral, textos);
    EXPECT_EQ(LeerFavoritas(gral), textos);
    for (int i = 0; i < MaximoFavoritas; ++i) EXPECT_EQ(RutaDelSistema(textos[i]), rutas[i]);
  }
}

}  // namespace
