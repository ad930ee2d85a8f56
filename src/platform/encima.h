// Keeping a window above all others.
#pragma once

class Ventana;

class Encima {
 public:
  virtual ~Encima() = default;
  virtual void Poner(Ventana& ventana, bool encima) = 0;  // place, size and focus stay
};

class EncimaReal : public Encima {
 public:
  void Poner(Ventana& ventana, bool encima) override;
};
