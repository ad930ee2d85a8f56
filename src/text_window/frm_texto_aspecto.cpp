// The appearance of the text window: font, colours, wrapping.
#include "text_window/frm_texto.h"
#include "text_window/panel_favoritas.h"
#include "text_window/panel_guardar.h"
#include "text_window/panel_opciones.h"

void FrmTexto::LeerOpciones() {
  aspecto_ = LeerAspecto(gral_.perfil, gral_.ArchivoINI);
  gral_.opciones.Leer(gral_.perfil, gral_.ArchivoINI, LeeTexto);
  ChkAjustar_Click();
  PonerFuente();
  PonerColores();
}

void FrmTexto::PonerFuente() {
  for (CajaTexto* caja : TextBox) caja->PonerFuente(FuenteDe(aspecto_.fuente));
}

void FrmTexto::PonerColores() {
  for (CajaTexto* caja : TextBox) {
    caja->PonerColores(aspecto_.ColorTexto(palette()), aspecto_.ColorFondo(palette()));
  }
  PintarPaneles();
}

// What lies inside the options and the favourites takes its text colour from them.
void FrmTexto::PintarPaneles() {
  const auto pintar = [](QWidget* panel, QPalette::ColorRole papel, const QColor& color) {
    if (panel != nullptr) {
      QPalette paleta = panel->palette();
      paleta.setColor(papel, color);
      panel->setPalette(paleta);
    }
  };
  pintar(FraGuardar_, QPalette::Window, aspecto_.ColorFondo(palette()));
  for (QWidget* panel : std::initializer_list<QWidget*>{FraOpciones_, FraFavoritas_}) {
    pintar(panel, QPalette::WindowText, aspecto_.ColorTexto(palette()));
    pintar(panel, QPalette::Window, aspecto_.ColorFondo(palette()));
  }
}

void FrmTexto::CmdFuente_Click() {
  const QColor actual = aspecto_.ColorTexto(palette());
  color_dialogo_ = aspecto_.texto;
  const auto eleccion = escritorio_.aspecto.PedirFuente(*this, {aspecto_.fuente, actual});
  if (!eleccion) return;
  aspecto_.fuente = eleccion->fuente;
  if (eleccion->color != actual) {  // else a system colour stays one
    aspecto_.texto = NumeroDe(eleccion->color);
  }
  color_dialogo_ = aspecto_.texto;
  PonerFuente();
  PonerColores();
}

void FrmTexto::CmdFColor_Click() {
  const auto color =
      escritorio_.aspecto.PedirColor(*this, ColorDe(color_dialogo_, palette(), QPalette::Text));
  if (!color) return;
  aspecto_.fondo = color_dialogo_ = NumeroDe(*color);
  PonerColores();
}

// Both boxes show one document; the reader stays where the reading was.
void FrmTexto::ChkAjustar_Click() {
  CajaTexto& antes = CajaVisible();
  CajaTexto& ahora = *TextBox[gral_.opciones.Ajustar ? 0 : 1];
  if (&antes == &ahora) return;
  antes.hide();
  ahora.show();
  ahora.PonerCursor(antes.Cursor(), antes.Ancla());
  ahora.PonerArriba(antes.Arriba());
}
