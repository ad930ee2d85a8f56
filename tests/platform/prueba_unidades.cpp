#include <gtest/gtest.h>
#include <semaphore>

#include "platform/unidades.h"
#include "shared/carpeta_de_prueba.h"
#include "shared/rutas.h"

namespace {

constexpr auto Montados =
    "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
    "30 22 0:40 / /media rw - tmpfs tmpfs rw\n"
    "31 22 8:17 / /media/ana/MI\\040DISCO\\134x rw,nosuid shared:9 master:2 - vfat /dev/sdx1 rw\n"
    "32 22 8:17 /sub /run/media/ana/otra rw - vfat /dev/sdx1 rw\n"
    "33 22 0:50 / /mnt/nas rw - autofs systemd-1 rw\n"
    "34 33 0:51 / /mnt/nas rw - nfs4 nas:/datos rw\n"
    "35 22 0:52 / /mntotra rw - tmpfs tmpfs rw\n"
    "rota\n";

TEST(Montajes, volumes_are_listed_once_for_each_device_by_their_last_name) {
  QStringList vistos;
  for (const Unidad& unidad : Volumenes(LeerMontajes(Montados))) {
    vistos << unidad.nombre + u'|' + unidad.raiz;
  }
  EXPECT_EQ(vistos,
            (QStringList{"media|/media", "MI DISCO\\x|/media/ana/MI DISCO\\x", "nas|/mnt/nas"}));
}

TEST(Montajes, escapes_and_the_source_are_read_as_the_system_writes_them) {
  EXPECT_EQ(SinEscapes("a\\040b\\134\\9\\04", {"\\", 3, 8}), "a b\\\\9\\04");
  EXPECT_EQ(SinEscapes("MI\\x20DISCO\\x2fx\\xg0\\x2", {"\\x", 2, 16}), "MI DISCO/x\\xg0\\x2");
  const Montaje nas = LeerMontajes(Montados).at(5);
  EXPECT_EQ(nas.origen + u'|' + nas.dispositivo + u'|' + nas.tipo, "nas:/datos|0:51|nfs4");
}

TEST(Montajes, a_network_drive_is_seen_before_it_is_asked_also_behind_a_link) {
  const CarpetaDePrueba carpeta;
  ASSERT_TRUE(QFile::link("/mnt/nas/docs", carpeta.Ruta("enlace")));
  ASSERT_TRUE(QFile::link("./enlace", carpeta.Ruta("otro")));
  ASSERT_TRUE(QFile::link("bucle", carpeta.Ruta("bucle")));
  const auto montajes = LeerMontajes(Montados);
  ASSERT_TRUE(QFile::link("../" + carpeta.Ruta("").section('/', -1) + "/enlace/..",
                          carpeta.Ruta("arriba")));
  const QStringList de_red{"/mnt/nas",
                           "/mnt/nas/x/y",
                           "/home/../mnt/x/../nas",
                           carpeta.Ruta("arriba"),
                           carpeta.Ruta("enlace/x"),
                           carpeta.Ruta("otro")};
  const QStringList locales{"/mnt/nasa", "/../tmp", carpeta.Ruta("bucle/x"), carpeta.Ruta("")};
  for (const QString& ruta : de_red + locales) {
    const Montaje* montaje = MontajeDeRed(montajes, ruta);
    EXPECT_EQ(montaje != nullptr, de_red.contains(ruta)) << qPrintable(ruta);
    EXPECT_TRUE(montaje == nullptr || montaje->tipo == "nfs4");
  }
}

class Carpetas : public testing::Test {
 protected:
  QString Ruta(const QString& nombre) const { return carpeta.Ruta(nombre); }
  QStringList Leer(Busca que) {
    auto leida = unidades.Leer(Ruta(""), que);
    EXPECT_TRUE(leida.Bien());
    return leida.Valor().nombres;
  }

