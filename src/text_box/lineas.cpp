#include "text_box/lineas.h"

#include <algorithm>
#include <bit>
#include <utility>
#include <vector>

#include "text_box/lector_texto.h"
#include "text_box/rastreo.h"

namespace {

constexpr Posicion Grande = 64;  // blocks; fewer are counted again

std::int64_t Contar(const LectorTexto& texto, Posicion desde, Posicion hasta) {
  std::int64_t cuenta = 0;
  while (desde < hasta) {
    const std::string_view tramo = texto.Tramo(desde, hasta);
    desde += static_cast<Posicion>(tramo.size());
    cuenta += ContarFines(tramo, texto.EnOFin(desde));
  }
  return cuenta;
}

// The position after line end number `n` (from 0) of those complete from `desde` on; there is one.
Posicion TrasFinNumero(const LectorTexto& texto, Posicion desde, std::int64_t n) {
  constexpr Posicion Paso = 512;
  while (desde + Paso < texto.Total()) {
    const std::int64_t cuenta = Contar(texto, desde, desde + Paso);
    if (cuenta > n) break;
    n -= cuenta;
    desde += Paso;
  }
  while (true) {
    const std::string_view tramo = texto.Tramo(desde, desde + 64);
    const Mascaras mascaras = Mirar(texto, desde, tramo.size());
    const Posicion fin = desde + static_cast<Posicion>(tramo.size());
    std::uint64_t fines = Fines(mascaras, tramo.size(), texto.EnOFin(fin));
    for (; fines != 0 && n > 0; --n) fines &= fines - 1;
    if (fines != 0) return desde + std::countr_zero(fines) + 1;
    desde = fin;
  }
}

// The last line start in (desde, hasta]; -1 without one.
Posicion UltimoInicio(const LectorTexto& texto, Posicion desde, Posicion hasta) {
  while (hasta > desde) {
    const Posicion corte = std::max(desde, texto.InicioDePieza(hasta - 1));
    const std::size_t fin = UltimoFin(texto.Tramo(corte, hasta));
    if (fin == std::string_view::npos) {
      hasta = corte;
      continue;
    }
    const Posicion pos = corte + static_cast<Posicion>(fin) + 1;
    if (texto.TrasFin(pos)) return pos;
    hasta = pos - 1;
  }
  return -1;
}

// Cuts [desde, hasta) into blocks and counts them.
void Cortar(const LectorTexto& texto, Posicion desde, Posicion hasta, Posicion bloque,
            std::vector<Sumas::Bloque>& bloques) {
  const Posicion cuantos = hasta - desde <= 2 * bloque ? 1 : (hasta - desde) / bloque;
  const Posicion paso = (hasta - desde + cuantos - 1) / cuantos;
  for (; desde < hasta; desde += paso) {
    const Posicion fin = std::min(desde + paso, hasta);
    bloques.push_back({static_cast<std::uint32_t>(fin - desde),
                       static_cast<std::uint32_t>(Contar(texto, desde, fin))});
  }
}

}  // namespace

void ContadorLineas::Agregar(std::string_view bytes) {
  if (bytes.empty()) return;
  if (retorno_pendiente_ && bytes.front() != '\n') sumas_.Sumar(sumas_.Bloques() - 1, 1);
  retorno_pendiente_ = bytes.back() == '\r';
  while (!bytes.empty()) {
    const std::string_view tramo = bytes.substr(0, static_cast<std::size_t>(bloque_));
    bytes.remove_prefix(tramo.size());
    // A CR at the very end is not counted before the next byte is known.
    AgregarBloque(tramo, bytes.empty() ? '\n' : bytes.front());
  }
}

void ContadorLineas::AgregarBloque(std::string_view bytes, int siguiente) {
  Sumas::Bloque nuevo{static_cast<std::uint32_t>(bytes.size()),
                      static_cast<std::uint32_t>(ContarFines(bytes, siguiente))};
  const std::size_t n = sumas_.Bloques();
  if (n == 0 || sumas_.En(n - 1).bytes + nuevo.bytes > static_cast<std::uint32_t>(bloque_)) {
    sumas_.Agregar(nuevo);
    return;
  }
  nuevo.bytes += sumas_.En(n - 1).bytes;
  nuevo.cuenta += sumas_.En(n - 1).cuenta;
  sumas_.Sustituir(n - 1, n, {&nuevo, 1});
}

Sumas ContadorLineas::Terminar() {
  if (retorno_pendiente_) sumas_.Sumar(sumas_.Bloques() - 1, 1);
  retorno_pendiente_ = false;
  return std::exchange(sumas_, {});
}

Lineas::Lineas(const Bytes& texto, int bloque) : texto_(&texto), bloque_(bloque) {
  Recontar();
}

