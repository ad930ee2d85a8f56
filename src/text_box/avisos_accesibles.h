// What screen readers are told of a text box while it is in sight: where the caret goes, what is
// selected, what changes. What they ask is answered in accesible_caja.h.
#pragma once

#include <QByteArray>
#include <QWidget>

#include "text_box/documento.h"

class AvisosAccesibles {
 public:
  // `caja` speaks; both outlive it.
  AvisosAccesibles(QWidget& caja, const Documento& documento)
      : caja_(caja), documento_(documento) {}

  void CursorMovido(Posicion cursor, const Rango& elegido);
  // Before the bytes are removed: once they are gone nobody can say what was there. May throw
  // std::bad_alloc.
  void PorQuitar(Posicion desde, Posicion hasta);
  void Cambiado(const Cambio& cambio);

 private:
  bool Callan() const;

  QWidget& caja_;
  const Documento& documento_;
  bool seleccion_avisada_ = false;  // they know of one
  QByteArray por_quitar_;
};
