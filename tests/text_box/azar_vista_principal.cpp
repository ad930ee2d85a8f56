// azar_vista [first seed] [how many]: random actions on the text box without an end.
#include <cstdio>
#include <cstdlib>

#include "text_box/azar_vista.h"

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  const unsigned primera = argc > 1 ? unsigned(std::atoi(argv[1])) : 1;
  const unsigned cuantas = argc > 2 ? unsigned(std::atoi(argv[2])) : ~0U;
  for (unsigned semilla = primera; semilla - primera < cuantas; ++semilla) {
    AzarVista azar(semilla);
    std::string mal;
    int paso = 0;
    for (; paso < 300 && mal.empty(); ++paso) mal = azar.Paso();
    if (mal.empty()) mal = azar.DeshacerTodo();
    if (!mal.empty()) {
      std::printf("seed %u, step %d: %s\n", semilla, paso, mal.c_str());
      return 1;
    }
    if (semilla % 10 == 0) std::printf("seed %u\n", semilla), std::fflush(stdout);
  }
  return 0;
}
