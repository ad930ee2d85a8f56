#include "main_window/frm_main.h"

#include <chrono>

#include <QCoreApplication>
#include <QPainter>

#include "about_window/frm_autor.h"
#include "main_window/etiqueta_total.h"
#include "main_window/vista_lista.h"
#include "platform/controles.h"
#include "platform/dibujos.h"
#include "platform/fuentes.h"
#include "platform/imagen.h"
#include "shared/ruta_guardada.h"
#include "text_window/frm_texto.h"

namespace {

const QString TituloPrincipal = QStringLiteral("Velda...");
constexpr QSize TamanoFondo(150, 327);  // pixels: the background picture's

constexpr RectTwips RectLista{270, 2180, 1740, 2400};
constexpr RectTwips RectError{790, 585, 675, 195};
constexpr qreal PuntosEtiqueta = 8.25;

constexpr QRect RectRotulo(9, 94, 77, 17);  // pixels: between the icons and the folder
constexpr QColor ColorRotulo(0x10, 0x53, 0x4b);

constexpr std::chrono::milliseconds EsperaError{4000};

void Preparar(QLabel& etiqueta, const QString& nombre, const RectTwips& rect) {
  Disponer(etiqueta, nombre, rect);
  etiqueta.setTextFormat(Qt::PlainText);
  etiqueta.setAlignment(Qt::AlignCenter);
  QFont fuente = FuenteDe(FuenteControles, PuntosEtiqueta);
  fuente.setBold(true);
  etiqueta.setFont(fuente);
  etiqueta.setAttribute(Qt::WA_NoMousePropagation);
}

void PintarTexto(QWidget& control, const QColor& texto) {
  QPalette colores = control.palette();
  colores.setColor(QPalette::WindowText, texto);
  control.setPalette(colores);
}

}  // namespace

FrmMain::FrmMain(ModGral& gral, const Escritorio& escritorio)
    : Ventana(escritorio.activacion, Marco::FijoConMinimizar),
      gral_(gral),
      escritorio_(escritorio) {
  setObjectName(QStringLiteral("FrmMain"));
  PonerTitulo(TituloPrincipal);
  setWindowIcon(Icono(QStringLiteral("velda")));
  setFixedSize(TamanoFondo);
  setMouseTracking(true);
  setAttribute(Qt::WA_AlwaysShowToolTips);  // it is read while the keyboard is in the text
  CrearLista();
  CrearEtiquetas();
  CrearIconos();
}

FrmMain::~FrmMain() = default;

void FrmMain::CrearLista() {
  ListBox = new VistaLista(this);
  Disponer(*ListBox, QStringLiteral("ListBox"), RectLista);
  ListBox->setAccessibleName(QStringLiteral("Archivos"));
  ListBox->setModel(&lista_);
  connect(ListBox, &VistaLista::Elegida, this, &FrmMain::ListBox_Click);
  connect(ListBox, &VistaLista::Insistida, this, &FrmMain::ReponerTexto);
  connect(ListBox, &VistaLista::TeclaPulsada, this, &FrmMain::ListBox_KeyDown);
}

void FrmMain::CrearEtiquetas() {
  LblTotal = new EtiquetaTotal(this);
  Preparar(*LblTotal, QStringLiteral("LblTotal"), RectTotal);
  LblTotal->setAccessibleDescription(QStringLiteral("Número de archivos abiertos"));
  PintarTexto(*LblTotal, Qt::black);
  LblError = new QLabel(this);
  Preparar(*LblError, QStringLiteral("LblError"), RectError);
  PintarTexto(*LblError, Qt::white);
  LblError->setAutoFillBackground(true);
  QPalette negro = LblError->palette();
  negro.setColor(QPalette::Window, Qt::black);
  LblError->setPalette(negro);
  LblError->setWordWrap(true);
  LblError->hide();
  TmrError.setObjectName(QStringLiteral("TmrError"));
  TmrError.setSingleShot(true);
  TmrError.setInterval(EsperaError);
  connect(&TmrError, &QTimer::timeout, this, &FrmMain::TmrError_Timer);
}

// The order of these steps is the program's start.
void FrmMain::Form_Load() {
  EstablecerRutas(gral_, QCoreApplication::applicationDirPath());
  gral_.ArchivoNuevo = gral_.GuardarComo = gral_.VerOpciones = gral_.VerFavoritas = false;
  LeerAjustes();
  if (gral_.opciones.Favoritas || !LblTotal->TieneDibujo()) escritorio_.fuentes.Adelantar();
  if (gral_.opciones.Favoritas) ImgMenu_Click(IconoFavoritas);
  Texto().Mostrar();
  ImgMenu_Click(IconoVisible);
}

