// What the characters beyond ASCII do to the pen, in a text of several bytes a character.
//
// Most of them stand alone and have one width in a font: a table says it. Those that are drawn
// together (a letter with its marks, a joined emoji, the letters of a word in a joining script)
// are measured together, and say how wide each cluster of them is.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "text_box/lector_texto.h"
#include "text_box/renglones.h"
#include "text_box/utf8.h"

class Signos {
 public:
  enum class Clase : std::uint8_t {
    Simple,    // alone, unless something clings to it
    Control,   // alone
    Sigue,     // clings to what stands before it
    Une,       // so does this, and what follows clings to it
    Complejo,  // is drawn together with others of its kind
  };
  // Where a row may be broken beside it, blanks aside.
  enum Corte : std::uint8_t { Ideograma = 1, TrasIdeograma = 2, AnteIdeograma = 4 };
  struct Signo {
    std::int32_t ancho = 0;  // points
    Clase clase = Clase::Simple;
    std::uint8_t cortes = 0;
  };
  using Pagina = std::array<Signo, 256>;
  // A cluster: the caret stands before or behind it, a row is never broken inside.
  struct Racimo {
    std::uint16_t bytes = 0;
    std::int32_t ancho = 0;
  };
  static constexpr std::size_t MaximoTramo = 64;  // characters that are measured together
  // So many bytes away nothing changes what is measured here.
  static constexpr Posicion Alcance = 8 * MaximoTramo * Utf8::Mayor;

  virtual ~Signos() = default;
  const Signo& De(char32_t codigo) {
    auto& pagina = paginas_[codigo / 256];
    if (!pagina) Abrir(codigo / 256);
    return (*pagina)[codigo % 256];
  }
  // The clusters of characters that are drawn together, in their order; until it is called again.
  virtual std::span<const Racimo> Medir(std::string_view tramo) = 0;

  static bool Pegado(const Signo& antes, const Signo& signo) {
    if (antes.clase == Clase::Control || signo.clase == Clase::Control) return false;
    if (signo.clase == Clase::Sigue || signo.clase == Clase::Une || antes.clase == Clase::Une) {
      return true;
    }
    return signo.clase == Clase::Complejo && antes.clase != Clase::Simple;
  }
  static bool Rompible(const Signo& antes, const Signo& signo) {
    return ((antes.cortes & Ideograma) != 0 && (signo.cortes & TrasIdeograma) != 0) ||
           ((signo.cortes & Ideograma) != 0 && (antes.cortes & AnteIdeograma) != 0);
  }
  // The fast road over characters that stand alone, up to the next byte of ASCII: how many bytes of
  // the `n` move the pen, which is at `x`, to no more than `limite`. May stop before that.
  struct Carrera {
    std::size_t bytes = 0;
    Punto x = 0;
    std::size_t corte = 0;          // the last place where a row may be broken; 0 without one
    const Signo* ultimo = nullptr;  // the last character
  };
  Carrera Correr(const unsigned char* bytes, std::size_t n, Punto x, Punto limite);
  // Where what is drawn together with the byte at `pos` starts: there, or a little before.
  Posicion InicioDeTramo(const LectorTexto& texto, Posicion pos);

 protected:
  // The 256 characters from `primero` on.
  virtual void Llenar(char32_t primero, Pagina& pagina) = 0;

 private:
  void Abrir(std::size_t pagina);

  std::array<std::unique_ptr<Pagina>, 0x1100> paginas_;
};

// Walks from one cluster to the next, over characters that are not ASCII; the first may be.
class Paseo {
 public:
  Paseo(Signos& signos, const LectorTexto& texto, Posicion pos)
      : signos_(signos), texto_(texto), hasta_(pos), fin_tramo_(pos) {
    const Utf8::Caracter primero = Utf8::Leer(texto, pos);
    proximo_ = &signos.De(primero.codigo);
    largo_ = primero.largo;
    Seguir();
  }

  Posicion Desde() const { return desde_; }
  Posicion Hasta() const { return hasta_; }
  std::int32_t Ancho() const { return ancho_; }
  const Signos::Signo& Primero() const { return *signo_; }  // the cluster's first character

  // False where the next character is ASCII, or the text ends.
  bool Seguir() {
    if (hasta_ < fin_tramo_) return SeguirTramo();
    if (largo_ == 0) return false;
    desde_ = hasta_;
    signo_ = proximo_;
    ancho_ = signo_->ancho;
    hasta_ = fin_tramo_ = desde_ + largo_;
    Asomarse();
    if (largo_ != 0 && Signos::Pegado(*signo_, *proximo_)) Componer();
    return true;
  }

 private:
  // The character behind what was read.
  void Asomarse() {
    largo_ = 0;
    if (fin_tramo_ >= texto_.Total() || texto_.En(fin_tramo_) < 0x80) return;
    const Utf8::Caracter caracter = Utf8::Leer(texto_, fin_tramo_);
    proximo_ = &signos_.De(caracter.codigo);
    largo_ = caracter.largo;
  }
  bool SeguirTramo();
  void Componer();

  Signos& signos_;
  const LectorTexto& texto_;
  Posicion desde_ = 0;
  Posicion hasta_;
  Posicion fin_tramo_;
  std::int32_t ancho_ = 0;
  std::uint8_t largo_ = 0;  // of the next character; 0 without one
  const Signos::Signo* signo_ = nullptr;
  const Signos::Signo* proximo_ = nullptr;
  std::span<const Signos::Racimo> racimos_;  // of a stretch, those that are still to come
};
