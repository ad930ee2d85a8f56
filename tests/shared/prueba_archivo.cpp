#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "shared/archivo.h"
#include "shared/carpeta_de_prueba.h"

namespace {

constexpr unsigned Nadie = 65534;

// An access list: the owner rw-, user 65534 r--, group and mask r--, others nothing.
constexpr std::string_view ListaDeAcceso(
    "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\4\0\xFE\xFF\0\0\4\0\4\0\xFF\xFF\xFF\xFF"
    "\x10\0\4\0\xFF\xFF\xFF\xFF\x20\0\0\0\xFF\xFF\xFF\xFF",
    44);

int Guardar(const QString& ruta, std::string_view contenido) {
  const std::array tramos{contenido.substr(0, contenido.size() / 2), std::string_view(),
                          contenido.substr(contenido.size() / 2)};
  return ReemplazarArchivo(ruta, tramos, Duracion::Sincronizada).Codigo();
}

int GuardarNuevo(const QString& ruta, std::string_view contenido) {
  return CrearOReemplazarArchivo(ruta, std::span(&contenido, 1), Duracion::Sincronizada).Codigo();
}

int Abrir(const QString& ruta, LectorArchivo::SiFalta si_falta) {
  return LectorArchivo::Abrir(ruta, si_falta).Fallo().Codigo();
}

// What a save gives back to a user without rights.
template <typename Accion>
int ComoNadie(Accion accion) {
  const pid_t hijo = ::fork();
  if (hijo == 0) {
    const bool otro =
        ::setresgid(Nadie, Nadie, Nadie) == 0 && ::setresuid(Nadie, Nadie, Nadie) == 0;
    ::_exit(otro ? accion() : 255);
  }
  int fin = 0;
  ::waitpid(hijo, &fin, 0);
  return WIFEXITED(fin) ? WEXITSTATUS(fin) : -1;
}

bool a_poquitos = false;

}  // namespace

// While a_poquitos, the system moves fewer bytes than it was asked for, as it may at any time.
extern "C" ssize_t pwritev64(int descriptor, const iovec* tramos, int cuantos, off64_t donde) {
  if (!a_poquitos) return ::syscall(SYS_pwritev, descriptor, tramos, cuantos, donde, 0);
  return ::pwrite64(descriptor, tramos->iov_base, std::min<std::size_t>(tramos->iov_len, 7), donde);
}
extern "C" ssize_t read(int descriptor, void* destino, std::size_t maximo) {
  return ::syscall(SYS_read, descriptor, destino, a_poquitos ? std::min(maximo, {7}) : maximo);
}

namespace {

class Archivo : public testing::Test {
 protected:
  void SetUp() override { carpeta.Escribir("f", "viejo y largo"); }

  void Permitir(const QString& nombre, mode_t permisos) {
    ASSERT_EQ(::chmod(carpeta.EnSistema(nombre).constData(), permisos), 0);
  }
  void Regalar(const QString& nombre) {
    ASSERT_EQ(::chown(carpeta.EnSistema(nombre).constData(), Nadie, Nadie), 0);
  }
  // Of the file "f": its content, and that nothing else has stayed in the folder.
  void Espera(const QByteArray& contenido, const QStringList& nombres = {"f"}) {
    EXPECT_EQ(carpeta.Leer("f"), contenido);
    EXPECT_EQ(carpeta.Nombres(), nombres);
  }

