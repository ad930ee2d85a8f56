#include "text_box/signos.h"

#include <utility>

void Signos::Abrir(std::size_t pagina) {
  auto nueva = std::make_unique<Pagina>();
  Llenar(static_cast<char32_t>(pagina * 256), *nueva);
  paginas_[pagina] = std::move(nueva);
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
