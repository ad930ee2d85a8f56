#include <algorithm>
#include <unistd.h>

#include "shared/carpeta_de_prueba.h"
#include "shared/orden.h"

namespace {

TEST(OrdenNombres, names_stand_in_spanish_order_whatever_their_case) {
  const QStringList ordenados{"árbol", "Banco", "nudo", "Ñandú", "ñu", "oso", "zorro"};
  QStringList nombres = ordenados;
  std::reverse(nombres.begin(), nombres.end());
  const OrdenNombres orden;
  std::sort(nombres.begin(), nombres.end(),
            [&](const QString& a, const QString& b) { return orden.Menor(a, b); });
  EXPECT_EQ(nombres, ordenados);
}

TEST(OrdenNombres, only_the_same_text_compares_equal) {
  const OrdenNombres orden;
  EXPECT_EQ(orden.Comparar("casa.txt", "casa.txt"), 0);
  EXPECT_LT(orden.Comparar("Casa.txt", "casa.txt"), 0);
  EXPECT_GT(orden.Comparar("casa.txt", "Casa.txt"), 0);
  EXPECT_LT(orden.Clave("CASA").compare(orden.Clave("cosa")), 0);
}

TEST(MismoArchivo, letter_case_parts_paths_only_when_both_exist) {
  const CarpetaDePrueba carpeta;
  const auto mismo = [&](const char* a, const char* b) {
    return MismoArchivo(carpeta.Ruta(a), carpeta.Ruta(b));
  };
  EXPECT_TRUE(mismo("Año.txt", "AÑO.TXT"));
  EXPECT_FALSE(mismo("uno.txt", "dos.txt"));
  carpeta.Escribir("Año.txt", "");
  EXPECT_TRUE(mismo("Año.txt", "AÑO.TXT"));
  ASSERT_EQ(
      ::link(carpeta.EnSistema("Año.txt").constData(), carpeta.EnSistema("año.txt").constData()),
      0);
  EXPECT_TRUE(mismo("Año.txt", "año.txt")) << "two names of one file";
  carpeta.Escribir("AÑO.TXT", "");
  EXPECT_FALSE(mismo("Año.txt", "AÑO.TXT"));
  EXPECT_TRUE(mismo("Año.txt", "Año.txt"));
}

}  // namespace
