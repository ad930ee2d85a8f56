// Moves a pen along bytes: a table of advances made ready for summing over long stretches. What
// is not in the table, characters of several bytes, it steps over one by one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "text_box/lector_texto.h"
#include "text_box/renglones.h"
#include "text_box/signos.h"

class Pluma {
 public:
  // What has no width of its own, a tab, a line end or a part of a character, is wider than any
  // row here.
  using Solos = std::array<std::int32_t, 256>;
  using Pares = std::array<std::int32_t, 1 << 16>;  // the sum of two bytes that stand together

  Pluma();  // every byte has no width
  explicit Pluma(const Avances& avances);

  const Avances& Tabla() const { return avances_; }
  Punto Ancho(unsigned char byte) const { return avances_.ancho[byte]; }
  Punto Maximo() const { return maximo_; }  // the widest byte; tabs and parts aside
  // Is it a part of a character of several bytes?
  bool EsParte(unsigned char byte) const { return byte >= 0x80 && signos_ != nullptr; }
  bool EsEspecial(unsigned char byte) const { return solos_[byte] == DemasiadoAncho; }
  Signos* LosSignos() const { return signos_; }  // null where a byte is a character
  Punto Tabulador() const { return avances_.tabulador; }
  Punto Tabular(Punto x) const { return (x / Tabulador() + 1) * Tabulador(); }

  // The sum over `n` bytes, none of them a tab or a part of a character.
  Punto Sumar(const unsigned char* bytes, std::size_t n) const;
  // How many of `n` bytes, up to the first special one, move the pen to no more than `limite`;
  // `x` is moved along with them.
  std::size_t Caber(const unsigned char* bytes, std::size_t n, Punto limite, Punto& x) const;

  // What follows is about text without line ends. A cluster moves the pen with its first byte.
  // A row begins anew at `desde`; where that is any place of a line, `tramo` is that of what is
  // drawn together with it.
  // The pen at `hasta` when it is at `x` at `desde`.
  Punto Medir(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x) const {
    return Medir(texto, desde, hasta, x, desde);
  }
  Punto Medir(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x,
              Posicion tramo) const;
  // The last start of a cluster in [desde, hasta], or `hasta`, where the pen is not beyond
  // `limite`, when it is at `x` at `desde`; `desde` itself when there is none.
  Renglones::Corte Hasta(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x,
                         Punto limite) const {
    return Hasta(texto, desde, hasta, x, limite, desde);
  }
  Renglones::Corte Hasta(const LectorTexto& texto, Posicion desde, Posicion hasta, Punto x,
                         Punto limite, Posicion tramo) const;

  // Of that position and the one after it, the one whose x is nearer; `ultima` is the last.
  Posicion MasCerca(const LectorTexto& texto, Renglones::Corte corte, Posicion ultima,
                    Punto x) const;
  // The start of the last cluster of [desde, hasta), which is not empty.
  Posicion Ultimo(const LectorTexto& texto, Posicion desde, Posicion hasta) const;
  // Where what is drawn together with the byte at `pos` starts.
  Posicion InicioDeTramo(const LectorTexto& texto, Posicion pos) const;
  // Does the character at `pos`, a part of which stands there, cling to the byte before it?
  bool SigueAlByte(const LectorTexto& texto, Posicion pos) const;
  Posicion Alcance() const { return signos_ == nullptr ? 0 : Signos::Alcance; }

 private:
  static constexpr std::int32_t DemasiadoAncho = 1 << 27;  // two million pixels; eight fit 32 bits

  std::size_t HastaSuelto(std::string_view tramo) const;
  Renglones::Corte Correr(const LectorTexto& texto, const Renglones::Corte& donde, Posicion hasta,
                          Punto limite) const;
  Renglones::Corte Retroceder(const LectorTexto& texto, const Renglones::Corte& donde,
                              Posicion desde) const;

  Avances avances_;
  Signos* signos_ = nullptr;
  Solos solos_{};
  std::shared_ptr<const Pares> pares_;  // only where widths differ
  Punto maximo_ = 0;
  bool uniforme_ = false;  // all bytes but tab, LF and CR are equally wide, and not 0
};
