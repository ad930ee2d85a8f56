#include "programa.h"

namespace {

using Arranque = Programa;

TEST_F(Arranque, a_first_run_takes_the_defaults_and_writes_them_in_their_order_and_form) {
  EXPECT_EQ(principal->size(), QSize(150, 327));
  EXPECT_EQ(Titulo(), "Archivo: ?");
  EXPECT_EQ(escritorio.activacion.Activa(), Texto());
  EXPECT_TRUE(gral->opciones.Confirmar);
  principal->Cerrar();
  const QString blancos(98, u' ');
  EXPECT_EQ(ajustes.escritas.join('|'),
            "PosTam/TextoEdo=0|PosTam/TextoIzda=3200|PosTam/TextoArriba=1425|"
            "PosTam/TextoAncho=8500|PosTam/TextoAlto=7200|PosTam/PrinIzda=615|"
            "PosTam/PrinArriba=615|Inicial/Carpeta=c:\\|Opciones/Visible=Si" +
                blancos + "|Opciones/Confirmar=Si" + blancos);
}

TEST_F(Arranque, only_a_normal_text_window_writes_its_rectangle) {
  for (const auto& [estado, escrito] :
       {std::pair{EstadoVentana::Minimizada, "1"}, {EstadoVentana::Maximizada, "2"}}) {
    Arrancar();
    Texto()->PonerEstado(estado);
    Texto()->Cerrar();
    EXPECT_EQ(ajustes.escritas, QStringList(QString("PosTam/TextoEdo=") + escrito));
    ajustes.valores["PosTam/TextoEdo"] = "0";
  }
}

TEST_F(Arranque, a_stored_state_gives_way_to_normal_at_the_start_but_not_later) {
  ajustes.valores["PosTam/TextoEdo"] = "2";
  Arrancar();
  EXPECT_EQ(Texto()->Estado(), EstadoVentana::Normal);
  Texto()->PonerEstado(EstadoVentana::Maximizada);
  Texto()->Cerrar();
  Abrir(Archivo("a", {}));
  EXPECT_EQ(Texto()->Estado(), EstadoVentana::Maximizada);
}

TEST_F(Arranque, yes_is_yes_by_its_first_two_letters) {
  for (const auto& [valor, encima] :
       {std::pair{"si", false}, {"Sinon", true}, {"", false}, {"S", false}}) {
    ajustes.valores["Opciones/Visible"] = valor;
    escritorio.encima.puestas.clear();
    Arrancar();
    EXPECT_EQ(escritorio.encima.puestas, std::vector<bool>{encima}) << valor;
    principal->Cerrar();
    EXPECT_EQ(ajustes.valores["Opciones/Visible"].trimmed(), encima ? "Si" : "No");
  }
}

TEST_F(Arranque, closing_the_text_window_alone_ends_nothing_and_gives_the_focus_back) {
  principal->PonerEstado(EstadoVentana::Minimizada);
  Texto()->Cerrar();
  EXPECT_TRUE(principal->Visible());
  EXPECT_EQ(principal->Estado(), EstadoVentana::Normal);
  EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
}

}  // namespace