void Lineas::Recontar() {
  ContadorLineas contador(bloque_);
  for (const std::string_view tramo : texto_->Tramos()) contador.Agregar(tramo);
  Adoptar(contador.Terminar());
}

void Lineas::Adoptar(Sumas sumas) {
  empalme_ = {0, sumas_.Bloques(), sumas.Bloques()};
  sumas_ = std::move(sumas);
}

void Lineas::Reemplazado(const Cambio& cambio, const Extracto& puesto) {
  const Posicion antes = std::max<Posicion>(cambio.pos - 1, 0);  // a CR there looks ahead
  const Posicion ultimo = std::max(cambio.pos + cambio.quitados - 1, antes);
  std::size_t desde = sumas_.PorPosicion(antes).bloque;
  std::size_t hasta = std::min(sumas_.PorPosicion(ultimo).bloque + 1, sumas_.Bloques());
  const Posicion delta = cambio.puestos - cambio.quitados;
  const auto largo = [&] { return sumas_.Donde(hasta).bytes - sumas_.Donde(desde).bytes + delta; };
  if (largo() < bloque_ / 4) {
    if (hasta < sumas_.Bloques()) {
      ++hasta;
    } else if (desde > 0) {
      --desde;
    }
  }
  const Posicion inicio = sumas_.Donde(desde).bytes;
  const Posicion fin = inicio + largo();
  const LectorTexto texto(*texto_);
  std::vector<Sumas::Bloque> nuevos;
  Posicion contado = inicio;
  if (!puesto.bloques.empty()) {
    const Posicion conocido = cambio.pos + puesto.antes_de_bloques;
    Cortar(texto, inicio, conocido, bloque_, nuevos);
    nuevos.insert(nuevos.end(), puesto.bloques.begin(), puesto.bloques.end());
    contado = conocido;
    for (const Sumas::Bloque& bloque : puesto.bloques) contado += bloque.bytes;
  }
  Cortar(texto, contado, fin, bloque_, nuevos);
  empalme_ = {desde, hasta - desde, nuevos.size()};
  sumas_.Sustituir(desde, hasta, nuevos);
}

// Whole blocks; the last one's count may depend on what comes behind the extract.
void Lineas::Extraer(Posicion desde, Extracto& extracto) const {
  if (extracto.tamano < Grande * bloque_) return;
  const std::size_t primero = sumas_.PorPosicion(desde).bloque + 1;
  const std::size_t ultimo = sumas_.PorPosicion(desde + extracto.tamano - 1).bloque;
  if (primero >= ultimo) return;
  extracto.antes_de_bloques = sumas_.Donde(primero).bytes - desde;
  for (std::size_t i = primero; i < ultimo; ++i) extracto.bloques.push_back(sumas_.En(i));
}

std::int64_t Lineas::Linea(Posicion pos) const {
  const Sumas::BloqueSituado hallado = sumas_.PorPosicion(pos);
  return hallado.cuenta + Contar(LectorTexto(*texto_), hallado.bytes, pos);
}

Posicion Lineas::Inicio(std::int64_t linea) const {
  if (linea == 0) return 0;
  const Sumas::BloqueSituado hallado = sumas_.PorCuenta(linea - 1);
  return TrasFinNumero(LectorTexto(*texto_), hallado.bytes, linea - 1 - hallado.cuenta);
}

Posicion Lineas::InicioDe(Posicion pos) const {
  const Sumas::BloqueSituado hallado = sumas_.PorPosicion(pos);
  const Posicion inicio = UltimoInicio(LectorTexto(*texto_), hallado.bytes, pos);
  return inicio >= 0 ? inicio : Inicio(hallado.cuenta);
}

Posicion Lineas::FinDe(Posicion pos) const {
  const LectorTexto texto(*texto_);
  const Sumas::BloqueSituado hallado = sumas_.PorPosicion(pos);
  if (hallado.bloque == sumas_.Bloques()) return pos;
  if (pos > 0 && texto.En(pos) == '\n' && texto.En(pos - 1) == '\r') return pos - 1;
  const Sumas::Bloque bloque = sumas_.En(hallado.bloque);
  const Posicion fin_bloque = hallado.bytes + bloque.bytes;
  const Posicion fin = PrimerFin(texto, pos, fin_bloque);
  if (fin < fin_bloque) return fin;
  const std::int64_t linea = hallado.cuenta + bloque.cuenta;
  return linea == sumas_.Cuenta() ? texto.Total() : texto.SinFin(Inicio(linea + 1));
}

Posicion Lineas::Siguiente(Posicion pos) const {
  const Posicion fin = FinDe(pos);
  const LectorTexto texto(*texto_);
  return fin == texto.Total() ? -1 : texto.TrasElFin(fin);
}

Posicion Lineas::Anterior(Posicion pos) const {
  const Posicion inicio = InicioDe(pos);
  return inicio == 0 ? -1 : InicioDe(inicio - 1);
}
