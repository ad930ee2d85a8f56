#include "text_box/signos.h"

#include <algorithm>
#include <utility>

void Signos::Abrir(std::size_t pagina) {
  auto nueva = std::make_unique<Pagina>();
  Llenar(static_cast<char32_t>(pagina * 256), *nueva);
  paginas_[pagina] = std::move(nueva);
}

namespace {

constexpr bool EsCola(unsigned char byte) {
  return (byte & 0xc0) == 0x80;
}

// As Utf8::Leer, of four bytes and more; most characters need no more than this.
inline Utf8::Caracter LeerPronto(const unsigned char* b) {
  if (b[0] >= 0xc2 && b[0] < 0xe0 && EsCola(b[1])) {
    return {static_cast<char32_t>((b[0] & 0x1fU) << 6 | (b[1] & 0x3fU)), 2};
  }
  const bool de_tres = b[0] > 0xe0 && b[0] < 0xf0 && b[0] != 0xed;
  if (de_tres && EsCola(b[1]) && EsCola(b[2])) {
    return {static_cast<char32_t>((b[0] & 0xfU) << 12 | (b[1] & 0x3fU) << 6 | (b[2] & 0x3fU)), 3};
  }
  return Utf8::Leer(b, Utf8::Mayor);
}

}  // namespace

Signos::Carrera Signos::Correr(const unsigned char* bytes, std::size_t n, Punto x, Punto limite) {
  Carrera carrera{0, x, 0, nullptr};
  if (n < Utf8::Mayor) return carrera;
  Utf8::Caracter caracter = LeerPronto(bytes);
  const Signo* signo = &De(caracter.codigo);
  std::size_t corte = 0;  // before this character
  while (signo->clase == Clase::Simple && carrera.x + signo->ancho <= limite) {
    const std::size_t fin = carrera.bytes + caracter.largo;
    if (fin + Utf8::Mayor > n) break;
    const Signo* siguiente = nullptr;
    if (bytes[fin] >= 0x80) {
      caracter = LeerPronto(bytes + fin);
      siguiente = &De(caracter.codigo);
      if (Pegado(*signo, *siguiente)) break;
    }
    carrera = {fin, carrera.x + signo->ancho, std::max(carrera.corte, corte), signo};
    if (siguiente == nullptr) break;
    corte = Rompible(*signo, *siguiente) ? fin : 0;
    signo = siguiente;
  }
  return carrera;
}

Posicion Signos::InicioDeTramo(const LectorTexto& texto, Posicion pos) {
  if (pos == 0 || pos >= texto.Total() || texto.En(pos) < 0x80) return pos;
  Posicion inicio = Utf8::Inicio(texto, pos);
  const Signo* signo = &De(Utf8::Leer(texto, inicio).codigo);
  for (std::size_t i = 0; i < 4 * MaximoTramo && inicio > 0; ++i) {
    const Posicion anterior = Utf8::Inicio(texto, inicio - 1);
    const Signo& antes = De(Utf8::Leer(texto, anterior).codigo);
    if (!Pegado(antes, *signo)) break;
    inicio = anterior;
    signo = &antes;
    if (texto.En(inicio) < 0x80) break;
  }
  return inicio;
}

bool Paseo::SeguirTramo() {
  desde_ = hasta_;
  hasta_ += racimos_.front().bytes;
  ancho_ = racimos_.front().ancho;
  signo_ = &signos_.De(Utf8::Leer(texto_, desde_).codigo);
  racimos_ = racimos_.subspan(1);
  return true;
}

// Reads on as far as characters belong together, and measures them.
void Paseo::Componer() {
  const Signos::Signo* ultimo = signo_;
  for (std::size_t n = 1; n < Signos::MaximoTramo; ++n) {
    if (largo_ == 0 || !Signos::Pegado(*ultimo, *proximo_)) break;
    ultimo = proximo_;
    fin_tramo_ += largo_;
    Asomarse();
  }
  std::string bytes;
  for (Posicion pos = desde_; pos < fin_tramo_;) {
    const std::string_view tramo = texto_.Tramo(pos, fin_tramo_);
    bytes += tramo;
    pos += static_cast<Posicion>(tramo.size());
  }
  racimos_ = signos_.Medir(bytes);
  hasta_ = desde_;
  SeguirTramo();
}
