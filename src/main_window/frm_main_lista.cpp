// The open-file list of the main window: adding, selecting and removing an entry.
#include "main_window/etiqueta_total.h"
#include "main_window/frm_main.h"
#include "main_window/vista_lista.h"
#include "platform/ayuda_literal.h"
#include "platform/fuentes.h"
#include "text_window/frm_texto.h"

namespace {

constexpr int LargoSinAyuda = 22;             // characters that the list shows whole
constexpr QRect PapelTotal(10, 120, 23, 17);  // pixels: inside the edge of the paper for the count

}  // namespace

void FrmMain::AgregarArchivo() {
  const Activacion::Manejador manejador(LaActivacion());
  const QString ruta = gral_.ArchivoActual;
  CarpetaActual = ruta.left(ruta.lastIndexOf(SeparadorRuta) + 1);
  int indice = lista_.Buscar(ruta);
  if (indice < 0) {
    if (lista_.Llena()) {
      gral_.ArchivoActual = gral_.ArchivoCargado;
      AvisarListaLlena(1);
      return;
    }
    indice = lista_.Agregar(ruta);
    MostrarTotal();
  }
  Seleccionar(indice);
}

// Later: at the start the favourites are listed before there is a window to say it over.
void FrmMain::AvisarListaLlena(int fuera) {
  const QString resto = fuera == 1 ? QStringLiteral("Un archivo se ha quedado fuera.")
                                   : QStringLiteral("%1 archivos se han quedado fuera.").arg(fuera);
  const QString aviso =
      QStringLiteral("La lista ya tiene %1 archivos y no admite más. ").arg(lista_.Total()) + resto;
  const auto avisar = [this, aviso] {
    escritorio_.mensajes.Critico(*this, aviso, QStringLiteral("LISTA LLENA"));
  };
  QMetaObject::invokeMethod(this, avisar, Qt::QueuedConnection);
}

// Selecting by program always runs the click handler.
void FrmMain::Seleccionar(int indice) {
  ListBox->Seleccionar(indice);
  ListBox_Click();
}

void FrmMain::ListBox_Click() {
  const Activacion::Manejador manejador(LaActivacion());
  const int indice = ListBox->IndiceSeleccionado();
  const QString& nombre = lista_.Nombre(indice);
  PonerAyudaLiteral(*ListBox, nombre.size() > LargoSinAyuda ? nombre : QString());
  gral_.ArchivoActual = lista_.Rutas(indice);
  if (texto_ != nullptr && texto_->Visible()) {
    RestaurarMinimizada(*texto_);
    texto_->DarFoco();
  } else {
    gral_.ArchivoCargado.clear();
    Texto().Mostrar();
  }
}

// An arrow at an end of the list. The keyboard stays there, where a Delete after it belongs.
void FrmMain::ReponerTexto() {
  if (texto_ == nullptr || !texto_->Visible()) {
    ListBox_Click();
  } else if (texto_->Estado() == EstadoVentana::Minimizada) {
    const Activacion::Manejador manejador(LaActivacion());
    texto_->PonerEstado(EstadoVentana::Normal);
    DarFoco();
  }
}

void FrmMain::ListBox_KeyDown(int codigo) {
  const int indice = ListBox->IndiceSeleccionado();
  if (codigo != CodigoSuprimir || indice < 0) return;
  const Activacion::Manejador manejador(LaActivacion());
  lista_.Quitar(indice);
  if (lista_.Total() > 0) {
    Seleccionar(std::max(indice - 1, 0));
  } else {
    PonerAyudaLiteral(*ListBox, {});
    gral_.ArchivoActual = ArchivoNinguno;
    gral_.ArchivoCargado.clear();
    TraerTexto();
  }
  MostrarTotal();
}

// From three digits on it takes all of the paper that is drawn under it.
void FrmMain::MostrarTotal() {
  LblTotal->Contar(lista_.Total());
  QRect sitio = RectTotal.EnPixeles();
  if (LblTotal->text().size() > 2) {
    sitio.setLeft(PapelTotal.left());
    sitio.setRight(PapelTotal.right());
  }
  LblTotal->setFont(Estrechada(LblTotal->font(), LblTotal->text(), sitio.width()));
  LblTotal->setGeometry(sitio);
}
