#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "shared/carpeta_de_prueba.h"
#include "shared/perfil.h"

namespace {

class PerfilEnDisco : public testing::Test {
 protected:
  QString Leido(QStringView clave) {
    perfil.Leer(ruta, u"PosTam", clave, u"615");
    return perfil.Valor();
  }

  CarpetaDePrueba carpeta;
  QString ruta = carpeta.Ruta("Velda.INI");
  AccesoPerfilArchivo acceso{carpeta.Ruta("config/velda")};
  Perfil perfil{acceso};
};

TEST_F(PerfilEnDisco, the_first_write_makes_folder_and_file_but_no_other_folder) {
  perfil.Escribir(carpeta.Ruta("borrada/Velda.INI"), u"PosTam", u"PrinIzda", u"-20");
  EXPECT_EQ(carpeta.Nombres(), QStringList());
  ruta = carpeta.Ruta("config/velda/Velda.INI");
  perfil.Escribir(ruta, u"PosTam", u"PrinIzda", u"-20");
  perfil.EscribirBuffer(ruta, u"Fuente", u"Tamaño", u"9,75");
  EXPECT_EQ(
      carpeta.Leer("config/velda/Velda.INI"),
      "[PosTam]\r\nPrinIzda=-20\r\n[Fuente]\r\nTama\xF1o=9,75" + QByteArray(96, ' ') + "\r\n");
  const auto nodo = [&] { return carpeta.Estado("config/velda/Velda.INI").st_ino; };
  const auto antes = nodo();
  perfil.Escribir(ruta, u"postam", u"PRINIZDA", u"-20");
  EXPECT_EQ(nodo(), antes) << "an equal value does not write the file";
  const QString larga(150, u'x');
  perfil.EscribirLargo(ruta, u"PosTam", u"Larga", larga);
  EXPECT_EQ(perfil.LeerLargo(ruta, u"PosTam", u"Larga", u""), larga);
  EXPECT_EQ(perfil.Valor(), larga.left(99));
  perfil.EscribirBuffer(ruta, u"PosTam", u"Larga", larga);
  EXPECT_EQ(perfil.LeerLargo(ruta, u"PosTam", u"Larga", u""), larga.left(100));
  perfil.Leer(ruta, u"FUENTE", u"TAMAÑO", u"10");
  EXPECT_EQ(perfil.Valor(), "9,75");
  EXPECT_EQ(perfil.Puntos(), 9.75);
}

TEST_F(PerfilEnDisco, a_lock_that_is_not_let_go_is_waited_for_once) {
  const int cerrojo = ::open(carpeta.EnSistema("").constData(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(cerrojo, LOCK_EX), 0);
  int esperas = 0;
  AccesoPerfilArchivo impaciente({}, [&](auto) { ++esperas; });
  Perfil otro(impaciente);
  std::vector<int> entre_claves;
  for (const char16_t* clave : {u"a", u"b", u"c"}) {
    otro.Escribir(ruta, u"PosTam", clave, u"1");
    EXPECT_EQ(Leido(clave), "1") << "written without the lock";
    entre_claves.push_back(std::exchange(esperas, 0));
    if (*clave == u'b') ::flock(cerrojo, LOCK_UN);
  }
  EXPECT_GT(entre_claves[0], 0);
  ::flock(cerrojo, LOCK_EX);
  otro.Escribir(ruta, u"PosTam", u"d", u"1");
  ::close(cerrojo);
  entre_claves.push_back(esperas);
  EXPECT_EQ(entre_claves, (std::vector{entre_claves[0], 0, 0, entre_claves[0]}));
}

TEST_F(PerfilEnDisco, programs_that_write_at_once_lose_neither_keys_nor_lines) {
  constexpr int Programas = 4;
  constexpr int Claves = 40;
  const QByteArray antes = "; a mano\r\n[B]\r\nx = 1\r\n";
  carpeta.Escribir("Velda.INI", antes);
  for (int i = 0; i < Programas; ++i) {
    if (::fork() != 0) continue;
    for (int j = 0; j < Claves; j += 2) {
      const Perfil::Juntos juntos(perfil, ruta);
      perfil.Escribir(ruta, u"A", QString("k%1_%2").arg(i).arg(j), QString::number(j));
      perfil.Escribir(ruta, u"A", QString("k%1_%2").arg(i).arg(j + 1), QString::number(j + 1));
    }
    ::_exit(0);
  }
  while (::wait(nullptr) > 0) continue;
  for (int i = 0; i < Programas * Claves; ++i) {
    perfil.Leer(ruta, u"A", QString("k%1_%2").arg(i / Claves).arg(i % Claves), u"-1");
    EXPECT_EQ(perfil.Entero16(-1), i % Claves) << i / Claves;
  }
  EXPECT_TRUE(carpeta.Leer("Velda.INI").startsWith(antes));
  EXPECT_EQ(carpeta.Leer("Velda.INI").count('='), 1 + Programas * Claves);
  EXPECT_EQ(carpeta.Nombres(), QStringList("Velda.INI"));
}

}  // namespace
