// FraOpciones, the options panel: the appearance of the text and three options.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QToolButton>

#include "text_window/marco_titulado.h"

class FraOpciones : public MarcoTitulado {
  Q_OBJECT

 public:
  explicit FraOpciones(QWidget* padre);

  QToolButton* CmdFuente;
  QToolButton* CmdFColor;
  QToolButton* CmdFavoritas;
  QCheckBox* ChkConfirmar;
  QCheckBox* ChkFavoritas;
  QCheckBox* ChkAjustar;  // checked at first
  QPushButton* CmdCerrar;

 private:
  void CrearBotones();
  void CrearCasillas();
};
