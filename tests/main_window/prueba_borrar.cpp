#include <functional>

#include <QCheckBox>

#include "about_window/frm_autor.h"
#include "delete_window/frm_borrar.h"
#include "programa.h"

namespace {

using Paso = std::function<void(FrmBorrar&)>;

class Borrar : public Programa {
 protected:
  void SetUp() override {
    // A program that ended earlier in this process would end every loop of this one at once.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    Arrancar();
  }
  // Runs the command; `paso` happens while the confirmation is open. False: it never was.
  bool Confirmando(const Paso& paso) {
    bool abierta = false;
    QObject mientras;
    QTimer::singleShot(0, &mientras, [&] {
      auto* confirmacion = qobject_cast<FrmBorrar*>(QApplication::activeModalWidget());
      ASSERT_NE(confirmacion, nullptr);
      abierta = true;
      EXPECT_EQ(escritorio.activacion.Activa(), confirmacion);
      paso(*confirmacion);
      if (confirmacion->Visible()) confirmacion->Cerrar();
    });
    principal->ImgMenu_Click(2);
    return abierta;
  }
};

const Paso Cerrando = [](FrmBorrar& confirmacion) { confirmacion.windowHandle()->close(); };
Paso Pulsando(int boton) {
  return [boton](FrmBorrar& confirmacion) { confirmacion.CmdBorrar_Click(boton); };
}

TEST_F(Borrar, each_choice_does_what_it_says) {
  AbrirTodos({"a", "c", "b"});
  struct Caso {
    Paso paso;
    QString enviada;
    QString quedan;
    QString actual;
  };
  for (const Caso& caso :
       {Caso{Cerrando, {}, "a b c", "b"}, Caso{Pulsando(2), {}, "a b c", "b"},
        Caso{Pulsando(1), {}, "a c", "a"}, Caso{Pulsando(0), Ruta("a"), "c", "c"}}) {
    EXPECT_TRUE(Confirmando(caso.paso));
    EXPECT_EQ(escritorio.papelera.enviadas.value(0), caso.enviada);
    EXPECT_EQ(Entradas().join(u' '), caso.quedan);
    EXPECT_EQ(gral->ArchivoActual, Ruta(caso.actual));
    EXPECT_EQ(EnCaja(), caso.actual.toLatin1()) << "the text window follows";
    EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
    EXPECT_EQ(gral->AccionBorrar, AccionNada);
  }
  EXPECT_EQ(EnDisco("b"), "b") << "only off the list";
}

TEST_F(Borrar, ticking_the_box_turns_the_question_off_for_the_next) {
  AbrirTodos({"a", "ñ con blancos"});
  for (const bool pregunta : {true, false}) {
    EXPECT_EQ(Confirmando([](FrmBorrar& confirmacion) {
                confirmacion.findChild<QCheckBox*>()->setChecked(true);
                confirmacion.CmdBorrar_Click(0);
              }),
              pregunta);
  }
  EXPECT_EQ(escritorio.papelera.enviadas, QStringList({Ruta("ñ con blancos"), Ruta("a")}));
  EXPECT_EQ(Entradas(), QStringList());
  EXPECT_EQ(Titulo(), "Archivo: ?");
  EXPECT_FALSE(Confirmando(Cerrando)) << "nothing is open";
  AbrirTodos({"a"});
  Lista()->clearSelection();
  EXPECT_FALSE(Confirmando(Cerrando));
  EXPECT_EQ(escritorio.mensajes.textos.join('|'),
            "NO HAY ARCHIVOS ABIERTOS|Seleccione el archivo a eliminar");
  EXPECT_EQ(escritorio.mensajes.titulos[1], "IMPOSIBLE ELIMINAR");
  principal->Cerrar();
  EXPECT_EQ(ajustes.valores["Opciones/Confirmar"].trimmed(), "No");
}

TEST_F(Borrar, a_file_is_erased_for_good_only_when_the_user_says_so) {
  AbrirTodos({"a", "c", "b"});
  gral->opciones.Confirmar = false;
  struct Caso {
    Envio envio;
    bool respuesta;
    int preguntas;
    QStringList eliminadas;
  };
  for (const Caso& caso : {Caso{Envio::SinPapelera, false, 1, {}}, Caso{Envio::Fallo, true, 1, {}},
                           Caso{Envio::SinPapelera, true, 2, {Ruta("c")}}}) {
    escritorio.papelera.respuesta = caso.envio;
    escritorio.mensajes.respuesta = caso.respuesta;
    principal->ImgMenu_Click(2);
    EXPECT_EQ(escritorio.mensajes.textos.size(), caso.preguntas);
    EXPECT_EQ(escritorio.papelera.eliminadas, caso.eliminadas);
  }
  EXPECT_TRUE(escritorio.mensajes.textos[0].contains(Ruta("b")));
  EXPECT_EQ(Entradas(), QStringList()) << "the entries leave in every case";
}

TEST_F(Borrar, the_about_window_is_one_and_opens_anew_after_it_was_closed) {
  principal->ImgMenu_Click(1);  // also while a new text is under way
  principal->ImgMenu_Click(3);
  auto* autor = dynamic_cast<FrmAutor*>(escritorio.activacion.Activa());
  ASSERT_NE(autor, nullptr);
  autor->CmdAutor_MouseMove(1);
  autor->PonerEstado(EstadoVentana::Minimizada);
  principal->DarFoco();
  principal->ImgMenu_Click(3);
  EXPECT_EQ(escritorio.activacion.Activa(), autor) << "brought forward";
  EXPECT_EQ(autor->Estado(), EstadoVentana::Normal);
  EXPECT_TRUE(autor->Titulo().startsWith(u"En"));
  autor->windowHandle()->close();
  principal->ImgMenu_Click(3);
  EXPECT_EQ(escritorio.activacion.Activa()->Titulo(), "Información sobre el programa...");
}

}  // namespace
