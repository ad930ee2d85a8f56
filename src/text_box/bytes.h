// The text: a gap buffer of bytes in an anonymous mapping.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

using Posicion = std::int64_t;  // an offset in bytes from the start of the text

class Bytes {
 public:
  Bytes() = default;
  Bytes(Bytes&& otro) noexcept;
  Bytes& operator=(Bytes&& otro) noexcept;
  Bytes(const Bytes&) = delete;
  Bytes& operator=(const Bytes&) = delete;
  ~Bytes();

  Posicion Tamano() const;
  unsigned char En(Posicion pos) const;  // 0 <= pos < Tamano()

  // The bytes of [desde, hasta) where they lie: one piece before the gap, one behind it; either
  // may be empty. Valid until the next change.
  std::array<std::string_view, 2> Tramos(Posicion desde, Posicion hasta) const;
  std::array<std::string_view, 2> Tramos() const { return Tramos(0, Tamano()); }
  void Copiar(Posicion desde, Posicion hasta, char* destino) const;

  // Replaces the `quitados` bytes from `pos` on by `nuevos`, which may lie in this text itself.
  // False when the system has no memory left: nothing has changed then.
  [[nodiscard]] bool Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos);

  // Loading: room for `n` more bytes at the end (empty span: no memory), then how many were
  // filled. The gap lies in front, so what is read stays where it was read.
  std::span<char> ReservarFinal(std::size_t n);
  void ConfirmarFinal(std::size_t n);

 private:
  char* base_ = nullptr;
  std::size_t capacidad_ = 0;
  std::size_t hueco_ = 0;         // offset of the gap
  std::size_t ancho_hueco_ = 0;   // bytes of the gap
};
