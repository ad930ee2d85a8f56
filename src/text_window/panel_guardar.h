// FraGuardar, the save panel: its being visible is the edit mark.
#pragma once

#include <QFrame>
#include <QToolButton>

class FraGuardar : public QFrame {
  Q_OBJECT

 public:
  explicit FraGuardar(QWidget* padre);

  QToolButton* CmdGuardar;
  QToolButton* CmdCancelar;
};