  CarpetaDePrueba carpeta;
};

TEST_F(Archivo, what_is_no_regular_file_is_refused_without_waiting) {
  ASSERT_EQ(::mkfifo(carpeta.EnSistema("tubo").constData(), 0666), 0);
  const std::vector<std::pair<QString, int>> casos{{carpeta.Ruta("tubo"), EMEDIUMTYPE},
                                                   {"/dev/null", EMEDIUMTYPE},
                                                   {carpeta.Ruta(""), EISDIR},
                                                   {carpeta.Ruta("f/"), ENOTDIR},
                                                   {carpeta.Ruta("f/g"), ENOTDIR},
                                                   {carpeta.Ruta("x/g"), ENOENT},
                                                   {"", ENOENT},
                                                   {carpeta.Ruta("f") + QChar(0), ENOENT}};
  for (const auto& [ruta, codigo] : casos) {
    EXPECT_EQ(Guardar(ruta, "x"), codigo) << qPrintable(ruta);
    EXPECT_EQ(GuardarNuevo(ruta, "x"), codigo) << qPrintable(ruta);
    EXPECT_EQ(Abrir(ruta, LectorArchivo::SiFalta::Crear), codigo) << qPrintable(ruta);
  }
  EXPECT_EQ(Guardar(carpeta.Ruta("falta"), "x"), ENOENT);
  Permitir("f", 0444);  // without any write bit: read-only for root, too
  EXPECT_EQ(Guardar(carpeta.Ruta("f"), "nuevo"), EACCES);
  EXPECT_EQ(GuardarNuevo(carpeta.Ruta("f"), "nuevo"), EACCES);
  Espera("viejo y largo", {"f", "tubo"});
}

TEST_F(Archivo, a_file_of_the_systems_that_gives_no_length_is_read_to_its_end) {
  QFile esperado("/proc/devices");
  ASSERT_TRUE(esperado.open(QIODevice::ReadOnly));
  const QByteArray todo = esperado.readAll();
  a_poquitos = true;
  EXPECT_EQ(LeerArchivo("/proc/devices").Valor(), todo);
  a_poquitos = false;
  EXPECT_GT(todo.size(), 0);
}

TEST_F(Archivo, all_names_of_a_file_get_the_new_content_however_little_one_call_moves) {
  ASSERT_EQ(::link(carpeta.EnSistema("f").constData(), carpeta.EnSistema("g").constData()), 0);
  for (const char* contenido : {"más corto", "", "y esta vez mucho más largo que antes", "fin"}) {
    a_poquitos = !a_poquitos;
    EXPECT_EQ(Guardar(carpeta.Ruta("f"), contenido), 0);
    EXPECT_EQ(LeerArchivo(carpeta.Ruta("g")).Valor(), contenido);
    Espera(contenido, {"f", "g"});
  }
  a_poquitos = false;
  const mode_t antes = ::umask(027);
  EXPECT_EQ(GuardarNuevo(carpeta.Ruta("h"), "nuevo"), 0);
  ::umask(antes);
  EXPECT_EQ(carpeta.Estado("h").st_mode & 07777U, 0640U) << "what the mask leaves";
}

TEST_F(Archivo, mode_owner_and_extended_attributes_stay) {
  const QByteArray ruta = carpeta.EnSistema("f");
  if (::geteuid() == 0) Regalar("f");
  Permitir("f", 0751);
  const std::vector<std::pair<const char*, QByteArray>> atributos{
      {"user.prueba", QByteArray(300, '\0')},
      {"system.posix_acl_access", QByteArray(ListaDeAcceso.data(), ListaDeAcceso.size())}};
  for (const auto& [nombre, valor] : atributos) {
    if (::setxattr(ruta.constData(), nombre, valor.constData(),
                   static_cast<std::size_t>(valor.size()), 0) < 0) {
      GTEST_SKIP() << nombre << " cannot be set here: " << strerror(errno);
    }
  }
  const struct stat antes = carpeta.Estado("f");
  EXPECT_EQ(Guardar(carpeta.Ruta("f"), "nuevo"), 0);
  const struct stat despues = carpeta.Estado("f");
  EXPECT_NE(despues.st_ino, antes.st_ino) << "it was to be replaced by another file";
  EXPECT_EQ(despues.st_mode, antes.st_mode);
  EXPECT_EQ(despues.st_uid, antes.st_uid);
  EXPECT_EQ(despues.st_gid, antes.st_gid);
  for (const auto& [nombre, valor] : atributos) {
    QByteArray leido(1000, 'x');
    leido.truncate(::getxattr(ruta.constData(), nombre, leido.data(), 1000));
    EXPECT_EQ(leido, valor) << nombre;
  }
}

TEST_F(Archivo, the_access_list_that_a_folder_gives_to_new_files_does_not_reach_an_old_one) {
  if (::setxattr(carpeta.EnSistema("").constData(), "system.posix_acl_default",
                 ListaDeAcceso.data(), ListaDeAcceso.size(), 0) < 0) {
    GTEST_SKIP() << "no access list can be set here: " << strerror(errno);
  }
  const struct stat antes = carpeta.Estado("f");
  EXPECT_EQ(Guardar(carpeta.Ruta("f"), "nuevo"), 0);
  EXPECT_LT(::getxattr(carpeta.EnSistema("f").constData(), "system.posix_acl_access", nullptr, 0),
            0);
  EXPECT_EQ(carpeta.Estado("f").st_mode, antes.st_mode);
}

TEST_F(Archivo, left_overs_go_but_not_those_of_a_living_save_nor_other_files) {
  carpeta.Escribir(".velda-aB3dE6.tmp", "resto");
  carpeta.Escribir(".velda-aB3dE.tmp", "ajeno");
  carpeta.Escribir(".velda-aB3dE6-77.tmp", "copia de otro archivo");
  carpeta.Escribir(".velda-viviva.tmp", "otro que guarda");
  const int vivo = ::open(carpeta.EnSistema(".velda-viviva.tmp").constData(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::flock(vivo, LOCK_EX), 0);
  EXPECT_EQ(Guardar(carpeta.Ruta("f"), "nuevo"), 0);
  ::close(vivo);
  Espera("nuevo", {".velda-aB3dE.tmp", ".velda-aB3dE6-77.tmp", ".velda-viviva.tmp", "f"});
}

TEST_F(Archivo, a_user_without_rights_writes_only_where_he_may) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can become another user";
  Permitir("", 0755);
  EXPECT_EQ(ComoNadie([&] { return GuardarNuevo(carpeta.Ruta("g"), "nuevo"); }), EACCES);
  Permitir("", 0777);
  EXPECT_EQ(ComoNadie([&] { return Guardar(carpeta.Ruta("f"), "nuevo"); }), EACCES);
  Espera("viejo y largo");
  Permitir("f", 0666);
  const struct stat antes = carpeta.Estado("f");
  EXPECT_EQ(ComoNadie([&] { return Guardar(carpeta.Ruta("f"), "nuevo"); }), 0);
  Espera("nuevo");
  EXPECT_EQ(carpeta.Estado("f").st_uid, 0U) << "the owner stays";
  EXPECT_EQ(carpeta.Estado("f").st_ino, antes.st_ino);
}

TEST(Motivo, reasons_are_whole_spanish_sentences) {
  EXPECT_EQ(Resultado().Motivo(), QString());
  EXPECT_EQ(Resultado::Fallo(ENOSPC).Motivo(), "No queda espacio en el disco.");
  for (int codigo = 1; codigo < 140; ++codigo) {
    const QString motivo = Resultado::Fallo(codigo).Motivo();
    EXPECT_TRUE(motivo.endsWith(u'.')) << codigo;
    EXPECT_FALSE(motivo.contains(std::strerror(codigo))) << codigo << ": in the system's language";
  }
}

}  // namespace
