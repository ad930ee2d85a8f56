#include "platform/foco_propio.h"

#include <algorithm>
#include <utility>

void FocoPropio::Mover(Activable& ventana) {
  if (activa_ == &ventana) return;
  Activable* anterior = std::exchange(activa_, &ventana);
  if (anterior != nullptr) anterior->Form_Deactivate();
  if (activa_ == &ventana) ventana.Form_Activate();
}

void FocoPropio::Olvidar(const Activable& ventana) {
  if (activa_ == &ventana) activa_ = nullptr;
}

void PeticionesFoco::Prever(const Activable& ventana) {
  pasos_.push_back({&ventana, false});
}

void PeticionesFoco::Pedir(const Activable& ventana) {
  pasos_.push_back({&ventana, true});
}

bool PeticionesFoco::Pedida(const Activable* ventana) const {
  return std::any_of(pasos_.begin(), pasos_.end(), [&](const Paso& paso) {
    return paso.pedido && (ventana == nullptr || paso.ventana == ventana);
  });
}

PeticionesFoco::Respuesta PeticionesFoco::Activada(const Activable& ventana,
                                                   const Activable* activa) {
  const auto es_suyo = [&](const Paso& paso) { return paso.ventana == &ventana; };
  const bool pendiente = Pedida(nullptr);
  const auto paso = std::find_if(pasos_.begin(), pasos_.end(), es_suyo);
  const bool conocida = paso != pasos_.end();
  const bool prevista = conocida && !paso->pedido;
  if (conocida) pasos_.erase(pasos_.begin(), paso + 1);
  if (&ventana == activa) {
    if (std::all_of(pasos_.begin(), pasos_.end(), es_suyo)) pasos_.clear();
    return Respuesta::Conforme;
  }
  if (prevista || (conocida && !Pedida(activa))) return Respuesta::Repetir;
  return pendiente ? Respuesta::Esperar : Respuesta::DelUsuario;
}

void PeticionesFoco::Olvidar(const Activable& ventana) {
  std::erase_if(pasos_, [&](const Paso& paso) { return paso.ventana == &ventana; });
}

void PeticionesFoco::Vaciar() {
  pasos_.clear();
}
