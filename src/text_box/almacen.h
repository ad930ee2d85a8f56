// Memory that is written once, from front to back, and goes when nobody holds it any longer.
#pragma once

#include <cstddef>
#include <memory>
#include <span>

class Almacen {
 public:
  // A mapping of its own for at least `capacidad` bytes; null when the system has no memory left.
  static std::shared_ptr<Almacen> Hacer(std::size_t capacidad);
  Almacen(const Almacen&) = delete;
  Almacen& operator=(const Almacen&) = delete;
  ~Almacen();

  std::span<char> Libre() const { return {base_ + usados_, capacidad_ - usados_}; }
  void Usar(std::size_t n) { usados_ += n; }  // the first `n` free bytes have been written

 private:
  Almacen(char* base, std::size_t capacidad) : base_(base), capacidad_(capacidad) {}

  char* base_;
  std::size_t capacidad_;
  std::size_t usados_ = 0;
};
