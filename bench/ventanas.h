// The program itself, offscreen, as bench/tabla drives it. It shares the recording desktop of the
// tests.
#pragma once

#include <array>

#include <QTemporaryDir>

#include "bench/suelos.h"
#include "bench/tabla.h"
#include "dobles/escritorio_falso.h"
#include "main_window/frm_main.h"
#include "text_window/frm_texto.h"

class QCheckBox;

// Both windows, with no file listed.
class Ventanas {
 public:
  enum Icono { Abrir = 0, Opciones = 4, Favoritas = 5, Anterior = 7, Siguiente = 8 };

  Ventanas();

  // Makes a file of that name, lists and shows it.
  void AbrirArchivo(const QString& nombre, std::int64_t bytes);
  void Reposar();  // until nothing is left to do
  void PintarTexto() { foto_texto_.Pintar(texto_); }
  void PintarLista() { foto_lista_.Pintar(principal_); }
  CajaTexto& Caja() { return cajas_[0]->isHidden() ? *cajas_[1] : *cajas_[0]; }
  QSize TamanoTexto() const { return foto_texto_.Tamano(); }
  QSize TamanoLista() const { return foto_lista_.Tamano(); }

  // The document has this many bytes, its text is in the picture, and nothing was complained of.
  void ExigirTexto(const QString& nombre, std::int64_t bytes) const;
  void ExigirTotal(int archivos) const;  // listed

  QTemporaryDir carpeta;
  ModGral& Gral() { return gral_; }
  FrmMain& Principal() { return principal_; }
  QCheckBox& ChkAjustar() { return *ajustar_; }

 private:
  void HacerOpciones();

  AccesoPerfilArchivo ajustes_;
  ModGral gral_{ajustes_};
  EscritorioFalso escritorio_;
  FrmMain principal_;
  FrmTexto& texto_;  // the main window's
  QCheckBox* ajustar_ = nullptr;
  std::array<CajaTexto*, 2> cajas_{};
  Foto foto_texto_;
  Foto foto_lista_;
};
