// The ten icon commands of the main window.
#include <utility>

#include <QFileInfo>

#include "main_window/frm_main.h"
#include "main_window/vista_lista.h"
#include "platform/controles.h"
#include "platform/dibujos.h"
#include "platform/imagen.h"
#include "text_window/frm_texto.h"

const std::array<FrmMain::Comando, FrmMain::Iconos>& FrmMain::Comandos() {
  static constexpr std::array<Comando, Iconos> comandos{{
#define ICONO(comando, texto, mi, ma, mancho, malto, si, sa, sancho, salto, espera) \
  {texto, {mi, ma, mancho, malto}, {si, sa, sancho, salto}, espera, &FrmMain::Comando##comando},
#include "main_window/iconos.inc"
  }};
  return comandos;
}

void FrmMain::CrearIconos() {
  for (int i = 0; i < Iconos; ++i) {
    const Comando& comando = Comandos()[i];
    ImgSel[i] = new Imagen(this, QStringLiteral("seleccion_%1").arg(i));
    Disponer(*ImgSel[i], QStringLiteral("ImgSel(%1)").arg(i), comando.sel);
    ImgSel[i]->setAttribute(Qt::WA_TransparentForMouseEvents);
    ImgSel[i]->hide();
  }
  const QCursor puntero = Puntero(QStringLiteral("puntero_menu"), 12, 1);
  for (int i = 0; i < Iconos; ++i) {
    ImgMenu[i] = new Imagen(this);
    Disponer(*ImgMenu[i], QStringLiteral("ImgMenu(%1)").arg(i), Comandos()[i].menu);
    ImgMenu[i]->setAccessibleName(Comandos()[i].texto.toString());
    ImgMenu[i]->setCursor(puntero);
    connect(ImgMenu[i], &Imagen::RatonMovido, this, [this, i] { ImgMenu_MouseMove(i); });
    connect(ImgMenu[i], &Imagen::Pulsada, this, [this, i] { ImgMenu_Click(i); });
  }
}

QString FrmMain::TextoDe(int indice) const {
  QString texto = Comandos()[indice].texto.toString();
  if (indice != IconoVisible) return texto;
  return texto + (ActivarVisible ? QStringLiteral(" NO") : QStringLiteral(" SI"));
}

void FrmMain::ImgMenu_MouseMove(int indice) {
  if (IconoActual != indice) ImgSel[IconoActual]->hide();
  ImgSel[indice]->show();
  IconoActual = indice;
  PonerTituloSiDistinto(TextoDe(indice));
  PonerRotulo(TextoDe(indice));
}

void FrmMain::ImgMenu_Click(int indice) {
  if (indice < 0 || indice >= Iconos) return;
  const Comando& comando = Comandos()[indice];
  if (comando.espera_texto_nuevo && gral_.ArchivoNuevo) return;
  const Activacion::Manejador manejador(LaActivacion());
  (this->*comando.ejecutar)();
}

PeticionArchivo FrmMain::Peticion(const QString& titulo) const {
  return {titulo, CarpetaActual, QStringLiteral("Documentos de texto|*.txt|Todos los archivos|*")};
}

void FrmMain::ComandoAbrir() {
  const QString ruta =
      escritorio_.dialogos.Abrir(*this, Peticion(QStringLiteral("Abrir archivos...")));
  if (!ruta.isEmpty()) {
    gral_.ArchivoActual = ruta;
    AgregarArchivo();
  }
}

void FrmMain::ComandoNuevo() {
  gral_.ArchivoNuevo = true;
  if (Texto().Visible()) RestaurarMinimizada(Texto());
  TraerTexto();
}

void FrmMain::ComandoOpciones() {
  gral_.VerOpciones = true;
  TraerTexto();
}

void FrmMain::ComandoVisible() {
  gral_.opciones.Visible = ActivarVisible;
  escritorio_.encima.Poner(*this, ActivarVisible);
  ActivarVisible = !ActivarVisible;
  MostrarSinActivar();
}

void FrmMain::ComandoAnterior() {
  const int indice = ListBox->IndiceSeleccionado();
  if (indice > 0) Seleccionar(indice - 1);
}

void FrmMain::ComandoSiguiente() {
  const int indice = ListBox->IndiceSeleccionado();
  if (indice < lista_.Total() - 1) Seleccionar(indice + 1);
}

void FrmMain::ComandoAyuda() {
  const QString compilada = gral_.RutaPrograma + QStringLiteral("Ayuda.chm");
  const QString pagina = gral_.RutaPrograma + QStringLiteral("Ayuda/Ayuda.htm");
  escritorio_.abridor.AbrirArchivo(QFileInfo::exists(compilada) ? compilada : pagina);
}

// The text window handed a new text over: ask for its name, write it and list it.
void FrmMain::Form_Activate() {
  if (gral_.GuardarComo) {
    gral_.GuardarComo = false;
    GuardarTextoNuevo();
  }
}

void FrmMain::GuardarTextoNuevo() {
  gral_.ArchivoActual =
      escritorio_.dialogos.Guardar(*this, Peticion(QStringLiteral("Guardar archivo...")));
  if (gral_.ArchivoActual.isEmpty()) {
    gral_.ArchivoNuevo = true;
    return VolverALaLista();
  }
  const TextoEntero contenido = std::exchange(gral_.Contenido, {});
  const Resultado guardado =
      CrearOReemplazarArchivo(gral_.ArchivoActual, contenido.tramos, Duracion::Sincronizada);
  if (!guardado.Bien()) {
    escritorio_.mensajes.Critico(*this, guardado.Motivo(),
                                 QStringLiteral("ERROR AL GUARDAR EL ARCHIVO"));
    return VolverALaLista();
  }
  gral_.ArchivoCargado.clear();  // the name may be that of the file shown before
  AgregarArchivo();
}

// To the selected entry. Without one the new text stays under way: the name that was chosen for it
// is no file to be loaded in its place.
void FrmMain::VolverALaLista() {
  if (ListBox->IndiceSeleccionado() >= 0) {
    gral_.ArchivoCargado.clear();
    ListBox_Click();
  } else {
    gral_.ArchivoActual.clear();
    gral_.ArchivoNuevo = true;
  }
}
