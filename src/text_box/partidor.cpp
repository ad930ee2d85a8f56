#include "text_box/partidor.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <string_view>

#include "text_box/rastreo.h"

namespace {

constexpr Posicion Ventana = 64;  // bytes looked at in one go

// After the last blank of [desde, hasta); `desde` without one.
Posicion TrasUltimoBlanco(const LectorTexto& texto, Posicion desde, Posicion hasta) {
  while (hasta > desde) {
    const Posicion corte = std::max(desde, texto.InicioDePieza(hasta - 1));
    const unsigned char* bytes = texto.Desde(corte);
    const void* blanco = memrchr(bytes, ' ', static_cast<std::size_t>(hasta - corte));
    if (blanco != nullptr) return corte + (static_cast<const unsigned char*>(blanco) - bytes) + 1;
    hasta = corte;
  }
  return desde;
}

struct Vistazo {
  Posicion limpio = 0;       // from here on neither line end nor tab
  std::int64_t fines = 0;    // line ends that are complete in what was looked at
  Posicion tras_ultimo = 0;  // the position behind the last one
  std::int64_t tabuladores = 0;
  bool altos = false;  // bytes from 80 on
};

int Contar(std::uint64_t mascara) {
  const bool pocos = (mascara & (mascara - 1)) == 0;  // none or one, as usual
  return pocos ? static_cast<int>(mascara != 0) : std::popcount(mascara);
}

Vistazo Ojear(const LectorTexto& texto, Posicion desde, Posicion hasta) {
  Vistazo vistazo;
  vistazo.limpio = desde;
  for (Posicion pos = desde; pos < hasta; pos += Ventana) {
    const auto n = static_cast<std::size_t>(std::min(Ventana, hasta - pos));
    const Mascaras mascaras = Mirar(texto, pos, n);
    vistazo.altos |= mascaras.alto;
    const std::uint64_t especiales = mascaras.lf | mascaras.cr | mascaras.tab;
    if (especiales == 0) continue;
    vistazo.limpio = pos + Ventana - std::countl_zero(especiales);
    const std::uint64_t fines = Fines(mascaras, n, texto.EnOFin(pos + static_cast<Posicion>(n)));
    vistazo.tabuladores += Contar(mascaras.tab);
    vistazo.fines += Contar(fines);
    if (fines != 0) vistazo.tras_ultimo = pos + Ventana - std::countl_zero(fines);
  }
  return vistazo;
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

// Puts the next `n` bytes into the row, up to a tab or line end; false when the one at fila.pos
// must not be there.
bool Partidor::Llenar(const LectorTexto& texto, Fila& fila, std::size_t n) const {
  const unsigned char* bytes = texto.Desde(fila.pos);
  std::size_t i = 0;
  while (true) {
    const std::size_t caben = pluma_.Caber(bytes + i, n - i, ancho_, fila.x);
    i += caben;
    fila.pos += static_cast<Posicion>(caben);
    if (i == n || pluma_.EsEspecial(bytes[i])) return true;
    if (bytes[i] != ' ' && fila.pos > fila.inicio) return false;
    do {
      fila.x += pluma_.Ancho(bytes[i]);
      ++i;
      ++fila.pos;
    } while (i < n && bytes[i] == ' ');
    if (i == n) return true;
  }
}

// Does what comes next cling to the row's last byte?
bool Partidor::Pegado(const LectorTexto& texto, const Fila& fila) const {
  return fila.pos > fila.tras_tab && texto.En(fila.pos - 1) < 0x80 &&
         pluma_.SigueAlByte(texto, fila.pos);
}

// Puts the next characters of several bytes into the row, with the byte before to which the first
// of them may cling; false where fila.pos must not be there.
bool Partidor::LlenarSignos(const LectorTexto& texto, Fila& fila, Posicion tope) const {
  Signos& signos = *pluma_.LosSignos();
  if (Pegado(texto, fila)) {
    --fila.pos;
    fila.x -= pluma_.Ancho(texto.En(fila.pos));
  }
  const Signos::Signo* antes = nullptr;
  if (fila.pos > fila.inicio && texto.En(fila.pos - 1) < 0x80) {
    antes = &signos.De(texto.En(fila.pos - 1));
  }
  if (texto.En(fila.pos) >= 0x80) {
    antes = CorrerSignos(texto, fila, tope, antes);
    if (texto.EnOFin(fila.pos) < 0x80) return TrasSignos(texto, fila, antes);
  }
  Paseo paseo(signos, texto, fila.pos);
  do {
    if (antes != nullptr && Signos::Rompible(*antes, paseo.Primero())) fila.corte = fila.pos;
    antes = &paseo.Primero();
    if (fila.pos > fila.inicio) {
      if (fila.x + paseo.Ancho() > ancho_) return false;
      if (paseo.Hasta() > tope) {
        fila.corte = fila.pos;
        return false;
      }
    }
    fila.x += paseo.Ancho();
    fila.pos = paseo.Hasta();
  } while (fila.pos < tope && paseo.Seguir());
  return TrasSignos(texto, fila, antes);
}

// The same of those that stand alone, as far as they fit; the last character before fila.pos.
const Signos::Signo* Partidor::CorrerSignos(const LectorTexto& texto, Fila& fila, Posicion tope,
                                            const Signos::Signo* antes) const {
  Signos& signos = *pluma_.LosSignos();
  const Posicion n = std::min(tope, texto.FinDePieza(fila.pos)) - fila.pos;
  const unsigned char* bytes = texto.Desde(fila.pos);
  const Signos::Carrera carrera = signos.Correr(bytes, static_cast<std::size_t>(n), fila.x, ancho_);
  if (carrera.bytes == 0) return antes;
  const Signos::Signo& primero = signos.De(Utf8::Leer(texto, fila.pos).codigo);
  if (antes != nullptr && Signos::Rompible(*antes, primero)) fila.corte = fila.pos;
  if (carrera.corte > 0) fila.corte = fila.pos + static_cast<Posicion>(carrera.corte);
  fila.pos += static_cast<Posicion>(carrera.bytes);
  fila.x = carrera.x;
  return carrera.ultimo;
}

// A row may be broken between an ideograph and a letter, too.
bool Partidor::TrasSignos(const LectorTexto& texto, Fila& fila, const Signos::Signo* antes) const {
  const int byte = texto.EnOFin(fila.pos);
  const bool letra = antes != nullptr && byte > ' ' && byte < 0x80;
  if (letra && Signos::Rompible(*antes, pluma_.LosSignos()->De(static_cast<char32_t>(byte)))) {
    fila.corte = fila.pos;
  }
  return true;
}

// A blank to which something clings is none.
Posicion Partidor::Cortar(const LectorTexto& texto, const Fila& fila) const {
  const Posicion minimo = std::max(fila.tras_tab, fila.corte);
  Posicion corte = TrasUltimoBlanco(texto, minimo, fila.pos);
  while (corte > minimo && corte < texto.Total() && pluma_.EsParte(texto.En(corte)) &&
         pluma_.SigueAlByte(texto, corte)) {
    corte = TrasUltimoBlanco(texto, minimo, corte - 1);
  }
  return corte > fila.inicio ? corte : fila.pos;
}

Posicion Partidor::Siguiente(const LectorTexto& texto, Posicion inicio) const {
  return Romper(texto, inicio, 0);
}

// As Siguiente, when the first `libres` bytes are known to hold no tab or line end and to fit.
Posicion Partidor::Romper(const LectorTexto& texto, Posicion inicio, Posicion libres) const {
  const Posicion tope = std::min(texto.Total(), inicio + maximo_fila_);
  Fila fila{inicio, inicio + libres, 0, inicio, inicio};
  if (libres > 0) fila.x = pluma_.Sumar(texto.Desde(inicio), static_cast<std::size_t>(libres));
  while (fila.pos < tope) {
    const unsigned char byte = texto.En(fila.pos);
    if (byte == '\n' || byte == '\r') return texto.TrasElFin(fila.pos);
    if (byte == '\t') {
      const Punto x = pluma_.Tabular(fila.x);
      if (x > ancho_ && fila.pos > inicio) return fila.pos;
      fila.x = x;
      fila.tras_tab = ++fila.pos;
      continue;
    }
    if (pluma_.EsParte(byte)) {
      if (!LlenarSignos(texto, fila, tope)) return Cortar(texto, fila);
      continue;
    }
    if (Sobra(byte, fila)) return Cortar(texto, fila);
    const Posicion n = std::min(tope, texto.FinDePieza(fila.pos)) - fila.pos;
    if (!Llenar(texto, fila, static_cast<std::size_t>(n))) return Cortar(texto, fila);
  }
  // The row is full, but not before what clings to its last byte.
  if (fila.pos < texto.Total() && pluma_.EsParte(texto.En(fila.pos)) && Pegado(texto, fila) &&
      !LlenarSignos(texto, fila, tope)) {
    return Cortar(texto, fila);
  }
  if (fila.pos == texto.Total()) return -1;
  const unsigned char byte = texto.En(fila.pos);
  return byte == '\n' || byte == '\r' ? texto.TrasElFin(fila.pos) : fila.pos;
}

// Several short lines go at once: within so many bytes as fit whatever they are, a row ends with
// each line and nowhere else. Behind two rows that were broken by the width there are none, as a
// rule. What was looked at and is neither line end nor tab is not looked at again.
Partidor::Marcha Partidor::Bajar(const LectorTexto& texto, Posicion inicio, Posicion hasta,
                                 std::int64_t maximo) const {
  Marcha marcha{inicio, 0};
  Posicion visto = inicio;
  int rotas = 0;
  while (marcha.inicio < hasta && marcha.filas < maximo) {
    const Posicion fin =
        std::min({hasta, marcha.inicio + seguro_, texto.FinDePieza(marcha.inicio)});
    if (rotas < 2 && visto - marcha.inicio < seguro_ / 2) {
      const Posicion desde = std::max(visto, marcha.inicio);
      const Vistazo vistazo = Ojear(texto, desde, fin);
      const bool partes = vistazo.altos && pluma_.LosSignos() != nullptr;
      const bool caben = !partes && (vistazo.tabuladores == 0 ||
                                     (fin - marcha.inicio) * pluma_.Maximo() +
                                             vistazo.tabuladores * pluma_.Tabulador() <=
                                         ancho_);
      if (caben && vistazo.fines > 0 && vistazo.fines <= maximo - marcha.filas) {
        visto = vistazo.limpio <= vistazo.tras_ultimo ? fin : vistazo.tras_ultimo;
        marcha.inicio = vistazo.tras_ultimo;
        marcha.filas += vistazo.fines;
        rotas = 0;
        continue;
      }
      if (vistazo.limpio == desde && !partes) visto = fin;
    }
    const Posicion libres = std::max<Posicion>(std::min(visto, fin) - marcha.inicio, 0);
    const Posicion siguiente = Romper(texto, marcha.inicio, libres);
    if (siguiente < 0 || siguiente > hasta) break;
    rotas = texto.TrasFin(siguiente) ? 0 : rotas + 1;
    marcha.inicio = siguiente;
    ++marcha.filas;
  }
  return marcha;
}
