#include <gtest/gtest.h>
#include <semaphore>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/unidades.h"

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

QString Texto(const char* utf8) {
  return QString::fromUtf8(utf8);
}

TEST(Montajes, volumes_are_listed_once_for_each_device_by_their_last_name) {
  QStringList vistos;
  for (const Unidad& unidad : Volumenes(LeerMontajes(Montados))) {
    vistos << unidad.nombre + u'|' + unidad.raiz;
  }
  EXPECT_EQ(vistos, (QStringList{Texto("media|/media"), Texto("MI DISCO\\x|/media/ana/MI DISCO\\x"),
                                 Texto("nas|/mnt/nas")}));
}

TEST(Montajes, a_network_drive_is_seen_before_it_is_asked_also_behind_a_link) {
  QTemporaryDir carpeta;
  const QString enlace = carpeta.filePath(Texto("enlace"));
  ASSERT_TRUE(QFile::link(Texto("/mnt/nas/docs"), enlace));
  ASSERT_TRUE(QFile::link(Texto("./enlace"), carpeta.filePath(Texto("otro"))));
  ASSERT_TRUE(QFile::link(Texto("bucle"), carpeta.filePath(Texto("bucle"))));
  const auto montajes = LeerMontajes(Montados);
  for (const auto& [ruta, red] : {std::pair{Texto("/mnt/nas"), true},
                                  {Texto("/mnt/nas/x/y"), true},
                                  {Texto("/mnt/nasa"), false},
                                  {Texto("/home/../mnt/nas/x"), true},
                                  {Texto("/../tmp"), false},
                                  {enlace + Texto("/x"), true},
                                  {carpeta.filePath(Texto("otro")), true},
                                  {carpeta.filePath(Texto("bucle/x")), false},
                                  {carpeta.path(), false}}) {
    const Montaje* montaje = MontajeDeRed(montajes, ruta);
    EXPECT_EQ(montaje != nullptr, red) << qPrintable(ruta);
    EXPECT_TRUE(montaje == nullptr || montaje->tipo == Texto("nfs4"));
  }
}

class Carpetas : public testing::Test {
 protected:
  QString Ruta(const char* nombre) const { return carpeta.filePath(Texto(nombre)); }
  QStringList Leer(Busca que) {
    auto leida = unidades.Leer(carpeta.path(), que);
    EXPECT_TRUE(leida.Bien());
    return leida.Valor().nombres;
  }

  QTemporaryDir carpeta;
  UnidadesReales unidades;
};

TEST_F(Carpetas, texts_and_folders_are_told_apart_and_stand_in_order) {
  for (const char* nombre :
       {"ñu.txt", "Nube.TXT", "o.Txt", "a.text", ".oculto.txt", "txt", "\xFF.txt"}) {
    std::fclose(std::fopen((QFile::encodeName(carpeta.path()) + '/' + nombre).constData(), "w"));
  }
  for (const char* nombre : {"d.txt", "Árbol", "b", ".oculta"}) {
    ASSERT_TRUE(QDir(carpeta.path()).mkdir(Texto(nombre)));
  }
  ASSERT_EQ(::mkfifo(QFile::encodeName(Ruta("cola.txt")).constData(), 0600), 0);
  ASSERT_TRUE(QFile::link(Texto("o.Txt"), Ruta("enlace.txt")));
  ASSERT_TRUE(QFile::link(Texto("b"), Ruta("c")));
  ASSERT_TRUE(QFile::link(Texto("nada.txt"), Ruta("roto.txt")));
  EXPECT_EQ(Leer(Busca::Textos).join(u' '), Texto("enlace.txt Nube.TXT ñu.txt o.Txt"));
  EXPECT_EQ(Leer(Busca::Subcarpetas).join(u' '), Texto("Árbol b c d.txt"));
  std::remove((QFile::encodeName(carpeta.path()) + "/\xFF.txt").constData());
}

TEST_F(Carpetas, upper_case_is_given_only_where_it_is_the_same_folder) {
  EXPECT_EQ(unidades.Leer(carpeta.path() + u'/', Busca::Textos).Valor().carpeta, carpeta.path());
  const QTemporaryDir abajo(Texto("/velda-XXXXXX"));
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
  QDir raiz(carpeta.path());
  for (const char* nombre : {"vacia", "llena/otra", "puesta"})
    ASSERT_TRUE(raiz.mkpath(Texto(nombre)));
  const auto montajes = LeerMontajes(QByteArray("1 1 8:1 / / rw - ext4 x rw\n2 1 8:2 / " +
                                                Ruta("puesta").toUtf8() + " rw - ext4 x rw\n"));
  for (const auto& [nombre, ausente] : {std::pair{"quitada", true},
                                        {"quitada/a/b", true},
                                        {"vacia/a", true},
                                        {"llena/a", false},
                                        {"puesta/a", false}}) {
    EXPECT_EQ(EnVolumenAusente(Ruta(nombre), carpeta.path(), montajes), ausente) << nombre;
  }
  EXPECT_FALSE(EnVolumenAusente(Texto("/no/existe"), carpeta.path(), montajes));
  for (const auto& [codigo, no_disponible] : {std::pair{ENODEV, true},
                                              {ENOMEDIUM, true},
                                              {EIO, true},
                                              {ETIMEDOUT, true},
                                              {ENOTCONN, true},
                                              {ENOENT, false},
                                              {EACCES, false},
                                              {ENOTDIR, false}}) {
    EXPECT_EQ(UnidadNoDisponible(Resultado::Fallo(codigo)), no_disponible) << codigo;
  }
}

TEST_F(Carpetas, each_failure_keeps_its_kind) {
  std::fclose(std::fopen(QFile::encodeName(Ruta("archivo")).constData(), "w"));
  for (const auto& [ruta, codigo] : {std::pair{QString(), ENOENT},
                                     {Texto("tmp"), ENOENT},
                                     {Ruta("no"), ENOENT},
                                     {Ruta("archivo"), ENOTDIR},
                                     {Texto("/mnt/quitada-de-prueba/docs"), ENODEV},
                                     {Texto("/media/nadie/quitada/docs"), ENODEV}}) {
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
    return lector(Texto(punto), Texto(carpeta), Busca::Textos).Fallo().Codigo();
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
