#include "text_box/partidor.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <string_view>

#include "text_box/rastreo.h"

namespace {

constexpr Posicion Ventana = 64;    // bytes looked at in one go
constexpr Posicion Adelante = 256;  // bytes looked at beyond a row

// After the last blank of [desde, hasta); `desde` without one.
Posicion TrasUltimoBlanco(const Trozos& texto, Posicion desde, Posicion hasta) {
  while (hasta > desde) {
    const Posicion corte = std::max(desde, texto.InicioTrozo(hasta - 1));
    const unsigned char* bytes = texto.Desde(corte);
    const void* blanco = memrchr(bytes, ' ', static_cast<std::size_t>(hasta - corte));
    if (blanco != nullptr) return corte + (static_cast<const unsigned char*>(blanco) - bytes) + 1;
    hasta = corte;
  }
  return desde;
}

struct Vistazo {
  std::int64_t fines = 0;    // line ends that are complete in what was looked at
  Posicion tras_ultimo = 0;  // the position behind the last one
  std::int64_t tabuladores = 0;
  Posicion limpio = 0;  // from here on neither line end nor tab
};

int Contar(std::uint64_t mascara) {
  const bool pocos = (mascara & (mascara - 1)) == 0;  // none or one, as usual
  return pocos ? static_cast<int>(mascara != 0) : std::popcount(mascara);
}

Vistazo Ojear(const Trozos& texto, Posicion desde, Posicion hasta) {
  Vistazo vistazo;
  vistazo.limpio = desde;
  for (Posicion pos = desde; pos < hasta; pos += Ventana) {
    const auto n = static_cast<std::size_t>(std::min(Ventana, hasta - pos));
    const Mascaras mascaras = Mirar(texto, pos, n);
    const std::uint64_t especiales = mascaras.lf | mascaras.cr | mascaras.tab;
    if (especiales == 0) continue;
    const std::uint64_t fines = Fines(mascaras, n, texto.EnOFin(pos + static_cast<Posicion>(n)));
    vistazo.limpio = pos + Ventana - std::countl_zero(especiales);
    vistazo.tabuladores += Contar(mascaras.tab);
    vistazo.fines += Contar(fines);
    if (fines != 0) vistazo.tras_ultimo = pos + Ventana - std::countl_zero(fines);
  }
  return vistazo;
}

// The first tab or line end from `pos` on; if it is far, how far there is none.
Posicion Despejado(const Trozos& texto, Posicion pos) {
  const Posicion hasta = std::min(texto.FinTrozo(pos), pos + Adelante);
  while (pos < hasta) {
    const auto n = static_cast<std::size_t>(std::min(Ventana, hasta - pos));
    const Mascaras mascaras = Mirar(texto, pos, n);
    const std::uint64_t especiales = mascaras.lf | mascaras.cr | mascaras.tab;
    if (especiales != 0) return pos + std::countr_zero(especiales);
    pos += static_cast<Posicion>(n);
  }
  return hasta;
}

}  // namespace

Partidor::Partidor(const Avances& avances, Punto ancho, Posicion maximo_fila)
    : pluma_(avances), ancho_(ancho), maximo_fila_(maximo_fila) {
  const Punto maximo = std::max<Punto>(pluma_.Maximo(), 1);
  seguro_ = std::min<Posicion>(ancho / maximo, maximo_fila);
}

// A byte that cannot be part of the row, whatever stands behind it.
bool Partidor::Sobra(unsigned char byte, const Fila& fila) const {
  return byte > ' ' && fila.pos > fila.inicio && fila.x + pluma_.Ancho(byte) > ancho_;
}

// Puts the next `n` bytes into the row; false when the one at fila.pos must not be there.
bool Partidor::Llenar(const Trozos& texto, Fila& fila, std::size_t n) const {
  const unsigned char* bytes = texto.Desde(fila.pos);
  std::size_t i = 0;
  while (true) {
    const std::size_t caben = pluma_.Caber(bytes + i, n - i, ancho_, fila.x);
    i += caben;
    fila.pos += static_cast<Posicion>(caben);
    if (i == n) return true;
    if (bytes[i] != ' ' && fila.pos > fila.inicio) return false;
    do {
      fila.x += pluma_.Ancho(bytes[i]);
      ++i;
      ++fila.pos;
    } while (i < n && bytes[i] == ' ');
    if (i == n) return true;
  }
}

