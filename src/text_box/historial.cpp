#include "text_box/historial.h"

#include <utility>

namespace {

bool EsBlanco(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

// Moves the last operation of one list to the other.
void Pasar(std::vector<Operacion>& desde, std::vector<Operacion>& hasta) {
  hasta.push_back(std::move(desde.back()));
  desde.pop_back();
}

// Makes `nueva` part of `vieja` where it goes on in place.
bool Fundir(Operacion& vieja, Operacion& nueva) {
  if (nueva.fuera.Vacia()) {  // typed behind what was typed
    if (nueva.pos != vieja.pos + vieja.dentro) return false;
    vieja.dentro += nueva.dentro;
    return true;
  }
  if (nueva.dentro > 0 || vieja.dentro > 0) return false;
  const bool delante = nueva.pos + nueva.fuera.tamano == vieja.pos;
  if (!delante && nueva.pos != vieja.pos) return false;
  vieja.fuera = delante ? Juntar(std::move(nueva.fuera), std::move(vieja.fuera))
                        : Juntar(std::move(vieja.fuera), std::move(nueva.fuera));
  vieja.pos = nueva.pos;
  return true;
}

}  // namespace

void Historial::Vaciar() {
  hechas_.clear();
  deshechas_.clear();
  CerrarGrupo();
}

void Historial::Anotar(Operacion operacion, Agrupacion agrupacion, Extremos extremos,
                       Momento ahora) {
  deshechas_.clear();
  const bool sigue = Continua(agrupacion, extremos.primero, ahora);
  if (!sigue || !Fundir(hechas_.back(), operacion)) hechas_.push_back(std::move(operacion));
  abierta_ = agrupacion;
  ultimo_byte_ = extremos.ultimo;
  ultimo_momento_ = ahora;
}

// A pause ends a step, and so does the start of a word.
bool Historial::Continua(Agrupacion agrupacion, char primero, Momento ahora) const {
  if (agrupacion == Agrupacion::Sola || agrupacion != abierta_ || hechas_.empty()) return false;
  if (ahora - ultimo_momento_ >= Pausa) return false;
  return !EsBlanco(ultimo_byte_) || EsBlanco(primero);
}

void Historial::Deshecha() {
  Pasar(hechas_, deshechas_);
}

void Historial::Rehecha() {
  Pasar(deshechas_, hechas_);
}
