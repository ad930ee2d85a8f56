// A window that writes down which of its handlers run.
#pragma once

#include <functional>

#include "platform/ventana.h"

class VentanaAnotada : public Ventana {
 public:
  VentanaAnotada(Activacion& activacion, const QString& nombre, QStringList& notas)
      : Ventana(activacion, Marco::Redimensionable), nombre_(nombre), notas_(notas) {
    resize(200, 100);
  }

  void Form_Load() override { Anotar("carga"); }
  void Form_Activate() override {
    Anotar("activa");
    if (al_activar) {
      al_activar();
    }
  }
  void Form_Deactivate() override { Anotar("inactiva"); }
  void Form_Unload() override { Anotar("descarga"); }

  std::function<void()> al_activar;
  std::function<void()> al_pulsar;

 protected:
  void mousePressEvent(QMouseEvent* /*evento*/) override { Anotar("pulsada"); }

 private:
  void Anotar(const char* que) { notas_ << nombre_ + u' ' + QString::fromLatin1(que); }

  QString nombre_;
  QStringList& notas_;
};
