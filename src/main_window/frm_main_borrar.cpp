// The main window's commands "Borrar" and "Información", each with its own window.
#include "about_window/frm_autor.h"
#include "delete_window/frm_borrar.h"
#include "main_window/frm_main.h"
#include "main_window/vista_lista.h"

void FrmMain::ComandoBorrar() {
  if (ListBox->IndiceSeleccionado() < 0) {
    escritorio_.mensajes.Critico(*this,
                                 lista_.Total() > 0
                                     ? QStringLiteral("Seleccione el archivo a eliminar")
                                     : QStringLiteral("NO HAY ARCHIVOS ABIERTOS"),
                                 QStringLiteral("IMPOSIBLE ELIMINAR"));
    return;
  }
  FrmBorrar confirmacion(gral_, escritorio_, *this);
  gral_.AccionBorrar = AccionPapelera;
  if (gral_.opciones.Confirmar) {
    gral_.AccionBorrar = AccionNada;
    confirmacion.MostrarModal(*this);
  }
  if (gral_.AccionBorrar == AccionPapelera) {
    EnviarPapelera(lista_.Rutas(ListBox->IndiceSeleccionado()));
  }
  if (gral_.AccionBorrar == AccionPapelera || gral_.AccionBorrar == AccionQuitar) {
    ListBox_KeyDown(CodigoSuprimir);
  }
  confirmacion.Cerrar();
}

// Whatever becomes of the file, its entry leaves the list. It is never erased unasked.
void FrmMain::EnviarPapelera(const QString& ruta) {
  if (escritorio_.papelera.Enviar(ruta) != Envio::SinPapelera) return;
  const bool eliminar = escritorio_.mensajes.Preguntar(
      *this,
      QStringLiteral("Este archivo no se puede mover a la papelera de reciclaje:\n\n") + ruta +
          QStringLiteral("\n\n¿Desea eliminarlo definitivamente?"),
      QStringLiteral("ELIMINAR ARCHIVO"));
  if (eliminar) escritorio_.papelera.Eliminar(ruta);
}

void FrmMain::ComandoInformacion() {
  if (autor_ == nullptr) {
    autor_ = std::make_unique<FrmAutor>(escritorio_);
    connect(autor_.get(), &Ventana::Cerrada, this, &FrmMain::AutorCerrado);
  }
  RestaurarMinimizada(*autor_);
  autor_->Mostrar();
}

// A closed window is gone; it may still be inside its own event.
void FrmMain::AutorCerrado() {
  autor_.release()->deleteLater();
}
