// One text box that wraps, in a window of its own, as bench/tabla looks at it.
#pragma once

#include <cstdint>

#include "bench/suelos.h"
#include "text_box/caja_texto.h"

void CargarEn(Documento& documento, const QString& ruta);
void Pulsar(QWidget& widget, int tecla, const QString& texto = {});

class Mesa {
 public:
  Mesa();

  void Mostrar() { caja_.show(); }
  void Esconder() { caja_.hide(); }
  void Pintar() { foto_.Pintar(caja_); }
  void Cargar(const QString& ruta, std::int64_t bytes);
  void Reposar();  // until nothing is left to do
  void AlMedio();  // the caret goes there

  CajaTexto& Caja() { return caja_; }
  Posicion Tamano() const { return documento_.Tamano(); }
  Vacia& Vacio() { return vacia_; }  // as large as the box, and in the same window
  void ExigirLetras() const;
  void ExigirFilas(std::int64_t bytes) const;

 private:
  QWidget ventana_;
  Vacia vacia_;
  Documento documento_;
  CajaTexto caja_{documento_, CajaTexto::Ajuste::AlAncho, &ventana_};
  Foto foto_;
};
