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

enum class Union : std::uint8_t { Ajena, Seguida, Fundida };

// Is `nueva` a continuation of `vieja` in place, and could it become part of it?
Union Fundir(Operacion& vieja, const Operacion& nueva) {
  if (nueva.fuera.Vacia()) {  // typed behind what was typed
    if (nueva.pos != vieja.pos + vieja.dentro) return Union::Ajena;
    vieja.dentro += nueva.dentro;
    return Union::Fundida;
  }
  if (nueva.dentro > 0 || vieja.dentro > 0) return Union::Ajena;
  const bool delante = nueva.pos + nueva.fuera.Tamano() == vieja.pos;
  if (!delante && nueva.pos != vieja.pos) return Union::Ajena;
  if (!vieja.fuera.Unir(nueva.fuera, delante)) return Union::Seguida;
  vieja.pos = nueva.pos;
  return Union::Fundida;
}

}  // namespace

void Historial::Vaciar() {
  hechas_.clear();
  deshechas_.clear();
  CerrarGrupo();
}

void Historial::Anotar(Operacion operacion, Agrupacion agrupacion, std::string_view bytes,
                       Momento ahora) {
  deshechas_.clear();
  Union enlace = Union::Ajena;
  if (Continua(agrupacion, bytes, ahora)) enlace = Fundir(hechas_.back(), operacion);
  if (enlace != Union::Fundida) {
    operacion.enlazada = enlace == Union::Seguida;
    hechas_.push_back(std::move(operacion));
  }
  abierta_ = agrupacion;
  ultimo_byte_ = bytes.empty() ? '\0' : bytes.back();
  ultimo_momento_ = ahora;
}

// A pause ends a step, and so does the start of a word.
bool Historial::Continua(Agrupacion agrupacion, std::string_view bytes, Momento ahora) const {
  if (agrupacion == Agrupacion::Sola || agrupacion != abierta_ || hechas_.empty()) return false;
  if (ahora - ultimo_momento_ >= Pausa || bytes.empty()) return false;
  return !EsBlanco(ultimo_byte_) || EsBlanco(bytes.front());
}

bool Historial::Deshecha() {
  const bool sigue = hechas_.back().enlazada;
  Pasar(hechas_, deshechas_);
  return sigue;
}

bool Historial::Rehecha() {
  Pasar(deshechas_, hechas_);
  return !deshechas_.empty() && deshechas_.back().enlazada;
}