void FrmMain::LeerAjustes() {
  const auto leer = [this](QStringView seccion, QStringView clave, QStringView defecto) -> Perfil& {
    gral_.perfil.Leer(gral_.ArchivoINI, seccion, clave, defecto);
    return gral_.perfil;
  };
  const int izquierda = leer(u"PosTam", u"PrinIzda", u"615").Entero16(615);
  const int arriba = leer(u"PosTam", u"PrinArriba", u"615").Entero16(615);
  PonerPosicion(izquierda, arriba);
  CarpetaActual = RutaGuardada(leer(u"Inicial", u"Carpeta", u"c:\\").Valor());
  gral_.opciones.Leer(gral_.perfil, gral_.ArchivoINI, LeePrincipal);
  ActivarVisible = gral_.opciones.Visible;
}

void FrmMain::Form_Resize() {
  if (Estado() == EstadoVentana::Minimizada) {
    PonerTituloSiDistinto(TituloPrincipal);
  } else if (texto_ != nullptr && texto_->Visible()) {
    texto_->PonerEstado(EstadoVentana::Normal);
  }
}

void FrmMain::Form_Deactivate() {
  Form_MouseMove();
}

void FrmMain::Form_MouseMove() {
  ImgSel[IconoActual]->hide();
  PonerTituloSiDistinto(TituloPrincipal);
  PonerRotulo({});
}

void FrmMain::Form_Unload() {
  if (texto_ != nullptr) texto_->Cerrar();
  const QString ini = gral_.ArchivoINI;
  const Perfil::Juntos juntos(gral_.perfil, ini);
  const RectTwips rect = Rectangulo();
  gral_.perfil.Escribir(ini, u"PosTam", u"PrinIzda", QString::number(rect.izquierda));
  gral_.perfil.Escribir(ini, u"PosTam", u"PrinArriba", QString::number(rect.arriba));
  gral_.perfil.Escribir(ini, u"Inicial", u"Carpeta", RutaAGuardar(CarpetaActual));
  gral_.opciones.Escribir(gral_.perfil, ini, EscribePrincipal);
  QCoreApplication::exit(0);
}

void FrmMain::mouseMoveEvent(QMouseEvent* /*evento*/) {
  Form_MouseMove();
}

// Most desktops cut a caption that is 150 pixels wide. A part of the picture, so that neither the
// mouse nor a screen reader, which has the icon's name already, meets it.
void FrmMain::PonerRotulo(const QString& rotulo) {
  if (rotulo != rotulo_) {
    rotulo_ = rotulo;
    update(RectRotulo);
  }
}

void FrmMain::PintarRotulo(QPainter& pintor) const {
  QFont fuente = FuenteDe(FuenteControles, PuntosEtiqueta);
  fuente.setBold(true);
  pintor.setFont(Estrechada(fuente, rotulo_, RectRotulo.width()));
  pintor.setPen(ColorRotulo);
  pintor.drawText(RectRotulo, Qt::AlignLeft | Qt::AlignVCenter, rotulo_);
}

void FrmMain::paintEvent(QPaintEvent* /*evento*/) {
  if (fondo_.isNull() || fondo_.devicePixelRatio() != devicePixelRatioF()) {
    fondo_ = Dibujo(QStringLiteral("fondo_principal"), TamanoFondo, devicePixelRatioF());
  }
  QPainter pintor(this);
  pintor.drawPixmap(0, 0, fondo_);
  if (!rotulo_.isEmpty()) PintarRotulo(pintor);
}

FrmTexto& FrmMain::Texto() {
  if (texto_ == nullptr) {
    texto_ = std::make_unique<FrmTexto>(gral_, escritorio_, *this);
    connect(texto_.get(), &Ventana::Cerrada, this, &FrmMain::TextoCerrado);
  }
  return *texto_;
}

// A closed text window is gone; it may still be inside its own event.
void FrmMain::TextoCerrado() {
  texto_.release()->deleteLater();
}

void FrmMain::RestaurarMinimizada(Ventana& ventana) {
  if (ventana.Estado() == EstadoVentana::Minimizada) ventana.PonerEstado(EstadoVentana::Normal);
}

void FrmMain::TraerTexto() {
  if (texto_ != nullptr && texto_->Visible()) {
    texto_->DarFoco();
  } else {
    Texto().Mostrar();
  }
}
