#include "platform/foco_propio.h"

#include <algorithm>
#include <utility>

void FocoPropio::Mover(Activable& ventana) {
  if (activa_ == &ventana) {
    return;
  }
  Activable* anterior = std::exchange(activa_, &ventana);
  if (anterior != nullptr) {
    anterior->Form_Deactivate();
  }
  if (activa_ == &ventana) {
    ventana.Form_Activate();
  }
}

void FocoPropio::Olvidar(const Activable& ventana) {
  if (activa_ == &ventana) {
    activa_ = nullptr;
  }
}

void PeticionesFoco::Prever(const Activable& ventana) {
  if (std::find(previstas_.begin(), previstas_.end(), &ventana) == previstas_.end()) {
    previstas_.push_back(&ventana);
  }
}

void PeticionesFoco::Pedir(const Activable& ventana) {
  if (pedidas_.empty() || pedidas_.back() != &ventana) {
    pedidas_.push_back(&ventana);
  }
}

bool PeticionesFoco::Pedida(const Activable* ventana) const {
  return std::find(pedidas_.begin(), pedidas_.end(), ventana) != pedidas_.end();
}

PeticionesFoco::Respuesta PeticionesFoco::Activada(const Activable& ventana,
                                                   const Activable* activa) {
  const bool pendiente = !pedidas_.empty();
  const bool prevista = std::erase(previstas_, &ventana) > 0;
  const auto respondida = std::find(pedidas_.begin(), pedidas_.end(), &ventana);
  const bool pedida = !prevista && respondida != pedidas_.end();
  if (pedida) {
    pedidas_.erase(pedidas_.begin(), respondida + 1);
  }
  if (&ventana == activa) {
    return Respuesta::Conforme;
  }
  if (prevista || (pedida && !Pedida(activa))) {
    return Respuesta::Repetir;
  }
  return pendiente ? Respuesta::Esperar : Respuesta::DelUsuario;
}

void PeticionesFoco::Olvidar(const Activable& ventana) {
  std::erase(previstas_, &ventana);
  std::erase(pedidas_, &ventana);
}

void PeticionesFoco::Vaciar() {
  pedidas_.clear();
  previstas_.clear();
}
