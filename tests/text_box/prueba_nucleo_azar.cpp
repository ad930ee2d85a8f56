#include <algorithm>
#include <exception>
#include <gtest/gtest.h>

#include <QtGlobal>

#include "text_box/azar.h"

namespace {

// Longer by hand: VELDA_AZAR=100000 seeds.
TEST(NucleoTexto, random_edits_leave_lines_rows_and_x_as_the_slow_way_finds_them) {
  const int semillas = std::max(100, qEnvironmentVariableIntValue("VELDA_AZAR"));
  for (int semilla = 1; semilla <= semillas; ++semilla) {
    Azar azar(static_cast<std::uint64_t>(semilla));
    for (int i = 0; i < 150; ++i) {
      try {
        azar.Paso();
      } catch (const std::exception& error) {
        FAIL() << "seed " << semilla << ", edit " << i << ": " << error.what();
      }
    }
  }
}

}  // namespace
