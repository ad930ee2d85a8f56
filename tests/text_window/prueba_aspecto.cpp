#include <gtest/gtest.h>

#include "shared/carpeta_de_prueba.h"
#include "shared/perfil.h"
#include "text_window/aspecto.h"

namespace {

constexpr NumeroColor Rojo = 0x0000FF;
constexpr NumeroColor TextoDelSistema = -2147483640;  // &H80000008

class LosAspectos : public testing::Test {
 protected:
  Aspecto Leer(const QByteArray& ini) {
    return LeerAspecto(perfil, carpeta.Escribir("Velda.INI", ini));
  }

  CarpetaDePrueba carpeta;
  AccesoPerfilArchivo acceso;
  Perfil perfil{acceso};
};

Aspecto Con(const QString& nombre, double puntos, NumeroColor texto = NumeroNegro,
            NumeroColor fondo = NumeroBlanco) {
  return {{nombre, puntos}, texto, fondo};
}

TEST_F(LosAspectos, what_is_not_stored_or_no_number_takes_its_default) {
  const QString arial = "Arial";
  const struct {
    QByteArray ini;
    Aspecto esperado;
  } casos[] = {
      {"", {}},
      {"[Fuente]\nNombre=Inicial\nTama\xF1o=20\nNegrita=Si\nColor=255\n[Fondo]\nColor=255",
       Con("Courier", 9.75, NumeroNegro, Rojo)},
      {"[Fuente]\nNombre=\nTama\xF1o=8", Con("Courier", 8)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=9.75\nColor=-2147483640",
       Con(arial, 9.75, TextoDelSistema)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=doce\nColor=&H0000FF\n[Fondo]\nColor=rojo",
       Con(arial, 10)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=900000", Con(arial, 2160)},
      {"[Fuente]\nNombre=inicial", Con("inicial", 10)},
      {"[Fuente]\nNombre=Arial\nNegrita=Si\nCursiva=si\nSubrayada=Sinon\nTachada=",
       {{"Arial", 10, true, false, true, false}}},
  };
  for (const auto& caso : casos) EXPECT_EQ(Leer(caso.ini), caso.esperado) << caso.ini.constData();
}

TEST_F(LosAspectos, what_is_written_is_read_back_the_same) {
  for (const Aspecto& aspecto :
       {Aspecto{},
        {{"Letra que no está", 10.5, true, false, true, false}, Rojo, 0x00FFFF},
        {{"Arial", 144, false, true, false, true}, TextoDelSistema, -2147483643}}) {
    EscribirAspecto(perfil, carpeta.Ruta("Velda.INI"), aspecto);
    EXPECT_EQ(LeerAspecto(perfil, carpeta.Ruta("Velda.INI")), aspecto);
  }
  const QByteArrayList lineas = carpeta.Leer("Velda.INI").split('\n');
  for (const QByteArray& valor : {QByteArray("Nombre=Arial"), QByteArray("Tama\xF1o=144"),
                                  QByteArray("Cursiva=Si"), QByteArray("Color=-2147483640")}) {
    const qsizetype campo = valor.indexOf('=') + 101;
    EXPECT_TRUE(lineas.contains(valor.leftJustified(campo, ' ') + '\r')) << valor.constData();
  }
}

TEST(LosColores, red_is_the_lowest_byte_and_a_negative_number_is_a_colour_of_the_system) {
  QPalette paleta;
  paleta.setColor(QPalette::Base, Qt::cyan);
  paleta.setColor(QPalette::Text, Qt::magenta);
  const auto color = [&](NumeroColor numero) { return ColorDe(numero, paleta, QPalette::Text); };
  EXPECT_EQ(color(Rojo), QColor(Qt::red));
  EXPECT_EQ(color(0xFF0000), QColor(Qt::blue));
  EXPECT_EQ(color(0x123456), QColor(0x56, 0x34, 0x12));
  EXPECT_EQ(NumeroDe(color(0x123456)), 0x123456);
  EXPECT_EQ(color(-2147483643), QColor(Qt::cyan)) << "the background of windows";
  EXPECT_EQ(color(-1), QColor(Qt::magenta)) << "none of the system's";
}

}  // namespace
