#include <gtest/gtest.h>

#include "text_box/azar_vista.h"

TEST(AzarVista, after_any_action_the_screen_is_that_of_a_fresh_box) {
  const int semillas = std::max(6, qEnvironmentVariableIntValue("VELDA_AZAR"));
  for (int semilla = 1; semilla <= semillas; ++semilla) {
    AzarVista azar(static_cast<unsigned>(semilla));
    for (int paso = 0; paso < 60; ++paso) {
      ASSERT_EQ(azar.Paso(), "") << "seed " << semilla << " step " << paso;
    }
    ASSERT_EQ(azar.DeshacerTodo(), "") << "seed " << semilla;
  }
}
