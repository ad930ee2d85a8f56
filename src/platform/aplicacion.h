// The toolkit as the program wants it: Spanish under any locale, one look, no settings of its own.
#pragma once

#include <array>
#include <mutex>

#include <QTranslator>

#include "platform/red.h"

class Aplicacion {
 public:
  explicit Aplicacion(char* programa);
  // Who tells the user that an event ended in an exception.
  void PonerAviso(Red::Aviso aviso) { aplicacion_.PonerAviso(std::move(aviso)); }
  // Is the character set of the user's locale UTF-8? Not the toolkit's, which makes it so.
  bool SistemaUtf8() const { return plataforma_.utf8; }
  int Ejecutar() { return aplicacion_.Ejecutar(); }

 private:
  // No window can be placed or kept on top under native Wayland: X11 comes first where the user
  // has not chosen. The choice ends with the toolkit's start, so that the programs opened from
  // here do not inherit it.
  struct Plataforma {
    Plataforma();
    void Soltar() const;
    bool elegida;
    bool utf8;
  };

  // The toolkit's own texts, read when the first of them is wanted.
  class Traductor : public QTranslator {
   public:
    bool isEmpty() const override { return false; }
    QString translate(const char* contexto, const char* texto, const char* aclaracion,
                      int cuantos) const override;

   private:
    mutable std::once_flag leidos_;  // any thread may want one
    mutable QTranslator textos_;
  };

  void PonerIdioma();
  static void PonerAspecto();

  Plataforma plataforma_;
  std::array<char*, 2> argumentos_;
  int cuantos_ = 1;  // the program takes no arguments, so the toolkit is shown none
  Red aplicacion_;
  Traductor traductor_;
};
