// azar_nucleo [seed] [edits]: random edits until something is wrong.
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "text_box/azar.h"

int main(int argc, char** argv) {
  constexpr int PorSemilla = 400;
  std::uint64_t semilla = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
  const std::uint64_t cuantas = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : UINT64_MAX;
  for (std::uint64_t hechas = 0; hechas < cuantas; ++semilla) {
    Azar azar(semilla);
    for (int i = 0; i < PorSemilla && hechas < cuantas; ++i, ++hechas) {
      try {
        azar.Paso();
      } catch (const std::exception& error) {
        std::cerr << "seed " << semilla << ", edit " << i << ": " << error.what() << '\n';
        return 1;
      }
    }
    if (semilla % 500 == 0) std::cout << hechas << " edits, seed " << semilla << '\n';
  }
  return 0;
}
