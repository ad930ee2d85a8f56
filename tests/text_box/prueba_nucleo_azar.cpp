#include <exception>
#include <gtest/gtest.h>

#include "text_box/azar.h"

namespace {

// The same runs for ever by hand: azar_nucleo.
TEST(NucleoTexto, random_edits_leave_lines_rows_and_x_as_the_slow_way_finds_them) {
  for (std::uint64_t semilla = 1; semilla <= 200; ++semilla) {
    Azar azar(semilla);
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
