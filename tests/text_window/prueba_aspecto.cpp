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

TEST_F(LosAspectos, what_is_not_stored_or_no_number_takes_its_default_and_the_rest_comes_back) {
  const Aspecto normal;
  const std::vector<std::pair<QByteArray, Aspecto>> casos{
      {"", normal},
      {"[Fuente]\nNombre=Inicial\nTama\xF1o=20\nColor=255\n[Fondo]\nColor=255",
       {normal.fuente, normal.texto, Rojo}},
      {"[Fuente]\nNombre=\nTama\xF1o=8", {{"Courier", 8}}},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=doce\nColor=&H0000FF\n[Fondo]\nColor=x", {{"Arial", 10}}},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=900000\nColor=-2147483640",
       {{"Arial", 2160}, TextoDelSistema}},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=9.75\nNegrita=Si\nCursiva=si\nSubrayada=Sinon\nTachada=",
       {{"Arial", 9.75, true, false, true, false}}}};
  for (const auto& [ini, esperado] : casos) {
    EXPECT_EQ(Leer(ini), esperado) << ini.constData();
    EscribirAspecto(perfil, carpeta.Ruta("Velda.INI"), esperado);
    EXPECT_EQ(LeerAspecto(perfil, carpeta.Ruta("Velda.INI")), esperado);
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
