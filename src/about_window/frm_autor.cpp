#include "about_window/frm_autor.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>

#include "about_window/direcciones.h"
#include "platform/boton_dibujo.h"
#include "platform/controles.h"
#include "platform/dibujos.h"
#include "platform/fuentes.h"
#include "platform/imagen.h"

namespace {

const QString TituloAutor = QStringLiteral("Información sobre el programa...");
constexpr RectTwips RectVentana{0, 0, 3750, 2235};  // the client area
constexpr RectTwips RectFoco{360, 1680, 375, 255};
constexpr RectTwips RectVersion{2960, 320, 315, 240};
constexpr qreal PuntosVersion = 9.75;
constexpr QSize TamanoDibujo(36, 36);

struct Enlace {
  QString titulo;  // caption while the mouse is over the button
  QString ayuda;
  QString direccion;
  QString dibujo;
  RectTwips rect;
};

const std::array<Enlace, FrmAutor::Enlaces>& LosEnlaces() {
  static const std::array<Enlace, FrmAutor::Enlaces> enlaces{{
      {QStringLiteral("Visitar WEB del programa..."),
       PaginaWeb,
       PaginaWeb,
       QStringLiteral("web"),
       {240, 1470, 615, 640}},
      {QStringLiteral("Enviar e-mail al autor..."),
       CorreoAutor,
       QStringLiteral("mailto:") + CorreoAutor,
       QStringLiteral("correo"),
       {960, 1470, 615, 640}},
  }};
  return enlaces;
}

}  // namespace

FrmAutor::FrmAutor(const Escritorio& escritorio)
    : Ventana(escritorio.activacion, Marco::Fijo), escritorio_(escritorio) {
  setObjectName(QStringLiteral("FrmAutor"));
  setWindowIcon(Icono(QStringLiteral("velda")));
  PonerTitulo(TituloAutor);
  setFixedSize(RectVentana.EnPixeles().size());
  auto* fondo = new Imagen(this, QStringLiteral("fondo_autor"));
  fondo->setGeometry(rect());
  connect(fondo, &Imagen::RatonMovido, this, &FrmAutor::Form_MouseMove);
  CrearVersion();
  CrearBotones();
}

void FrmAutor::CrearVersion() {
  auto* LblVer = new QLabel(QStringLiteral("1.1"), this);
  Disponer(*LblVer, QStringLiteral("LblVer"), RectVersion);
  QFont fuente = FuenteDe(FuenteControles, PuntosVersion);
  fuente.setBold(true);
  LblVer->setFont(fuente);
  QPalette colores = LblVer->palette();
  colores.setColor(QPalette::WindowText, QColor(128, 0, 0));
  LblVer->setPalette(colores);
}

// CmdFoco comes first: first in the tab order, and below the button that covers it.
void FrmAutor::CrearBotones() {
  CmdFoco = new QPushButton(QStringLiteral("Command1"), this);
  Disponer(*CmdFoco, QStringLiteral("CmdFoco"), RectFoco);
  CmdFoco->setAccessibleName(TituloAutor);
  for (int i = 0; i < Enlaces; ++i) {
    const Enlace& enlace = LosEnlaces()[i];
    CmdAutor[i] = CrearBoton(this, {QStringLiteral("CmdAutor(%1)").arg(i), enlace.rect,
                                    enlace.dibujo, TamanoDibujo, Qt::white, enlace.titulo});
    CmdAutor[i]->setCursor(Puntero(QStringLiteral("puntero_mano"), 0, 0));
    CmdAutor[i]->setToolTip(enlace.ayuda);
    CmdAutor[i]->setMouseTracking(true);
    CmdAutor[i]->installEventFilter(this);
    connect(CmdAutor[i], &QToolButton::clicked, this, [this, i] { CmdAutor_Click(i); });
  }
  CmdFoco->setFocus();
}

// The caption is written only when another one is shown, which its first two letters tell.
void FrmAutor::Nombrar(const QString& titulo) {
  if (!Titulo().startsWith(titulo.left(2))) PonerTitulo(titulo);
}

void FrmAutor::Form_MouseMove() {
  Nombrar(TituloAutor);
}

void FrmAutor::CmdAutor_MouseMove(int indice) {
  Nombrar(LosEnlaces()[indice].titulo);
}

void FrmAutor::CmdAutor_Click(int indice) {
  CmdFoco->setFocus();
  escritorio_.abridor.AbrirDireccion(LosEnlaces()[indice].direccion);
}

bool FrmAutor::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::MouseMove) {
    for (int i = 0; i < Enlaces; ++i) {
      if (objeto == CmdAutor[i]) CmdAutor_MouseMove(i);
    }
  }
  return Ventana::eventFilter(objeto, evento);
}
