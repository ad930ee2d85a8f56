// Message boxes.
#pragma once

#include <QString>

class Activacion;
class Ventana;

class Mensajes {
 public:
  virtual ~Mensajes() = default;
  // The stop icon and one button; the text is shown letter by letter.
  virtual void Critico(Ventana& duena, const QString& texto, const QString& titulo) = 0;
  // Yes or No, likewise; Enter, Esc and the close box say No.
  virtual bool Preguntar(Ventana& duena, const QString& texto, const QString& titulo) = 0;
};

class MensajesReales : public Mensajes {
 public:
  explicit MensajesReales(Activacion& activacion) : activacion_(activacion) {}
  void Critico(Ventana& duena, const QString& texto, const QString& titulo) override;
  bool Preguntar(Ventana& duena, const QString& texto, const QString& titulo) override;

 private:
  Activacion& activacion_;
};
