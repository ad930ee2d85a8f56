// The text: a gap buffer of bytes in an anonymous mapping.
//
// The bytes lie in one mapping of small pages with a gap at the place of the last change, so that
// typing moves nothing. Loading fills the end of the mapping in place; growing moves page tables,
// not bytes. Memory that a big removal leaves in the gap goes back to the system.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

using Posicion = std::int64_t;  // an offset in bytes from the start of the text

// One replacement: `quitados` bytes from `pos` on gave way to `puestos` new ones.
struct Cambio {
  Posicion pos = 0;
  Posicion quitados = 0;
  Posicion puestos = 0;
};

class Bytes {
 public:
  Bytes() = default;
  Bytes(Bytes&& otro) noexcept;
  Bytes& operator=(Bytes&& otro) noexcept;
  Bytes(const Bytes&) = delete;
  Bytes& operator=(const Bytes&) = delete;
  ~Bytes();

  Posicion Tamano() const { return static_cast<Posicion>(fin_ - ancho_hueco_); }
  unsigned char En(Posicion pos) const {  // 0 <= pos < Tamano()
    const auto i = static_cast<std::size_t>(pos);
    return static_cast<unsigned char>(base_[i < hueco_ ? i : i + ancho_hueco_]);
  }

  // The bytes of [desde, hasta) where they lie: one piece before the gap, one behind it; either
  // may be empty. Valid until the next change.
  std::array<std::string_view, 2> Tramos(Posicion desde, Posicion hasta) const;
  std::array<std::string_view, 2> Tramos() const { return Tramos(0, Tamano()); }
  void Copiar(Posicion desde, Posicion hasta, char* destino) const;

  // Replaces the `quitados` bytes from `pos` on by `nuevos`, which may lie in this text itself.
  // False when the system has no memory left: nothing has changed then. Without new bytes it
  // never fails.
  [[nodiscard]] bool Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos);
  void Quitar(Posicion pos, Posicion quitados);
  // Room for `n` more bytes: inserting up to that many cannot fail afterwards.
  [[nodiscard]] bool Prever(std::size_t n);

  // Loading: room for `n` more bytes at the end (empty span: no memory), then how many were
  // filled. The gap lies in front, so what is read stays where it was read.
  std::span<char> ReservarFinal(std::size_t n);
  void ConfirmarFinal(std::size_t n);

 private:
  bool Abarcar(std::size_t total);
  bool Ensanchar(std::size_t minimo);
  void MoverHueco(std::size_t pos);
  void SoltarHueco();

  char* base_ = nullptr;
  std::size_t capacidad_ = 0;    // bytes of the mapping
  std::size_t fin_ = 0;          // end of what is used: the text and its gap
  std::size_t hueco_ = 0;        // offset of the gap
  std::size_t ancho_hueco_ = 0;  // bytes of the gap
};
