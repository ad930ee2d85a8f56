#include <gtest/gtest.h>
#include <string>

#include "platform/foco_propio.h"

namespace {

struct Muda final : Activable {};

// What is done and what comes of it, a letter each: "+b" foresees b, "!a" asks for a, "b?" is the
// desktop's activation of b while the program is at a, "=" it agrees, "R" the program asks again,
// "." it waits, "U" the user went there.
std::string Respuestas(const std::string& hechos) {
  Muda a;
  Muda b;
  Muda c;
  PeticionesFoco peticiones;
  std::string respuestas;
  for (std::size_t i = 0; i + 1 < hechos.size(); i += 2) {
    const bool aviso = hechos[i + 1] == '?';
    const char letra = aviso ? hechos[i] : hechos[i + 1];
    Muda& ventana = letra == 'a' ? a : letra == 'b' ? b : c;
    if (aviso) {
      respuestas += "=R.U"[static_cast<int>(peticiones.Activada(ventana, &a))];
    } else if (hechos[i] == '+') {
      peticiones.Prever(ventana);
    } else if (hechos[i] == '!') {
      peticiones.Pedir(ventana);
    } else {
      peticiones.Olvidar(ventana);
    }
  }
  return respuestas + (peticiones.Vacias() ? "" : "...");
}

TEST(PeticionesFoco, an_activation_is_told_from_the_user_s_by_what_is_still_under_way) {
  EXPECT_EQ(Respuestas("b?a?"), "U=") << "nothing is under way";
  EXPECT_EQ(Respuestas("!ab?a?b?"), ".=U") << "another one's, before the answer";
  EXPECT_EQ(Respuestas("!b!aa?b?"), "=U") << "only the last of two requests is answered";
  EXPECT_EQ(Respuestas("!b!ab?a?b?"), ".=U") << "both are, in their order";
  EXPECT_EQ(Respuestas("!a!b!ab?a?"), ".=") << "the first one is left out";
  EXPECT_EQ(Respuestas("!bb?b?"), "RU") << "what was asked for is out of date: once more";
  EXPECT_EQ(Respuestas("+bb?b?"), "RU") << "a mapped one takes the keyboard, once";
  EXPECT_EQ(Respuestas("+b!aa?b?"), "=U") << "not after the answer to what came later";
  EXPECT_EQ(Respuestas("+b!ab?"), "R...") << "but before it";
  EXPECT_EQ(Respuestas("+c!ab?a?"), ".=") << "nobody foresaw b";
  EXPECT_EQ(Respuestas("+b!b-bb?"), "U") << "closed, and there again";
}

}  // namespace
