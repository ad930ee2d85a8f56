#include <random>
#include <sys/stat.h>

#include "programa.h"

namespace {

using Documentos = Programa;

TEST_F(Documentos, every_byte_comes_back_as_it_was) {
  std::mt19937 azar(1);
  QByteArray todos;
  for (int i = 0; i < 40000; ++i) {
    todos += static_cast<char>(azar() % 3 == 0 ? "\r\n"[i % 2] : azar());
  }
  for (const QByteArray& contenido :
       {QByteArray(), todos, QByteArray("a\r\nb\nc\rd\n\re\r\r\n"), QByteArray("sin final"),
        QByteArray(3, '\0'), QByteArray(10 * 1024 * 1024, 'x')}) {
    Abrir(Archivo("a", contenido));
    EXPECT_TRUE(EnCaja() == contenido);
    Pasos({{"disco a=otro", ""}, {"guardar", ""}});
    EXPECT_TRUE(EnDisco("a") == contenido);
    TeclaEnLista(Qt::Key_Delete);
  }
}

TEST_F(Documentos, the_holes_of_a_file_are_zero_bytes) {
  QFile a(Archivo("a", "uno"));
  ASSERT_TRUE(a.open(QFile::ReadWrite) && a.resize(5 << 20) && a.seek(3 << 20));
  a.write("dos");
  a.close();
  Abrir(Ruta("a"));
  QByteArray todo(5 << 20, '\0');
  EXPECT_TRUE(EnCaja() == todo.replace(0, 3, "uno").replace(3 << 20, 3, "dos"));
}

TEST_F(Documentos, typing_marks_the_edit_saving_replaces_the_file_and_cancelling_reads_it_again) {
  Pasos({{"disco a=un texto largo", ""},
         {"abrir a", "a: un texto largo"},
         {"tecla Right", "a: un texto largo"},
         {"tecla Ctrl+A", "a*: un texto largo"},
         {"escribir Y", "a*: Y"},
         {"guardar", "a: Y"}});
  EXPECT_EQ(EnDisco("a"), "Y");
  EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
  Pasos({{"escribir X", "a*: YX"},
         {"entrada 0", "a*: YX"},  // it is the file that is shown
         {"cancelar", "a: Y"},
         {"tecla Ctrl+Z", "a*: Y"}});  // undo cannot bring back what was dropped
}

TEST_F(Documentos, a_key_in_the_empty_window_starts_a_new_text) {
  Pasos({{"escribir H", "Nuevo*: H"},
         {"cancelar", "?: H"},  // there is no file to go back to
         {"tecla Del", "Nuevo*: H"},
         {"cerrar", ""}});
  PulsarIcono(1);
  EXPECT_EQ(Estado(), "Nuevo*: ");
  EXPECT_TRUE(gral->ArchivoNuevo);
}

TEST_F(Documentos, a_new_text_is_saved_under_a_name_listed_and_loaded) {
  Pasos({{"disco b=viejo", ""}, {"abrir b", "b: viejo"}});
  for (const QString nombre : {"a", "b"}) {  // the second one stood in the window before
    Pasos({{"icono 1", "Nuevo*: "},
           {"escribir nuevo", "Nuevo*: nuevo"},
           {"icono 1", "Nuevo*: nuevo"},  // it is under way already
           {"guardar", ""},
           {"volver", "Nuevo*: nuevo"},  // the dialog was cancelled
           {"guardar " + nombre, nombre + ": nuevo"}});
    EXPECT_EQ(EnDisco(nombre), "nuevo");
    EXPECT_EQ(Caja()->Cursor(), 0);
    EXPECT_EQ(Entradas(), (QStringList{"a", "b"}));
    EXPECT_FALSE(gral->ArchivoNuevo);
    Hacer("entrada 1");
  }
  EXPECT_EQ(escritorio.dialogos.guardar.at(0).titulo, "Guardar archivo...");
  Pasos({{"icono 1", ""}, {"escribir nada", ""}, {"guardar", ""}, {"cancelar", "b: nuevo"}});
}

TEST_F(Documentos, a_copy_that_an_interrupted_save_left_is_told_of_and_never_removed) {
  const QString a = Archivo("a", "roto");
  const QString nombre = ".velda-copia%1-" + QString::number(carpeta.Estado("a").st_ino) + ".tmp";
  const QString entera = Archivo(nombre.arg(2), "entero");
  Archivo(nombre.arg(1), "roto");  // the file holds the same
  Abrir(a);
  EXPECT_EQ(Titulo(), "Archivo: " + a);
  EXPECT_EQ(escritorio.mensajes.titulos, QStringList("HAY UNA COPIA DEL TEXTO"));
  EXPECT_TRUE(escritorio.mensajes.textos.value(0).contains("\n" + entera + "\n"));
  EXPECT_FALSE(escritorio.mensajes.textos.value(0).contains(Ruta(nombre.arg(1))));
  Escribir("X");
  Texto()->CmdGuardar_Click();
  EXPECT_EQ(EnDisco("a"), "Xroto");
  EXPECT_EQ(carpeta.Nombres(), (QStringList{nombre.arg(2), "a"}));
}

TEST_F(Documentos, what_cannot_be_read_is_reported_and_changes_nothing) {
  Pasos({{"abrir /", "?: "}, {"volver", "?: "}});
  EXPECT_EQ(escritorio.mensajes.titulos.size(), 1) << "it is not tried again";
  Hacer("abrir a");
  EXPECT_EQ(EnDisco("a"), "") << "a listed file that is gone is made empty";
  ASSERT_EQ(::mkfifo(carpeta.EnSistema("tubo").constData(), 0600), 0);
  Hacer("escribir X");
  for (const char* malo : {"/tmp", "tubo", "/dev/null", "no/existe"}) {
    Pasos({{QString("abrir ") + malo, "a*: X"}});
    EXPECT_EQ(escritorio.mensajes.titulos.takeLast(), "ERROR AL LEER EL ARCHIVO");
    EXPECT_FALSE(escritorio.mensajes.textos.takeLast().isEmpty());
    EXPECT_EQ(gral->ArchivoActual, Ruta("a"));
  }
  Hacer("guardar");
  EXPECT_EQ(EnDisco("a"), "X");
}

TEST_F(Documentos, a_load_that_the_user_leaves_changes_nothing_and_says_nothing) {
  Pasos({{"disco a=texto", ""}, {"disco largo=otro", ""}, {"abrir a", ""}, {"escribir X", ""}});
  escritorio.esperas.seguir = [] { return false; };
  Pasos({{"abrir largo", "a*: Xtexto"}, {"cancelar", "a*: Xtexto"}});
  EXPECT_EQ(escritorio.esperas.nombres, (QStringList{"a", "largo", "a"}));
  EXPECT_TRUE(escritorio.mensajes.titulos.isEmpty());
  EXPECT_EQ(gral->ArchivoActual, Ruta("a"));
  EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
  escritorio.esperas.seguir = [&] {  // what is saved and chosen meanwhile does not meet it
    Texto()->CmdGuardar_Click();
    gral->ArchivoActual = Ruta("a");
    return true;
  };
  Pasos({{"abrir largo", "largo: otro"}});
  EXPECT_EQ(EnDisco("a"), "Xtexto");
  EXPECT_EQ(EnDisco("largo"), "otro");
}

TEST_F(Documentos, a_failed_save_keeps_the_text_and_the_mark) {
  Pasos({{"disco a=texto", ""}, {"abrir a", ""}, {"escribir X", ""}});
  ASSERT_TRUE(QFile::setPermissions(Ruta("a"), QFile::ReadOwner));
  Pasos({{"guardar", "a*: Xtexto"}});
  EXPECT_EQ(escritorio.mensajes.titulos, QStringList("ERROR AL GUARDAR EL ARCHIVO"));
  EXPECT_EQ(EnDisco("a"), "texto");
  ASSERT_TRUE(QFile::remove(Ruta("a")));
  Pasos({{"guardar", "a*: Xtexto"}});
  EXPECT_EQ(escritorio.mensajes.titulos.size(), 2) << "a file that has vanished";
  EXPECT_FALSE(QFile::exists(Ruta("a")));
}

// A save that failed, and one whose dialog was cancelled, of a text that no file was begun for.
TEST_F(Documentos, a_first_save_that_comes_to_nothing_keeps_the_text_or_goes_back_to_the_file) {
  Pasos({{"escribir N", ""}, {"guardar no/existe.txt", ""}, {"volver", "Nuevo*: N"}});
  EXPECT_EQ(gral->ArchivoActual, "") << "cancelling the text loads nothing";
  Pasos({{"escribir N", ""}, {"guardar", ""}, {"volver", "Nuevo*: NN"}});
  EXPECT_TRUE(gral->ArchivoNuevo);
  EXPECT_EQ(escritorio.mensajes.titulos.size(), 1);
  Pasos({{"guardar a", "a: NN"}, {"icono 1", ""}, {"guardar no/existe.txt", "a: NN"}});
  EXPECT_EQ(EnDisco("a"), "NN");
  Pasos({{"escribir X", "a*: XNN"}, {"lista Del", "?: "}});  // the entry that is edited
  Caja()->Insertar("pegado");  // as the menu does: no key, so no new text
  Pasos({{"guardar", ""}, {"volver", "Nuevo*: pegado"}});  // what was to be saved is a new one
}

}  // namespace
