#include "text_box/almacen.h"

#include <sys/mman.h>

namespace {

constexpr std::size_t Pagina = 4096;
constexpr std::size_t PaginaGrande = std::size_t{2} << 20;

}  // namespace

std::shared_ptr<Almacen> Almacen::Hacer(std::size_t capacidad) {
  const std::size_t paginas = (capacidad + Pagina - 1) / Pagina * Pagina;
  void* const base =
      mmap(nullptr, paginas, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (base == MAP_FAILED) return nullptr;
  // Filled from end to end and freed at once: both are quicker by large pages.
  if (paginas >= 2 * PaginaGrande) madvise(base, paginas, MADV_HUGEPAGE);
  return std::shared_ptr<Almacen>(new Almacen(static_cast<char*>(base), paginas));
}

Almacen::~Almacen() {
  munmap(base_, capacidad_);
}
