// FraOpciones, the options panel: the appearance of the text and three options. A check box sets
// its option at once.
#pragma once

#include <vector>

#include <QCheckBox>
#include <QPushButton>
#include <QToolButton>

#include "shared/opciones.h"
#include "text_window/marco_titulado.h"

class FraOpciones : public MarcoTitulado {
  Q_OBJECT

 public:
  FraOpciones(Opciones& opciones, QWidget* padre);

  void MostrarOpciones();  // the check boxes as the options are now

  QToolButton* CmdFuente;
  QToolButton* CmdFColor;
  QToolButton* CmdFavoritas;
  QPushButton* CmdCerrar;

 signals:
  void OpcionCambiada();

 private:
  struct Casilla {
    QCheckBox* control;
    bool Opciones::*opcion;
  };

  void CrearBotones();
  void CrearCasillas();

  Opciones& opciones_;
  std::vector<Casilla> casillas_;
};