Posicion Partidor::Cortar(const Trozos& texto, const Fila& fila) {
  const Posicion corte = TrasUltimoBlanco(texto, fila.tras_tab, fila.pos);
  return corte > fila.inicio ? corte : fila.pos;
}

Posicion Partidor::Siguiente(const Trozos& texto, Posicion inicio) const {
  Posicion despejado = inicio;
  return Romper(texto, inicio, 0, despejado);
}

// As Siguiente, when the first `libres` bytes are known to fit and those up to `despejado` to be
// neither tab nor line end; what is seen of that on the way is kept there for the next row.
Posicion Partidor::Romper(const Trozos& texto, Posicion inicio, Posicion libres,
                          Posicion& despejado) const {
  const Posicion tope = std::min(texto.Total(), inicio + maximo_fila_);
  Fila fila{inicio, inicio + libres, 0, inicio};
  if (libres > 0) fila.x = pluma_.Sumar(texto.Desde(inicio), static_cast<std::size_t>(libres));
  while (fila.pos < tope) {
    if (despejado <= fila.pos) {
      if (Sobra(texto.En(fila.pos), fila)) return Cortar(texto, fila);  // often, and cheap to see
      despejado = Despejado(texto, fila.pos);
    }
    const Posicion sueltos = std::min({despejado, tope, texto.FinTrozo(fila.pos)}) - fila.pos;
    if (sueltos > 0) {
      if (!Llenar(texto, fila, static_cast<std::size_t>(sueltos))) return Cortar(texto, fila);
      continue;
    }
    if (texto.En(fila.pos) != '\t') return texto.TrasElFin(fila.pos);
    const Punto x = pluma_.Tabular(fila.x);
    if (x > ancho_ && fila.pos > fila.inicio) return fila.pos;
    fila.x = x;
    fila.tras_tab = ++fila.pos;
  }
  if (tope == texto.Total()) return -1;
  const unsigned char byte = texto.En(tope);
  return byte == '\n' || byte == '\r' ? texto.TrasElFin(tope) : tope;
}

// Several short lines go at once: within so many bytes as fit whatever they are, a row ends with
// each line and nowhere else. What was looked at and is neither line end nor tab is not looked at
// again for the next row.
Partidor::Marcha Partidor::Bajar(const Trozos& texto, Posicion inicio, Posicion hasta,
                                 std::int64_t maximo) const {
  Marcha marcha{inicio, 0};
  Posicion despejado = inicio;
  while (marcha.inicio < hasta && marcha.filas < maximo) {
    const Posicion fin = std::min({hasta, marcha.inicio + seguro_, texto.FinTrozo(marcha.inicio)});
    if (despejado - marcha.inicio < seguro_ / 2) {
      const Vistazo vistazo = Ojear(texto, std::max(despejado, marcha.inicio), fin);
      const bool caben =
          vistazo.tabuladores == 0 ||
          (fin - marcha.inicio) * pluma_.Maximo() + vistazo.tabuladores * pluma_.Tabulador() <=
              ancho_;
      if (caben && vistazo.fines > 0 && vistazo.fines <= maximo - marcha.filas) {
        marcha.inicio = vistazo.tras_ultimo;
        marcha.filas += vistazo.fines;
        despejado = vistazo.limpio <= vistazo.tras_ultimo ? fin : marcha.inicio;
        continue;
      }
      if (vistazo.fines == 0 && vistazo.limpio <= std::max(despejado, marcha.inicio)) {
        despejado = fin;
      }
    }
    const Posicion libres = std::max<Posicion>(std::min(despejado, fin) - marcha.inicio, 0);
    const Posicion siguiente = Romper(texto, marcha.inicio, libres, despejado);
    if (siguiente < 0 || siguiente > hasta) break;
    marcha.inicio = siguiente;
    ++marcha.filas;
  }
  return marcha;
}
