#include <QLabel>
#include <QPainter>

#include "platform/dibujos.h"
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

TEST_F(Arranque, only_a_normal_text_window_writes_its_rectangle_and_no_start_takes_another_state) {
  for (const auto& [estado, escrito] :
       {std::pair{EstadoVentana::Minimizada, "1"}, {EstadoVentana::Maximizada, "2"}}) {
    Arrancar();
    EXPECT_EQ(Texto()->Estado(), EstadoVentana::Normal) << "whatever is stored";
    Texto()->PonerEstado(estado);
    Texto()->Cerrar();
    EXPECT_EQ(ajustes.escritas, QStringList(QString("PosTam/TextoEdo=") + escrito));
  }
  EXPECT_EQ(escritorio.activacion.Activa(), principal.get());
  Abrir(Archivo("a", {}));
  EXPECT_EQ(Texto()->Estado(), EstadoVentana::Maximizada) << "later it is as it was";
}

TEST_F(Arranque, the_drawn_count_of_an_empty_list_looks_like_letters) {
  const auto* total = principal->findChild<QLabel*>("LblTotal");
  for (const int escala : {1, 2}) {
    QImage letras(total->size() * escala, QImage::Format_ARGB32_Premultiplied);
    letras.setDevicePixelRatio(escala);
    letras.fill(Qt::transparent);
    QPainter pintor(&letras);
    pintor.setFont(total->font());
    pintor.setPen(total->palette().color(QPalette::WindowText));
    pintor.drawText(QRect(QPoint(), total->size()), total->alignment(), total->text());
    pintor.end();
    const QImage dibujo = Escrito("00", total->size(), escala).toImage();
    EXPECT_EQ(dibujo.convertToFormat(letras.format()), letras) << escala;
  }
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

}  // namespace
