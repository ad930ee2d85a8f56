// The program's own idea of which of its windows is the active one. Plain logic: it knows neither
// the toolkit nor the desktop.
#pragma once

#include <vector>

// What takes part: told when it becomes the active window and when it ceases to be.
class Activable {
 public:
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}

 protected:
  ~Activable() = default;
};

class FocoPropio {
 public:
  Activable* Activa() const { return activa_; }  // null: none of them

  // Moves it at once: the handlers of the window left and of the window entered run inside the
  // call, and may move it again. Nothing runs for the window that is active already.
  void Mover(Activable& ventana);
  void Olvidar(const Activable& ventana);

 private:
  Activable* activa_ = nullptr;
};

// What the desktop has been asked for, or may do on account of what the program did, and has not
// yet done. Told of each activation, it knows whose doing that was.
class PeticionesFoco {
 public:
  enum class Respuesta {
    Conforme,    // the desktop is where the program is
    Repetir,     // the desktop's own idea, to be expected: the program asks again
    Esperar,     // the answer to an older request, or nobody's: the last one's is still to come
    DelUsuario,  // nothing is under way: the user came here
  };

  bool Vacias() const { return pasos_.empty(); }

  // The desktop may activate it by itself: it was mapped, restored, or another one went away.
  void Prever(const Activable& ventana);
  void Pedir(const Activable& ventana);
  Respuesta Activada(const Activable& ventana, const Activable* activa);
  void Olvidar(const Activable& ventana);
  void Vaciar();  // whatever has not come by now is not coming

 private:
  struct Paso {
    const Activable* ventana;
    bool pedido;  // else foreseen
  };
  bool Pedida(const Activable* ventana) const;

  std::vector<Paso> pasos_;  // the desktop takes them in this order, and leaves some out
};
