#include "text_box/bytes.h"

#include <algorithm>
#include <cstring>
#include <sys/mman.h>
#include <utility>

namespace {

constexpr std::size_t Pagina = 4096;
constexpr std::size_t HuecoInicial = 64 * 1024;
constexpr std::size_t HuecoGrande = std::size_t{1} << 20;  // from here on its memory is given back

std::size_t EnPaginas(std::size_t bytes) {
  return (bytes + Pagina - 1) / Pagina * Pagina;
}

std::size_t Holgura(std::size_t total) {
  return std::max(HuecoInicial, total / 16);
}

}  // namespace

Bytes::Bytes(Bytes&& otro) noexcept {
  *this = std::move(otro);
}

Bytes& Bytes::operator=(Bytes&& otro) noexcept {
  std::swap(base_, otro.base_);
  std::swap(capacidad_, otro.capacidad_);
  std::swap(fin_, otro.fin_);
  std::swap(hueco_, otro.hueco_);
  std::swap(ancho_hueco_, otro.ancho_hueco_);
  return *this;
}

Bytes::~Bytes() {
  if (base_ != nullptr) munmap(base_, capacidad_);
}

std::array<std::string_view, 2> Bytes::Tramos(Posicion desde, Posicion hasta) const {
  const auto primero = static_cast<std::size_t>(desde);
  const auto ultimo = static_cast<std::size_t>(hasta);
  const std::size_t corte = std::clamp(hueco_, primero, ultimo);
  return {std::string_view(base_ + primero, corte - primero),
          std::string_view(base_ + corte + ancho_hueco_, ultimo - corte)};
}

void Bytes::Copiar(Posicion desde, Posicion hasta, char* destino) const {
  for (const std::string_view tramo : Tramos(desde, hasta))
    destino = std::copy(tramo.begin(), tramo.end(), destino);
}

bool Bytes::Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos) {
  const auto direccion = reinterpret_cast<std::uintptr_t>(nuevos.data());
  const auto base = reinterpret_cast<std::uintptr_t>(base_);
  if (!nuevos.empty() && direccion - base < fin_) {  // from this text itself
    Bytes copia;
    if (!copia.Reemplazar(0, 0, nuevos)) return false;
    return Reemplazar(pos, quitados, copia.Tramos()[0]);
  }
  if (!Prever(nuevos.size())) return false;
  const auto inicio = static_cast<std::size_t>(pos);
  MoverHueco(inicio);
  if (!nuevos.empty()) std::memcpy(base_ + inicio, nuevos.data(), nuevos.size());
  hueco_ += nuevos.size();
  ancho_hueco_ -= nuevos.size();
  Quitar(static_cast<Posicion>(hueco_), quitados);
  return true;
}

void Bytes::Quitar(Posicion pos, Posicion quitados) {
  if (quitados == 0) return;
  MoverHueco(static_cast<std::size_t>(pos));
  ancho_hueco_ += static_cast<std::size_t>(quitados);
  if (static_cast<std::size_t>(quitados) >= HuecoGrande) SoltarHueco();
}

bool Bytes::Prever(std::size_t n) {
  return n <= ancho_hueco_ || Ensanchar(n);
}

std::span<char> Bytes::ReservarFinal(std::size_t n) {
  const std::size_t hueco = base_ == nullptr ? HuecoInicial : 0;
  const std::size_t total = fin_ + hueco + n;
  if (total > capacidad_ && !Abarcar(base_ == nullptr ? total : total + Holgura(total))) return {};
  if (hueco > 0) fin_ = ancho_hueco_ = hueco;
  return {base_ + fin_, n};
}

void Bytes::ConfirmarFinal(std::size_t n) {
  fin_ += n;
}

// Makes the mapping hold at least `total` bytes. What is there keeps its offsets.
bool Bytes::Abarcar(std::size_t total) {
  if (total <= capacidad_) return true;
  const std::size_t nueva = EnPaginas(total);
  void* donde = base_ == nullptr ? mmap(nullptr, nueva, PROT_READ | PROT_WRITE,
                                        MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)
                                 : mremap(base_, capacidad_, nueva, MREMAP_MAYMOVE);
  if (donde == MAP_FAILED) return false;
  // Huge pages are cleared whole when first touched: dear for the few bytes that come in.
  madvise(donde, nueva, MADV_NOHUGEPAGE);
  base_ = static_cast<char*>(donde);
  capacidad_ = nueva;
  return true;
}

// Makes the gap hold at least `minimo` bytes, and a sixteenth of the text, so that growing byte by
// byte stays cheap.
bool Bytes::Ensanchar(std::size_t minimo) {
  const std::size_t texto = fin_ - ancho_hueco_;
  const std::size_t ancho = minimo + Holgura(texto + minimo);
  if (!Abarcar(texto + ancho)) return false;
  const std::size_t despues = hueco_ + ancho_hueco_;
  std::memmove(base_ + hueco_ + ancho, base_ + despues, fin_ - despues);
  fin_ = texto + ancho;
  ancho_hueco_ = ancho;
  return true;
}

void Bytes::MoverHueco(std::size_t pos) {
  if (pos == hueco_) return;
  char* const hueco = base_ + hueco_;
  const std::size_t movidos = pos < hueco_ ? hueco_ - pos : pos - hueco_;
  if (pos < hueco_) {
    std::memmove(hueco + ancho_hueco_ - movidos, hueco - movidos, movidos);
  } else {
    std::memmove(hueco, hueco + ancho_hueco_, movidos);
  }
  hueco_ = pos;
  if (ancho_hueco_ >= HuecoGrande && movidos >= HuecoGrande) SoltarHueco();
}

// Gives the gap's whole pages back to the system, but for a little to type into.
void Bytes::SoltarHueco() {
  const std::size_t desde = EnPaginas(hueco_ + HuecoInicial);
  const std::size_t hasta = (hueco_ + ancho_hueco_) / Pagina * Pagina;
  if (desde < hasta) madvise(base_ + desde, hasta - desde, MADV_DONTNEED);
}
