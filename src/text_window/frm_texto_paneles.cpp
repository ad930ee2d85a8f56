// The panels over the text. Each is made when it is first shown: no start waits for it.
#include "text_window/frm_texto.h"
#include "text_window/panel_favoritas.h"
#include "text_window/panel_guardar.h"
#include "text_window/panel_opciones.h"

namespace {

// From the window's right inner edge to the save panel's left: clear of the scroll bar, in twips.
constexpr int MargenGuardar = 1590;

}  // namespace

FraGuardar& FrmTexto::PanelGuardar() {
  if (FraGuardar_ == nullptr) {
    FraGuardar_ = new FraGuardar(this);
    connect(FraGuardar_->CmdGuardar, &QToolButton::clicked, this, &FrmTexto::CmdGuardar_Click);
    connect(FraGuardar_->CmdCancelar, &QToolButton::clicked, this, &FrmTexto::CmdCancelar_Click);
    setTabOrder(TextBox[1], FraGuardar_->CmdGuardar);  // whichever panel was made before
    setTabOrder(FraGuardar_->CmdGuardar, FraGuardar_->CmdCancelar);
    ColocarGuardar();
    PintarPaneles();
    for (QWidget* panel : std::initializer_list<QWidget*>{FraOpciones_, FraFavoritas_}) {
      if (panel != nullptr) panel->raise();
    }
  }
  return *FraGuardar_;
}

FraOpciones& FrmTexto::PanelOpciones() {
  if (FraOpciones_ == nullptr) {
    FraOpciones_ = new FraOpciones(gral_.opciones, this);
    const FraOpciones& panel = *FraOpciones_;
    connect(panel.CmdFuente, &QToolButton::clicked, this, &FrmTexto::CmdFuente_Click);
    connect(panel.CmdFColor, &QToolButton::clicked, this, &FrmTexto::CmdFColor_Click);
    connect(&panel, &FraOpciones::OpcionCambiada, this, &FrmTexto::ChkAjustar_Click);
    connect(panel.CmdFavoritas, &QToolButton::clicked, this, &FrmTexto::CmdFavoritas_Click);
    connect(panel.CmdCerrar, &QPushButton::clicked, this, &FrmTexto::CmdCerrar_Click);
    PintarPaneles();
  }
  return *FraOpciones_;
}

FraFavoritas& FrmTexto::PanelFavoritas() {
  if (FraFavoritas_ == nullptr) {
    FraFavoritas_ = new FraFavoritas(gral_, escritorio_.unidades, this);
    connect(FraFavoritas_, &FraFavoritas::Cerrado, this, [this] { CajaVisible().setFocus(); });
    PintarPaneles();
  }
  return *FraFavoritas_;
}

void FrmTexto::ColocarGuardar() {
  if (FraGuardar_ != nullptr) {
    FraGuardar_->move(width() - APixeles(MargenGuardar), FraGuardar_->y());
  }
}

void FrmTexto::EsconderGuardar() {
  if (FraGuardar_ != nullptr) FraGuardar_->hide();
}

void FrmTexto::MostrarOpciones() {
  PanelOpciones().MostrarOpciones();
  PanelOpciones().show();
  PanelOpciones().CmdFuente->setFocus();
}

bool FrmTexto::VeOpciones() const {
  return FraOpciones_ != nullptr && !FraOpciones_->isHidden();
}

bool FrmTexto::VeFavoritas() const {
  return FraFavoritas_ != nullptr && !FraFavoritas_->isHidden();
}

void FrmTexto::CerrarPaneles() {
  if (VeOpciones()) CmdCerrar_Click();
  if (VeFavoritas()) FraFavoritas_->CmdCerrarFav_Click();
}

void FrmTexto::CmdFavoritas_Click() {
  CmdCerrar_Click();
  PanelFavoritas().GestionarFavoritas();
}

void FrmTexto::CmdCerrar_Click() {
  gral_.VerOpciones = false;
  PanelOpciones().hide();
  CajaVisible().setFocus();
  const Perfil::Juntos juntos(gral_.perfil, gral_.ArchivoINI);
  EscribirAspecto(gral_.perfil, gral_.ArchivoINI, aspecto_);
  gral_.opciones.Escribir(gral_.perfil, gral_.ArchivoINI, EscribePanel);
}
