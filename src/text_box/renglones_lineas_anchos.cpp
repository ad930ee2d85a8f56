// The widest line: what each block keeps of it, and how that follows the text.
#include <algorithm>
#include <bit>
#include <chrono>

#include "text_box/lector_texto.h"
#include "text_box/rastreo.h"
#include "text_box/renglones_lineas.h"

namespace {

constexpr int AlCambiar = 64;  // blocks that are worked out at once

}  // namespace

void RenglonesLineas::Configurar(const Avances& avances) {
  curvas_.Reiniciar(avances);
  desconocidos_ = lineas_->Bloques().Bloques();
  maximos_.assign(desconocidos_, -1);
  primero_ = 0;
  ancho_al_dia_ = false;
}

void RenglonesLineas::Recargado() {
  if (Configurado()) Configurar(curvas_.LaPluma().Tabla());
}

void RenglonesLineas::Reemplazado(const Cambio& cambio) {
  if (!Configurado()) return;
  const bool completo = Completo();
  const Lineas::Empalme& empalme = lineas_->UltimoEmpalme();
  const auto primero = maximos_.begin() + static_cast<std::ptrdiff_t>(empalme.desde);
  const auto ultimo = primero + static_cast<std::ptrdiff_t>(empalme.viejos);
  desconocidos_ -= static_cast<std::size_t>(std::count(primero, ultimo, -1));
  desconocidos_ += empalme.nuevos;
  curvas_.Empalmar(empalme);
  if (const Posicion alcance = curvas_.LaPluma().Alcance(); alcance > 0) {
    const Posicion antes = std::max<Posicion>(cambio.pos - alcance, 0);
    const Posicion despues = cambio.pos + cambio.puestos + alcance;
    curvas_.Olvidar(lineas_->Bloques().PorPosicion(antes).bloque,
                    lineas_->Bloques().PorPosicion(despues).bloque + 1);
  }
  EmpalmarVector<Punto>(maximos_, empalme, -1);
  primero_ = std::min(primero_, empalme.desde);
  // The line that was changed may have started long before, and what follows the change may be
  // a line's start no longer, or only now.
  Ignorar(lineas_->Bloques().PorPosicion(lineas_->InicioDe(cambio.pos)).bloque);
  Ignorar(lineas_->Bloques().PorPosicion(cambio.pos + cambio.puestos).bloque);
  ancho_al_dia_ = false;
  if (completo) Trabajar(AlCambiar);
}

void RenglonesLineas::Ignorar(std::size_t bloque) {
  if (bloque >= maximos_.size()) return;
  if (maximos_[bloque] >= 0) ++desconocidos_;
  maximos_[bloque] = -1;
  primero_ = std::min(primero_, bloque);
}

bool RenglonesLineas::Completo() const {
  return desconocidos_ == 0;
}

bool RenglonesLineas::Avanzar(int milisegundos) {
  using Reloj = std::chrono::steady_clock;
  const Reloj::time_point fin = Reloj::now() + std::chrono::milliseconds(milisegundos);
  while (!Completo()) {
    Trabajar(AlCambiar);
    if (Reloj::now() >= fin) break;
  }
  return Completo();
}

// Works out what is unknown, at the cost of going through about so many blocks.
void RenglonesLineas::Trabajar(int bloques) {
  while (!Completo() && bloques > 0) {
    const auto desde = maximos_.begin() + static_cast<std::ptrdiff_t>(primero_);
    primero_ = static_cast<std::size_t>(std::find(desde, maximos_.end(), -1) - maximos_.begin());
    if (!Maximo(primero_, bloques)) return;
    --desconocidos_;
    ancho_al_dia_ = false;
  }
}

// The widest line that starts in a block. False when that takes more than `bloques` blocks; what
// was worked out is not lost.
bool RenglonesLineas::Maximo(std::size_t bloque, int& bloques) {
  const LectorTexto texto(*texto_);
  const Posicion inicio = lineas_->Bloques().Donde(bloque).bytes;
  const Posicion fin = inicio + static_cast<Posicion>(lineas_->Bloques().En(bloque).bytes);
  --bloques;
  Posicion pos = inicio;
  if (pos > 0 && !texto.TrasFin(pos)) {
    pos = PrimerFin(texto, pos, fin);
    if (pos < fin) pos = texto.TrasElFin(pos);
  }
  Punto maximo = MasAncha(texto, pos, fin);
  if (pos < fin) {  // the last one goes on behind the block
    const Posicion fin_linea = lineas_->FinDe(pos);
    if (!curvas_.Preparar(bloque + 1, fin, fin_linea, bloques)) return false;
    maximo = std::max(maximo, XDe(pos, fin_linea));
  }
  maximos_[bloque] = maximo;
  return true;
}

// Of the lines that end in [desde, hasta); the first starts at `desde`, which is moved behind the
// end of the last. A line is not measured that is too short to be the widest.
Punto RenglonesLineas::MasAncha(const LectorTexto& texto, Posicion& desde, Posicion hasta) const {
  constexpr Posicion ventana = 64;
  const Pluma& pluma = curvas_.LaPluma();
  const bool de_partes = pluma.LosSignos() != nullptr;
  const Punto por_byte = std::max(pluma.Maximo(), pluma.Tabulador());
  Punto maximo = 0;
  Posicion n = 0;
  bool con_partes = false;  // in the line in hand, perhaps
  for (Posicion pos = desde; pos < hasta; pos += n) {
    n = std::min({ventana, hasta - pos, texto.FinDePieza(pos) - pos});
    const Mascaras mascaras = Mirar(texto, pos, static_cast<std::size_t>(n));
    const bool aqui = de_partes && mascaras.alto;
    con_partes |= aqui;
    for (std::uint64_t fines = mascaras.lf | mascaras.cr; fines != 0; fines &= fines - 1) {
      const Posicion fin = pos + std::countr_zero(fines);
      if (con_partes || (fin - desde) * por_byte > maximo) {
        maximo = std::max(maximo, pluma.Medir(texto, desde, fin, 0));
        con_partes = aqui;
      }
      desde = fin + 1;  // between CR and LF there is an empty line more
    }
  }
  return maximo;
}

Punto RenglonesLineas::AnchoMaximo() const {
  if (!ancho_al_dia_) {
    const auto mayor = std::max_element(maximos_.begin(), maximos_.end());
    ancho_maximo_ = mayor == maximos_.end() ? 0 : std::max<Punto>(*mayor, 0);
    ancho_al_dia_ = true;
  }
  return ancho_maximo_;
}
