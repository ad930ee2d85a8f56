#include <unistd.h>

#include "shared/carpeta_de_prueba.h"
#include "shared/mod_gral.h"

namespace {

class Rutas : public testing::Test {
 protected:
  // The folder of the data files, seen from a program in this folder.
  QString Datos(const QString& carpeta_programa) {
    EstablecerRutas(general, carpeta_programa, "/casa/.config/velda");
    EXPECT_EQ(QString(general.ArchivoINI).replace("Velda", "Favoritas"), general.ArchivoFavoritas);
    EXPECT_TRUE(general.ArchivoINI.endsWith("/Velda.INI"));
    return general.ArchivoINI.chopped(9);
  }

  CarpetaDePrueba carpeta;
  const QString programa = carpeta.Ruta("") + "/";
  AccesoPerfilArchivo acceso;
  ModGral general{acceso};
};

TEST_F(Rutas, the_data_files_lie_beside_a_program_of_the_users_also_behind_a_link) {
  EXPECT_EQ(Datos(programa), programa);
  EXPECT_EQ(general.RutaPrograma, programa);
  QDir(programa).mkdir("programa");
  ASSERT_EQ(::symlink("programa", carpeta.EnSistema("enlace").constData()), 0);
  EXPECT_EQ(Datos(carpeta.Ruta("enlace")), carpeta.Ruta("programa/"));
}

TEST_F(Rutas, a_system_folder_keeps_the_program_but_not_the_data) {
  EXPECT_EQ(Datos("/usr/bin"), "/casa/.config/velda/");
  EXPECT_EQ(general.RutaPrograma, "/usr/bin/");
  Datos("/");
  EXPECT_EQ(general.RutaPrograma, "/") << "one slash";
}

TEST_F(Rutas, a_folder_of_another_user_is_used_only_when_settings_are_there) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
  ASSERT_EQ(::chown(carpeta.EnSistema("").constData(), 65534, 65534), 0);
  EXPECT_EQ(Datos(programa), "/casa/.config/velda/");
  carpeta.Escribir("Velda.INI", "");
  EXPECT_EQ(Datos(programa), programa);
}

}  // namespace
