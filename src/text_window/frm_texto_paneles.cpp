// The panels over the text. Each is made when it is first shown: no start waits for it.
#include "text_window/frm_texto.h"
#include "text_window/panel_favoritas.h"
#include "text_window/panel_guardar.h"
#include "text_window/panel_opciones.h"

namespace {

// From the window's right inner edge to the save panel's left: clear of the scroll bar, in twips.
constexpr int MargenGuardar = 1590;

}  // namespace

FraGuardar& FrmTexto::Guardar() {
  if (FraGuardar_ == nullptr) {
    FraGuardar_ = new FraGuardar(this);
    connect(FraGuardar_->CmdGuardar, &QToolButton::clicked, this, &FrmTexto::CmdGuardar_Click);
    connect(FraGuardar_->CmdCancelar, &QToolButton::clicked, this, &FrmTexto::CmdCancelar_Click);
    setTabOrder(TextBox[1], FraGuardar_->CmdGuardar);  // whichever panel was made before
    setTabOrder(FraGuardar_->CmdGuardar, FraGuardar_->CmdCancelar);
    ColocarGuardar();
    PintarPaneles();
    for (QWidget* panel : std::initializer_list<QWidget*>{FraOpciones_, FraFavoritas_}) {
      if (panel != nullptr) {
        panel->raise();
      }
    }
  }
  return *FraGuardar_;
}

FraOpciones& FrmTexto::Opciones() {
  if (FraOpciones_ == nullptr) {
    FraOpciones_ = new FraOpciones(this);
    const FraOpciones& panel = *FraOpciones_;
    panel.ChkAjustar->setChecked(TextBox[1]->isHidden());
    panel.ChkFavoritas->setChecked(favoritas_al_inicio_);
    connect(panel.CmdFuente, &QToolButton::clicked, this, &FrmTexto::CmdFuente_Click);
    connect(panel.CmdFColor, &QToolButton::clicked, this, &FrmTexto::CmdFColor_Click);
    connect(panel.ChkConfirmar, &QCheckBox::toggled, this, &FrmTexto::ChkConfirmar_Click);
    connect(panel.ChkAjustar, &QCheckBox::toggled, this, &FrmTexto::ChkAjustar_Click);
    connect(panel.CmdFavoritas, &QToolButton::clicked, this, &FrmTexto::CmdFavoritas_Click);
    connect(panel.CmdCerrar, &QPushButton::clicked, this, &FrmTexto::CmdCerrar_Click);
    PintarPaneles();
  }
  return *FraOpciones_;
}

FraFavoritas& FrmTexto::Favoritas() {
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
  if (FraGuardar_ != nullptr) {
    FraGuardar_->hide();
  }
}

void FrmTexto::MostrarOpciones() {
  Opciones().ChkConfirmar->setChecked(gral_.Confirmar);
  Opciones().show();
  Opciones().CmdFuente->setFocus();
}

bool FrmTexto::VeOpciones() const {
  return FraOpciones_ != nullptr && !FraOpciones_->isHidden();
}

bool FrmTexto::VeFavoritas() const {
  return FraFavoritas_ != nullptr && !FraFavoritas_->isHidden();
}

void FrmTexto::CerrarPaneles() {
  if (VeOpciones()) {
    CmdCerrar_Click();
  }
  if (VeFavoritas()) {
    FraFavoritas_->CmdCerrarFav_Click();
  }
}

void FrmTexto::ChkConfirmar_Click() {
  gral_.Confirmar = Opciones().ChkConfirmar->isChecked();
}

void FrmTexto::CmdFavoritas_Click() {
  CmdCerrar_Click();
  Favoritas().GestionarFavoritas();
}

void FrmTexto::CmdCerrar_Click() {
  gral_.VerOpciones = false;
  Opciones().hide();
  CajaVisible().setFocus();
  const Perfil::Juntos juntos(gral_.perfil, gral_.ArchivoINI);
  EscribirAspecto(gral_.perfil, gral_.ArchivoINI, aspecto_);
  const auto escribir = [this](QStringView clave, const QCheckBox* casilla) {
    gral_.perfil.EscribirBuffer(gral_.ArchivoINI, u"Opciones", clave,
                                casilla->isChecked() ? u"Si" : u"No");
  };
  escribir(u"Ajustar", Opciones().ChkAjustar);
  escribir(u"Favoritas", Opciones().ChkFavoritas);
  escribir(u"Confirmar", Opciones().ChkConfirmar);
}
