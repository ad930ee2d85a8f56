// FrmBorrar, the delete confirmation: shown modally, it leaves the user's choice in AccionBorrar.
#pragma once

#include <array>

#include "platform/escritorio.h"
#include "platform/ventana.h"
#include "shared/mod_gral.h"
#include "text_box/documento.h"

class CajaTexto;
class QCheckBox;
class QLabel;
class QToolButton;

// The values of AccionBorrar.
enum AccionesBorrar : std::int16_t { AccionPapelera = 0, AccionQuitar = 1, AccionNada = 2 };

class FrmBorrar : public Ventana {
  Q_OBJECT

 public:
  static constexpr int Botones = 3;
  static constexpr int Etiquetas = 4;

  // It opens to the right of `principal`.
  FrmBorrar(ModGral& gral, const Escritorio& escritorio, const Ventana& principal);
  ~FrmBorrar() override;

  void Form_Load() override;
  void Form_Activate() override;
  void Form_Unload() override;

  void CmdBorrar_Click(int indice);  // 0 and 1 are choices, 2 shows the help
  void ChkBorrar_Click();
  bool TxtAyuda_KeyPress(int codigo);  // Esc is 27; false: left to the text box

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;
  bool focusNextPrevChild(bool siguiente) override;

 private:
  void CrearEleccion();
  void CrearEtiquetas();
  void CrearAyuda();

  ModGral& gral_;
  Escritorio escritorio_;
  const Ventana& principal_;
  Documento ayuda_;
  QString TituloAnterior;  // the caption while the help is shown

  QCheckBox* ChkBorrar = nullptr;
  std::array<QToolButton*, Botones> CmdBorrar{};
  std::array<QLabel*, Etiquetas> LblInfo{};
  CajaTexto* TxtAyuda = nullptr;
};
