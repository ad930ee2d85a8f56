// Random actions on a text box, checked after each against a fresh box in the same state; and what
// is changed at the caret stays in sight. What was drawn of it is what would be, if all were.
#pragma once

#include <memory>
#include <random>
#include <string>

#include <QBackingStore>
#include <QDir>
#include <QScrollBar>
#include <QWheelEvent>

#include "text_box/banco_caja.h"

class AzarVista : private Observador {
 public:
  explicit AzarVista(unsigned semilla);
  ~AzarVista() override { banco_.documento.DejarDeObservar(this); }

  // One action; empty, or what is wrong after it.
  std::string Paso();
  // Undoes everything and compares with the text it began with.
  std::string DeshacerTodo();

 private:
  int Hasta(int tope) { return std::uniform_int_distribution<int>(0, tope - 1)(azar_); }
  std::string TextoAlAzar(int cuantos);
  void Actuar();
  void Teclear();
  void Raton();
  void Rodar();
  void Tapar();
  void Cambiar();
  void CambiarDesdeFuera();
  void Componer();
  void Reemplazado(const Cambio& cambio) override { cambios_.push_back(cambio); }
  void Recargado() override {}
  bool SeVe(Posicion pos) const;
  bool CambioALaVista(Posicion cursor) const;
  void Reposar(const CajaTexto& caja);
  bool AlDia();
  std::string Comparar();
  std::unique_ptr<CajaTexto> Gemela(Documento& documento);

  std::mt19937 azar_;
  const unsigned alfabeto_;  // single bytes, the letters of all scripts, the same with faults
  BancoCaja banco_;
  QWidget tapadera_{&banco_.caja};
  std::string inicial_;
  std::string accion_;
  std::vector<Cambio> cambios_;  // of this step
};
