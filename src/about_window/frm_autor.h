// FrmAutor, the about window: the version, and links to the program's page and to its author.
#pragma once

#include <array>

#include "platform/escritorio.h"
#include "platform/ventana.h"

class QPushButton;
class QToolButton;

class FrmAutor : public Ventana {
  Q_OBJECT

 public:
  static constexpr int Enlaces = 2;

  explicit FrmAutor(const Escritorio& escritorio);

  void Form_MouseMove();
  void CmdAutor_MouseMove(int indice);
  void CmdAutor_Click(int indice);  // 0 opens the page, 1 a mail to the author

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void CrearVersion();
  void CrearBotones();
  void Nombrar(const QString& titulo);

  Escritorio escritorio_;

  QPushButton* CmdFoco = nullptr;  // takes the focus from a clicked link; CmdAutor(0) covers it
  std::array<QToolButton*, Enlaces> CmdAutor{};
};
