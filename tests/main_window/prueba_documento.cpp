#include <random>
#include <sys/stat.h>

#include "programa.h"

namespace {

class Documentos : public Programa {
 protected:
  void Guardar() {
    Texto()->DarFoco();
    Texto()->CmdGuardar_Click();
  }
  void GuardarComo(const QString& ruta) {
    escritorio.dialogos.respuesta = ruta;
    Guardar();
    escritorio.dialogos.respuesta.clear();
  }
  void IrYVolver() {
    Texto()->DarFoco();
    principal->DarFoco();
    Texto()->DarFoco();
  }
  void Espera(const QString& nombre, const QByteArray& texto, bool panel) {
    EXPECT_EQ(Titulo(), "Archivo: " + nombre);
    EXPECT_EQ(EnCaja(), texto);
    EXPECT_EQ(Panel(), panel);
  }
};

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
    Archivo("a", "otro");
    Guardar();
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
  Abrir(Archivo("a", "un texto largo"));
  QTest::keyClick(Caja(), Qt::Key_Right);
  EXPECT_FALSE(Panel()) << "moving is no edit";
  QTest::keyClick(Caja(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(Panel());
  Escribir("Y");
  Guardar();
  EXPECT_EQ(EnDisco("a"), "Y");
  EXPECT_FALSE(Panel());
  EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
  Escribir("X");
  PulsarEntrada();
  Espera(Ruta("a"), "YX", true);  // it is the file that is shown
  Texto()->CmdCancelar_Click();
  Espera(Ruta("a"), "Y", false);
  QTest::keyClick(Caja(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(EnCaja(), "Y") << "undo cannot bring back what was dropped";
}

TEST_F(Documentos, a_key_in_the_empty_window_starts_a_new_text) {
  Escribir("H");
  Espera("Nuevo", "H", true);
  EXPECT_TRUE(gral->ArchivoNuevo);
  Texto()->CmdCancelar_Click();
  Espera("?", "H", false);  // there is no file to go back to
  QTest::keyClick(Caja(), Qt::Key_Delete);
  EXPECT_EQ(Titulo(), "Archivo: Nuevo");
  Texto()->Cerrar();
  PulsarIcono(1);
  Espera("Nuevo", "", true);
}

TEST_F(Documentos, a_new_text_is_saved_under_a_name_listed_and_loaded) {
  Abrir(Archivo("b", "viejo"));
  for (const char* nombre : {"a", "b"}) {  // the second one stood in the window before
    PulsarIcono(1);
    EXPECT_EQ(EnCaja(), "");
    Escribir("nuevo");
    PulsarIcono(1);
    Espera("Nuevo", "nuevo", true);  // it is under way already
    GuardarComo(Ruta(nombre));
    EXPECT_EQ(EnDisco(nombre), "nuevo");
    Espera(Ruta(nombre), "nuevo", false);
    EXPECT_EQ(Caja()->Cursor(), 0);
    EXPECT_EQ(Entradas(), (QStringList{"a", "b"}));
    EXPECT_FALSE(gral->ArchivoNuevo);
    Lista()->Seleccionar(1);
    PulsarEntrada();
  }
  EXPECT_EQ(escritorio.dialogos.guardar.at(0).titulo, "Guardar archivo...");
}

TEST_F(Documentos, cancelling_the_save_dialog_keeps_the_new_text) {
  for (const bool con_archivo : {false, true}) {
    if (con_archivo) Abrir(Archivo("a", "uno"));
    PulsarIcono(1);
    Escribir("nuevo");
    GuardarComo({});
    EXPECT_TRUE(gral->ArchivoNuevo);
    Texto()->DarFoco();
    Espera("Nuevo", "nuevo", true);
    Texto()->CmdCancelar_Click();
  }
  EXPECT_EQ(EnCaja(), "uno") << "cancelling the text goes back to the file";
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
  Abrir(Ruta(""));
  IrYVolver();
  EXPECT_EQ(escritorio.mensajes.titulos.size(), 1) << "it is not tried again";
  EXPECT_EQ(Titulo(), "Archivo: ?");
  const QString a = Ruta("a");
  Abrir(a);
  EXPECT_EQ(EnDisco("a"), "") << "a listed file that is gone is made empty";
  ASSERT_EQ(::mkfifo(carpeta.EnSistema("tubo").constData(), 0600), 0);
  Escribir("X");
  for (const QString& malo : {Ruta(""), Ruta("tubo"), QString("/dev/null"), Ruta("no/existe")}) {
    Abrir(malo);
    EXPECT_EQ(escritorio.mensajes.titulos.takeLast(), "ERROR AL LEER EL ARCHIVO");
    EXPECT_FALSE(escritorio.mensajes.textos.takeLast().isEmpty());
    Espera(a, "X", true);
    EXPECT_EQ(gral->ArchivoActual, a);
  }
  Guardar();
  EXPECT_EQ(EnDisco("a"), "X");
}

TEST_F(Documentos, a_load_that_the_user_leaves_changes_nothing_and_says_nothing) {
  const QString a = Archivo("a", "texto");
  Abrir(a);
  Escribir("X");
  escritorio.esperas.seguir = [] { return false; };
  Abrir(Archivo("largo", "otro"));
  Texto()->CmdCancelar_Click();
  EXPECT_EQ(escritorio.esperas.nombres, (QStringList{"a", "largo", "a"}));
  EXPECT_TRUE(escritorio.mensajes.titulos.isEmpty());
  Espera(a, "Xtexto", true);
  EXPECT_EQ(gral->ArchivoActual, a);
  EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
}

TEST_F(Documentos, what_is_saved_and_chosen_while_another_is_read_does_not_meet_it) {
  const QString a = Archivo("a", "texto");
  Abrir(a);
  Escribir("X");
  escritorio.esperas.seguir = [&] {
    Texto()->CmdGuardar_Click();
    gral->ArchivoActual = a;
    return true;
  };
  Abrir(Archivo("largo", "otro"));
  EXPECT_EQ(EnDisco("a"), "Xtexto");
  EXPECT_EQ(EnDisco("largo"), "otro");
  Espera(Ruta("largo"), "otro", false);
}

TEST_F(Documentos, a_failed_save_keeps_the_text_and_the_mark) {
  const QString a = Archivo("a", "texto");
  Abrir(a);
  Escribir("X");
  ASSERT_TRUE(QFile::setPermissions(a, QFile::ReadOwner));
  Guardar();
  EXPECT_EQ(escritorio.mensajes.titulos, QStringList("ERROR AL GUARDAR EL ARCHIVO"));
  EXPECT_EQ(EnDisco("a"), "texto");
  ASSERT_TRUE(QFile::remove(a));
  Guardar();
  EXPECT_EQ(escritorio.mensajes.titulos.size(), 2) << "a file that has vanished";
  Espera(a, "Xtexto", true);
  EXPECT_FALSE(QFile::exists(a));
}

// A save that failed, and one whose dialog was cancelled, of a text that no file was begun for.
TEST_F(Documentos, a_first_save_that_comes_to_nothing_keeps_the_text_or_goes_back_to_the_file) {
  for (const QString& elegida : {Ruta("no/existe.txt"), QString()}) {
    Escribir("N");
    GuardarComo(elegida);
    const QByteArray antes = EnCaja();
    IrYVolver();
    Espera("Nuevo", antes, true);
    EXPECT_TRUE(gral->ArchivoNuevo);
    EXPECT_EQ(gral->ArchivoActual, "") << "cancelling the text loads nothing";
  }
  EXPECT_EQ(escritorio.mensajes.titulos.size(), 1);
  GuardarComo(Ruta("a"));
  EXPECT_EQ(EnDisco("a"), "NN");
  PulsarIcono(1);
  GuardarComo(Ruta("no/existe.txt"));
  Espera(Ruta("a"), "NN", false);
}

TEST_F(Documentos, removing_the_entry_that_is_edited_leaves_nothing_to_save) {
  Abrir(Archivo("a", "texto"));
  Escribir("X");
  TeclaEnLista(Qt::Key_Delete);
  EXPECT_FALSE(Panel());
  Caja()->Insertar("pegado");  // as the menu does: no key, so no new text
  GuardarComo({});
  Texto()->DarFoco();
  Espera("Nuevo", "pegado", true);  // a text that was to be saved is a new one
}

}  // namespace
