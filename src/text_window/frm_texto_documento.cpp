// The document of the text window: its states, read from the caption; loading, editing, saving.
#include <cerrno>

#include "text_window/aviso_copias.h"
#include "text_window/frm_texto.h"
#include "text_window/panel_guardar.h"
#include "text_window/titulos.h"

bool FrmTexto::HayArchivoActual() const {
  return !gral_.ArchivoActual.isEmpty() && gral_.ArchivoActual != ArchivoNinguno;
}

bool FrmTexto::MuestraArchivo() const {
  return Titulo() != TituloSinArchivo && Titulo() != TituloNuevo;
}

QString FrmTexto::ArchivoMostrado() const {
  return MuestraArchivo() ? Titulo().mid(PrefijoTitulo.size()) : QString();
}

// What the caption names is what is in the window; where it names none, the next file is loaded,
// whichever it is.
void FrmTexto::PonerArchivo(const QString& archivo) {
  PonerTitulo(PrefijoTitulo + archivo);
  gral_.ArchivoCargado = archivo;
}

void FrmTexto::PonerSinArchivo(const QString& titulo) {
  PonerTitulo(titulo);
  gral_.ArchivoCargado.clear();
}

void FrmTexto::MostrarTextoNuevo() {
  if (Titulo() != TituloNuevo) {
    documento_.Vaciar();
    PonerSinArchivo(TituloNuevo);
  }
  PanelGuardar().show();
}

void FrmTexto::QuedarSinArchivo() {
  documento_.Vaciar();
  EsconderGuardar();
  PonerSinArchivo(TituloSinArchivo);
}

// Everything is read before the window changes, so that a failure leaves it as it was. A screen
// reader can press what the dialog stands before, so ArchivoActual may be another afterwards.
bool FrmTexto::CargarArchivo() {
  if (!HayArchivoActual()) return true;
  const QString archivo = gral_.ArchivoActual;
  const Resultado leido = Leer(archivo);
  if (leido.Codigo() == ECANCELED) {
    DejarCarga();
    return false;
  }
  if (!leido.Bien()) {
    ErrorAlLeer(leido);
    return true;
  }
  CajaVisible().setFocus();
  EsconderGuardar();
  PonerArchivo(archivo);
  AvisarDeCopias(escritorio_.mensajes, *this, archivo);
  principal_.DarFoco();
  return true;
}

Resultado FrmTexto::Leer(const QString& archivo) {
  auto lector = LectorArchivo::Abrir(archivo, LectorArchivo::SiFalta::Crear);
  if (!lector.Bien()) return lector.Fallo();
  const QString nombre = archivo.section(SeparadorRuta, -1);
  return documento_.Cargar(lector.Valor(),
                           escritorio_.esperas.Empezar(*this, QStringLiteral("Leyendo el archivo…"),
                                                       nombre, lector.Valor().Tamano()));
}

void FrmTexto::ErrorAlLeer(const Resultado& fallo) {
  escritorio_.mensajes.Critico(*this, fallo.Motivo(), QStringLiteral("ERROR AL LEER EL ARCHIVO"));
  DejarCarga();
}

// The current file is again the one that the window names; a caption that names none leaves none.
void FrmTexto::DejarCarga() {
  gral_.ArchivoActual = ArchivoMostrado();
  principal_.DarFoco();
}

bool FrmTexto::TextBox_KeyPress() {
  if (VeOpciones() || VeFavoritas()) return false;
  MarcarEdicion();
  return true;
}

void FrmTexto::TextBox_KeyDown() {
  MarcarEdicion();
}

// Told when the key, the drop or the menu is done with.
void FrmTexto::FaltaMemoria() {
  const auto avisar = [this] {
    escritorio_.mensajes.Critico(*this, Resultado::Fallo(ENOMEM).Motivo(),
                                 QStringLiteral("ERROR AL CAMBIAR EL TEXTO"));
  };
  QMetaObject::invokeMethod(this, avisar, Qt::QueuedConnection);
}

void FrmTexto::MarcarEdicion() {
  PanelGuardar().show();
  if (Titulo() == TituloSinArchivo) {
    gral_.ArchivoNuevo = true;
    PonerSinArchivo(TituloNuevo);
  }
}

void FrmTexto::CmdGuardar_Click() {
  const Activacion::Manejador manejador(LaActivacion());
  if (gral_.ArchivoNuevo || !MuestraArchivo()) {  // the main window asks for the name and writes
    gral_.Contenido = documento_.Entero();
    PonerSinArchivo(TituloNuevo);
    gral_.ArchivoNuevo = false;
    gral_.GuardarComo = true;
  } else {
    const QString archivo = ArchivoMostrado();  // while another is being read, not that one
    const Resultado guardado =
        ReemplazarArchivo(archivo, documento_.Texto().Tramos(), Duracion::Sincronizada);
    if (!guardado.Bien()) {
      escritorio_.mensajes.Critico(*this, guardado.Motivo(),
                                   QStringLiteral("ERROR AL GUARDAR EL ARCHIVO"));
      principal_.DarFoco();
      return;
    }
    PonerArchivo(archivo);
  }
  CajaVisible().setFocus();
  EsconderGuardar();
  DarFocoAPrincipal();
}

void FrmTexto::CmdCancelar_Click() {
  const Activacion::Manejador manejador(LaActivacion());
  gral_.ArchivoNuevo = false;
  if (Titulo() == TituloNuevo) PonerSinArchivo(TituloSinArchivo);
  if (CargarArchivo()) {
    CajaVisible().setFocus();
    EsconderGuardar();
  }
}

CajaTexto& FrmTexto::CajaVisible() {
  return TextBox[1]->isHidden() ? *TextBox[0] : *TextBox[1];
}
