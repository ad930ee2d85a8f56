#include "delete_window/frm_borrar.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>

#include "delete_window/texto_ayuda.h"
#include "platform/boton_dibujo.h"
#include "platform/controles.h"
#include "platform/dibujos.h"
#include "platform/fuentes.h"
#include "platform/imagen.h"
#include "text_box/caja_texto.h"

namespace {

const QString PrefijoTitulo = QStringLiteral("Eliminar: ");  // and the file's full path
const QString TituloAyuda = QStringLiteral("PULSE «ESC» PARA CERRAR LA AYUDA");
constexpr RectTwips RectVentana{0, 0, 4455, 2250};  // the client area
constexpr RectTwips RectAyuda{0, 0, 4455, 2260};
constexpr RectTwips RectCasilla{240, 1840, 200, 200};
constexpr int Separacion = 30;  // from the main window's right edge, in twips
constexpr int CodigoEsc = 27;
constexpr qreal PuntosControles = 8.25;
constexpr qreal PuntosPequenos = 6.75;

const QColor AmarilloClaro(255, 255, 128);
const QColor RojoOscuro(128, 0, 0);
const QColor AzulMarino(0, 0, 128);

struct Etiqueta {
  QString texto;
  RectTwips rect;
  QColor color;
  qreal puntos;
  bool negrita;
};

const std::array<Etiqueta, FrmBorrar::Etiquetas>& LasEtiquetas() {
  static const std::array<Etiqueta, FrmBorrar::Etiquetas> etiquetas{{
      {QStringLiteral("Enviar archivo a la papelera de reciclaje"),
       {240, 645, 3465, 195},
       RojoOscuro,
       PuntosControles,
       true},
      {QStringLiteral("Quitar archivo de la lista de «Archivos»"),
       {840, 1155, 3375, 195},
       RojoOscuro,
       PuntosControles,
       true},
      {QStringLiteral("No volver a mostrar esta ventana."),
       {480, 1830, 2400, 195},
       Qt::black,
       PuntosControles,
       false},
      {QStringLiteral("Lea esto:"), {3520, 1500, 570, 165}, AzulMarino, PuntosPequenos, false},
  }};
  return etiquetas;
}

std::array<AspectoBoton, FrmBorrar::Botones> LosBotones() {
  const auto& etiquetas = LasEtiquetas();
  return {{
      {QStringLiteral("CmdBorrar(0)"),
       {3760, 550, 495, 375},
       QStringLiteral("papelera"),
       {16, 16},
       AmarilloClaro,
       etiquetas[0].texto},
      {QStringLiteral("CmdBorrar(1)"),
       {240, 1080, 495, 375},
       QStringLiteral("quitar_lista"),
       {16, 16},
       AmarilloClaro,
       etiquetas[1].texto},
      {QStringLiteral("CmdBorrar(2)"),
       {3600, 1680, 375, 345},
       QStringLiteral("lea_esto"),
       {21, 19},
       Qt::white,
       QStringLiteral("Lea esto")},
  }};
}

}  // namespace

FrmBorrar::FrmBorrar(ModGral& gral, const Escritorio& escritorio, const Ventana& principal)
    : Ventana(escritorio.activacion, Marco::Fijo),
      gral_(gral),
      escritorio_(escritorio),
      principal_(principal) {
  setObjectName(QStringLiteral("FrmBorrar"));
  setWindowIcon(Icono(QStringLiteral("velda")));
  setFixedSize(RectVentana.EnPixeles().size());
  auto* fondo = new Imagen(this, QStringLiteral("fondo_borrar"));
  fondo->setGeometry(rect());
  CrearEtiquetas();
  CrearEleccion();
  CrearAyuda();
}

// It watches its text, which would be gone before the window's children are.
FrmBorrar::~FrmBorrar() {
  delete TxtAyuda;
}

// The check box comes first in the tab order.
void FrmBorrar::CrearEleccion() {
  ChkBorrar = new QCheckBox(this);
  Disponer(*ChkBorrar, QStringLiteral("ChkBorrar"), RectCasilla);
  ChkBorrar->setAccessibleName(LasEtiquetas()[2].texto);
  ChkBorrar->setCursor(Puntero(QStringLiteral("puntero_mano"), 0, 0));
  connect(ChkBorrar, &QCheckBox::toggled, this, &FrmBorrar::ChkBorrar_Click);
  const auto botones = LosBotones();
  for (int i = 0; i < Botones; ++i) {
    CmdBorrar[i] = CrearBoton(this, botones[i]);
    CmdBorrar[i]->setCursor(ChkBorrar->cursor());
    connect(CmdBorrar[i], &QToolButton::clicked, this, [this, i] { CmdBorrar_Click(i); });
  }
}