  CarpetaDePrueba carpeta;
  UnidadesReales unidades;
};

TEST_F(Carpetas, texts_and_folders_are_told_apart_and_stand_in_order) {
  for (const char* nombre : {"ñu.txt", "Nube.TXT", "o.Txt", "a.text", ".oculto.txt", "txt"}) {
    carpeta.Escribir(nombre, "");
  }
  const QByteArray ilegible = carpeta.EnSistema("") + "/\xFF.txt";
  std::fclose(std::fopen(ilegible.constData(), "w"));
  for (const char* nombre : {"d.txt", "Árbol", "b", ".oculta"}) {
    ASSERT_TRUE(QDir(Ruta("")).mkdir(nombre));
  }
  ASSERT_EQ(::mkfifo(carpeta.EnSistema("cola.txt").constData(), 0600), 0);
  ASSERT_TRUE(QFile::link("o.Txt", Ruta("enlace.txt")));
  ASSERT_TRUE(QFile::link("b", Ruta("c")));
  ASSERT_TRUE(QFile::link("nada.txt", Ruta("roto.txt")));
  EXPECT_EQ(RutaDelSistema(Leer(Busca::Textos).join(u' ')),
            "enlace.txt Nube.TXT ñu.txt o.Txt \xFF.txt");
  EXPECT_EQ(Leer(Busca::Subcarpetas).join(u' '), "Árbol b c d.txt");
  std::remove(ilegible.constData());
}

TEST_F(Carpetas, upper_case_is_given_only_where_it_is_the_same_folder) {
  EXPECT_EQ(unidades.Leer(Ruta("") + u'/', Busca::Textos).Valor().carpeta, Ruta(""));
  const QTemporaryDir abajo("/velda-XXXXXX");
  if (!abajo.isValid()) GTEST_SKIP() << "only root can put a folder beside /tmp";
  const QString arriba = abajo.path().toUpper();
  const auto leida = [&] { return unidades.Leer(abajo.path(), Busca::Textos).Valor().carpeta; };
  ASSERT_TRUE(QDir().mkdir(arriba));
  EXPECT_EQ(leida(), abajo.path()) << "another folder";
  ASSERT_TRUE(QDir().rmdir(arriba) && QFile::link(abajo.path(), arriba));
  EXPECT_EQ(leida(), arriba);
  QFile::remove(arriba);
}

TEST_F(Carpetas, a_folder_is_unavailable_only_when_its_drive_is) {
  QDir raiz(Ruta(""));
  for (const char* nombre : {"vacia", "llena/otra", "puesta"}) ASSERT_TRUE(raiz.mkpath(nombre));
  const auto montajes = LeerMontajes(QByteArray("1 1 8:1 / / rw - ext4 x rw\n2 1 8:2 / " +
                                                Ruta("puesta").toUtf8() + " rw - ext4 x rw\n"));
  const QStringList ausentes{"quitada", "quitada/a/b", "vacia/a"};
  for (const QString& nombre : ausentes + QStringList{"llena/a", "puesta/a"}) {
    EXPECT_EQ(EnVolumenAusente(Ruta(nombre), Ruta(""), montajes), ausentes.contains(nombre))
        << qPrintable(nombre);
  }
  EXPECT_FALSE(EnVolumenAusente("/no/existe", Ruta(""), montajes));
  const QList<int> de_unidad{ENODEV, ENOMEDIUM, EIO, ETIMEDOUT, ENOTCONN};
  for (const int codigo : de_unidad + QList<int>{ENOENT, EACCES, ENOTDIR}) {
    EXPECT_EQ(UnidadNoDisponible(Resultado::Fallo(codigo)), de_unidad.contains(codigo)) << codigo;
  }
}

TEST_F(Carpetas, each_failure_keeps_its_kind) {
  for (const auto& [ruta, codigo] : {std::pair<QString, int>{"", ENOENT},
                                     {"tmp", ENOENT},
                                     {Ruta("no"), ENOENT},
                                     {carpeta.Escribir("archivo", ""), ENOTDIR},
                                     {"/mnt/quitada-de-prueba/docs", ENODEV},
                                     {"/media/nadie/quitada/docs", ENODEV}}) {
    EXPECT_EQ(unidades.Leer(ruta, Busca::Textos).Fallo().Codigo(), codigo) << qPrintable(ruta);
  }
}

TEST(LectorQueEspera, a_drive_that_hangs_is_given_up_once_until_it_answers) {
  std::counting_semaphore<> respuesta(0);
  std::counting_semaphore<> vuelta(0);
  std::atomic<int> empezadas = 0;
  LectorPaciente lector(std::chrono::milliseconds(20), [&](const QString& carpeta, Busca /*que*/) {
    ++empezadas;
    if (carpeta == u"lenta") respuesta.acquire();
    vuelta.release();
    return CarpetaLeida{carpeta, {}};
  });
  const auto codigo = [&](const char* punto, const char* carpeta) {
    return lector(punto, carpeta, Busca::Textos).Fallo().Codigo();
  };
  EXPECT_EQ(codigo("nas", "lenta"), ETIMEDOUT);
  EXPECT_EQ(codigo("nas", "x"), ETIMEDOUT);
  EXPECT_EQ(empezadas, 1) << "a second thread for the drive that hangs";
  EXPECT_EQ(codigo("otra", "x"), 0);
  vuelta.acquire();
  respuesta.release();
  vuelta.acquire();
  while (codigo("nas", "x") != 0) continue;
}

}  // namespace
