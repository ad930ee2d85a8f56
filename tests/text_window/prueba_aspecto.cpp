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
    return LeerAspecto(perfil, carpeta.Escribir(QStringLiteral("Velda.INI"), ini));
  }
  QByteArrayList Escribir(const Aspecto& aspecto) {
    EscribirAspecto(perfil, carpeta.Escribir(QStringLiteral("Velda.INI"), ""), aspecto);
    return carpeta.Leer(QStringLiteral("Velda.INI")).split('\n');
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
  const QString arial = QStringLiteral("Arial");
  const struct {
    QByteArray ini;
    Aspecto esperado;
  } casos[] = {
      {"", {}},
      {"[Fuente]\nNombre=Inicial\nTama\xF1o=20\nNegrita=Si\nColor=255\n[Fondo]\nColor=255",
       Con(QStringLiteral("Courier"), 9.75, NumeroNegro, Rojo)},
      {"[Fuente]\nNombre=Arial\n[Fondo]\nColor=Inicial", Con(arial, 10)},
      {"[Fuente]\nNombre=\nTama\xF1o=8", Con(QStringLiteral("Courier"), 8)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=9,75\nColor=255", Con(arial, 9.75, Rojo)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=9.75\nColor=-2147483640",
       Con(arial, 9.75, TextoDelSistema)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=doce\nColor=&H0000FF\n[Fondo]\nColor=rojo",
       Con(arial, 10)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=-3\nColor=99999999999", Con(arial, 10)},
      {"[Fuente]\nNombre=Arial\nTama\xF1o=900000", Con(arial, 2160)},
  };
  for (const auto& caso : casos) {
    EXPECT_EQ(Leer(caso.ini), caso.esperado) << caso.ini.constData();
  }
}

TEST_F(LosAspectos, a_style_is_on_when_its_value_begins_with_si_in_that_case) {
  const FuenteTexto fuente =
      Leer("[Fuente]\nNombre=x\nNegrita=Si\nCursiva=si\nSubrayada=Sinon\nTachada=").fuente;
  EXPECT_TRUE(fuente.negrita);
  EXPECT_FALSE(fuente.cursiva);
  EXPECT_TRUE(fuente.subrayada);
  EXPECT_FALSE(fuente.tachada);
}

TEST_F(LosAspectos, values_are_written_as_blank_filled_fields_in_their_encodings) {
  const struct {
    double puntos;
    QByteArray texto;
  } tamanos[] = {{10, "10"}, {9.75, "9,75"}, {10.5, "10,5"}, {144, "144"}};
  for (const auto& [puntos, texto] : tamanos) {
    const QByteArrayList lineas = Escribir(Con(QStringLiteral("x"), puntos));
    EXPECT_TRUE(lineas.contains("Tama\xF1o=" + texto.leftJustified(100, ' ') + '\r')) << puntos;
  }
  const QByteArrayList lineas = Escribir({{{}, 10, true, false}, TextoDelSistema, NumeroBlanco});
  for (const char* linea : {"Negrita=Si", "Cursiva=No", "Color=-2147483640", "Color=16777215"}) {
    const QByteArray clave = QByteArray(linea).split('=')[0] + '=';
    const QByteArray valor = QByteArray(linea).split('=')[1].leftJustified(100, ' ');
    EXPECT_TRUE(lineas.contains(clave + valor + '\r')) << linea;
  }
}

TEST_F(LosAspectos, what_is_written_reads_back_the_same) {
  const Aspecto aspectos[] = {
      {},
      {{QStringLiteral("Letra que no está"), 9.75, true, false, true, false}, Rojo, 0x00FFFF},
      {{QStringLiteral("Arial"), 72, false, true, false, true}, TextoDelSistema, -2147483643},
  };
  for (const Aspecto& aspecto : aspectos) {
    Escribir(aspecto);
    EXPECT_EQ(LeerAspecto(perfil, carpeta.Ruta(QStringLiteral("Velda.INI"))), aspecto);
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