void FrmBorrar::CrearEtiquetas() {
  for (int i = 0; i < Etiquetas; ++i) {
    const Etiqueta& etiqueta = LasEtiquetas()[i];
    LblInfo[i] = new QLabel(etiqueta.texto, this);
    Disponer(*LblInfo[i], QStringLiteral("LblInfo(%1)").arg(i), etiqueta.rect);
    QFont fuente = FuenteDe(FuenteControles, etiqueta.puntos);
    fuente.setBold(etiqueta.negrita);
    LblInfo[i]->setFont(fuente);
    QPalette colores = LblInfo[i]->palette();
    colores.setColor(QPalette::WindowText, etiqueta.color);
    LblInfo[i]->setPalette(colores);
    // Where the font runs wider than the place that was laid out for it.
    LblInfo[i]->resize(LblInfo[i]->size().expandedTo(LblInfo[i]->sizeHint()));
  }
}

// Its letters are as narrow as the row of hyphens needs to stay one row.
void FrmBorrar::CrearAyuda() {
  ayuda_.PonerTexto(TextoAyuda);
  TxtAyuda = new CajaTexto(ayuda_, CajaTexto::Ajuste::AlAncho, this);
  TxtAyuda->setObjectName(QStringLiteral("TxtAyuda"));
  TxtAyuda->setAccessibleName(QStringLiteral("Ayuda"));
  TxtAyuda->resize(RectAyuda.EnPixeles().size());
  TxtAyuda->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  TxtAyuda->PonerSoloLectura(true);
  const QString guiones = TextoAyuda.section(QStringLiteral("\r\n"), 1, 1);
  const int ancho = TxtAyuda->maximumViewportSize().width() - 2 * Encuadre::Margen;
  TxtAyuda->PonerFuente(Estrechada(FuenteDe(FuenteControles, PuntosControles), guiones, ancho));
  TxtAyuda->PonerColores(Qt::black, Qt::white);
  TxtAyuda->installEventFilter(this);
  TxtAyuda->hide();
}

void FrmBorrar::Form_Load() {
  const RectTwips principal = principal_.Rectangulo();
  PonerPosicion(principal.izquierda + principal.ancho + Separacion,
                principal.arriba + principal.alto / 4);
  PonerTitulo(PrefijoTitulo + gral_.ArchivoActual);
  TxtAyuda->move(RectAyuda.EnPixeles().topLeft());
  ChkBorrar->setFocus();
}

void FrmBorrar::Form_Activate() {
  escritorio_.encima.Poner(*this, false);
}

void FrmBorrar::Form_Unload() {
  gral_.AccionBorrar = AccionNada;
}

void FrmBorrar::CmdBorrar_Click(int indice) {
  gral_.AccionBorrar = static_cast<std::int16_t>(indice);
  if (indice != AccionNada) {
    Ocultar();
    return;
  }
  TituloAnterior = Titulo();
  PonerTitulo(TituloAyuda);
  TxtAyuda->show();
  TxtAyuda->setFocus();
}

void FrmBorrar::ChkBorrar_Click() {
  gral_.opciones.Confirmar = !ChkBorrar->isChecked();
}

bool FrmBorrar::TxtAyuda_KeyPress(int codigo) {
  if (codigo != CodigoEsc) return false;
  TxtAyuda->hide();
  PonerTitulo(TituloAnterior);
  ChkBorrar->setFocus();
  return true;
}

bool FrmBorrar::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == TxtAyuda && evento->type() == QEvent::KeyPress) {
    const QString texto = static_cast<QKeyEvent*>(evento)->text();
    if (!texto.isEmpty() && TxtAyuda_KeyPress(texto.front().unicode())) return true;
  }
  return Ventana::eventFilter(objeto, evento);
}

// The help covers the controls: none of them gets the focus unseen.
bool FrmBorrar::focusNextPrevChild(bool siguiente) {
  return TxtAyuda->isHidden() && Ventana::focusNextPrevChild(siguiente);
}
