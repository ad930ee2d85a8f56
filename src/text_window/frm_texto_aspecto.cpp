// The appearance of the text window, and its options panel.
#include "text_window/frm_texto.h"
#include "text_window/panel_favoritas.h"
#include "text_window/panel_guardar.h"
#include "text_window/panel_opciones.h"

namespace {

constexpr QStringView Seccion = u"Opciones";

void Pintar(QWidget& control, QPalette::ColorRole papel, const QColor& color) {
  QPalette paleta = control.palette();
  paleta.setColor(papel, color);
  control.setPalette(paleta);
}

}  // namespace

void FrmTexto::CrearOpciones() {
  FraOpciones_ = new FraOpciones(this);
  const FraOpciones& panel = *FraOpciones_;
  connect(panel.CmdFuente, &QToolButton::clicked, this, &FrmTexto::CmdFuente_Click);
  connect(panel.CmdFColor, &QToolButton::clicked, this, &FrmTexto::CmdFColor_Click);
  connect(panel.ChkConfirmar, &QCheckBox::toggled, this, &FrmTexto::ChkConfirmar_Click);
  connect(panel.ChkAjustar, &QCheckBox::toggled, this, &FrmTexto::ChkAjustar_Click);
  connect(panel.CmdFavoritas, &QToolButton::clicked, this, &FrmTexto::CmdFavoritas_Click);
  connect(panel.CmdCerrar, &QPushButton::clicked, this, &FrmTexto::CmdCerrar_Click);
}

void FrmTexto::CrearFavoritas() {
  FraFavoritas_ = new FraFavoritas(gral_, escritorio_.unidades, this);
  connect(FraFavoritas_, &FraFavoritas::Cerrado, this, [this] { CajaVisible().setFocus(); });
}

void FrmTexto::LeerOpciones() {
  aspecto_ = LeerAspecto(gral_.perfil, gral_.ArchivoINI);
  gral_.perfil.Leer(gral_.ArchivoINI, Seccion, u"Ajustar", u"Si");
  FraOpciones_->ChkAjustar->setChecked(gral_.perfil.EsSi());
  ChkAjustar_Click();
  gral_.perfil.Leer(gral_.ArchivoINI, Seccion, u"Favoritas", u"No");
  FraOpciones_->ChkFavoritas->setChecked(gral_.perfil.EsSi());
  PonerFuenteYTexto();
  PonerFondo();
}

// What lies inside the two panels takes their text colour from them.
void FrmTexto::PonerFuenteYTexto() {
  const QColor texto = aspecto_.ColorTexto(palette());
  for (CajaTexto* caja : TextBox) {
    caja->PonerFuente(FuenteDe(aspecto_.fuente));
    caja->PonerColores(texto, aspecto_.ColorFondo(palette()));
  }
  Pintar(*FraOpciones_, QPalette::WindowText, texto);
  Pintar(*FraFavoritas_, QPalette::WindowText, texto);
}

void FrmTexto::PonerFondo() {
  const QColor fondo = aspecto_.ColorFondo(palette());
  for (CajaTexto* caja : TextBox) {
    caja->PonerColores(aspecto_.ColorTexto(palette()), fondo);
  }
  Pintar(*FraOpciones_, QPalette::Window, fondo);
  Pintar(*FraFavoritas_, QPalette::Window, fondo);
  Pintar(*FraGuardar_, QPalette::Window, fondo);
}

void FrmTexto::MostrarOpciones() {
  FraOpciones_->ChkConfirmar->setChecked(gral_.Confirmar);
  FraOpciones_->show();
  FraOpciones_->CmdFuente->setFocus();
}

bool FrmTexto::HayPanel() const {
  return !FraOpciones_->isHidden() || !FraFavoritas_->isHidden();
}

void FrmTexto::CerrarPaneles() {
  if (!FraOpciones_->isHidden()) {
    CmdCerrar_Click();
  }
  if (!FraFavoritas_->isHidden()) {
    FraFavoritas_->CmdCerrarFav_Click();
  }
}

void FrmTexto::CmdFuente_Click() {
  const QColor actual = aspecto_.ColorTexto(palette());
  color_dialogo_ = aspecto_.texto;
  const auto eleccion = escritorio_.aspecto.PedirFuente(*this, {aspecto_.fuente, actual});
  if (!eleccion) {
    return;
  }
  aspecto_.fuente = eleccion->fuente;
  if (eleccion->color != actual) {  // else a system colour stays one
    aspecto_.texto = NumeroDe(eleccion->color);
  }
  color_dialogo_ = aspecto_.texto;
  PonerFuenteYTexto();
}

void FrmTexto::CmdFColor_Click() {
  const auto color =
      escritorio_.aspecto.PedirColor(*this, ColorDe(color_dialogo_, palette(), QPalette::Text));
  if (!color) {
    return;
  }
  aspecto_.fondo = color_dialogo_ = NumeroDe(*color);
  PonerFondo();
}

// Both boxes show one document; the reader stays where the reading was.
void FrmTexto::ChkAjustar_Click() {
  const bool ajustar = FraOpciones_->ChkAjustar->isChecked();
  CajaTexto& antes = CajaVisible();
  CajaTexto& ahora = *TextBox[ajustar ? 0 : 1];
  if (&antes == &ahora) {
    return;
  }
  antes.hide();
  ahora.show();
  ahora.PonerCursor(antes.Cursor(), antes.Ancla());
  ahora.PonerArriba(antes.Arriba());
}

void FrmTexto::ChkConfirmar_Click() {
  gral_.Confirmar = FraOpciones_->ChkConfirmar->isChecked();
}

void FrmTexto::CmdFavoritas_Click() {
  CmdCerrar_Click();
  FraFavoritas_->GestionarFavoritas();
}

void FrmTexto::CmdCerrar_Click() {
  gral_.VerOpciones = false;
  FraOpciones_->hide();
  CajaVisible().setFocus();
  EscribirAspecto(gral_.perfil, gral_.ArchivoINI, aspecto_);
  const auto escribir = [this](QStringView clave, const QCheckBox* casilla) {
    gral_.perfil.EscribirBuffer(gral_.ArchivoINI, Seccion, clave,
                                casilla->isChecked() ? u"Si" : u"No");
  };
  escribir(u"Ajustar", FraOpciones_->ChkAjustar);
  escribir(u"Favoritas", FraOpciones_->ChkFavoritas);
  escribir(u"Confirmar", FraOpciones_->ChkConfirmar);
}
