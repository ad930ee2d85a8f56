// The controls of the favourites manager.
#include <algorithm>

#include <QApplication>

#include "platform/controles.h"
#include "platform/fuentes.h"
#include "text_window/panel_favoritas.h"

namespace {

constexpr RectTwips RectPanel{40, 40, 4410, 4455};
constexpr RectTwips RectEstados{2280, 600, 1935, 615};
constexpr int MargenEstado = 60;  // from the border to the lines, on either side
constexpr int AltoEstado = 165;   // twips
constexpr qreal PuntosEstado = 6.75;
constexpr qreal PuntosTituloLista = 8.25;
constexpr QSize TamanoDibujo(48, 48);  // pixels

struct Etiqueta {
  QString texto;
  RectTwips rect;
};

QLabel* NuevaEtiqueta(QWidget* padre, const QString& nombre, int indice, const RectTwips& rect) {
  auto* etiqueta = new QLabel(padre);
  Disponer(*etiqueta, QStringLiteral("%1(%2)").arg(nombre).arg(indice), rect);
  etiqueta->setTextFormat(Qt::PlainText);
  return etiqueta;
}

void PonerNegrita(QWidget& control, const QString& familia, qreal puntos) {
  QFont fuente = FuenteDe(familia, puntos);
  fuente.setBold(true);
  control.setFont(fuente);
}

// The panel's background is not that of the scroll bars inside it.
void PonerFondoPropio(QWidget& lista) {
  QPalette paleta;
  paleta.setColor(QPalette::Window, QApplication::palette().color(QPalette::Window));
  lista.setPalette(paleta);
}

}  // namespace

FraFavoritas::FraFavoritas(ModGral& gral, Unidades& unidades, QWidget* padre)
    : MarcoTitulado(padre, QStringLiteral("FraFavoritas"), QStringLiteral("Carpetas Favoritas:"),
                    RectPanel),
      gral_(gral) {
  CrearEtiquetas();
  DrvUnidad = new ListaUnidades(unidades, this);  // in the order in which Tab walks through them
  DirCarpeta = new ListaCarpetas(unidades, this);
  const QColor fondo = QApplication::palette().color(QPalette::Button);
  CmdAnhadir = CrearBotonDibujo(this, {QStringLiteral("CmdAnhadir"),
                                       {3360, 1560, 945, 855},
                                       QStringLiteral("anadir"),
                                       TamanoDibujo,
                                       fondo,
                                       QStringLiteral("Añadir carpeta")});
  LstFav = new ListaFavoritas(this);
  CmdQuitar = CrearBotonDibujo(this, {QStringLiteral("CmdQuitar"),
                                      {3360, 3240, 945, 855},
                                      QStringLiteral("quitar"),
                                      TamanoDibujo,
                                      fondo,
                                      QStringLiteral("Quitar carpeta seleccionada")});
  CmdCerrarFav = CrearCerrar(QStringLiteral("CmdCerrarFav"), {3720, 180, 615, 255});
  DisponerListas();
  connect(DrvUnidad, &ListaUnidades::Cambiada, this, &FraFavoritas::DrvUnidad_Change);
  connect(DirCarpeta, &ListaCarpetas::NoAbierta, this, &FraFavoritas::AvisarNoAbierta);
  connect(CmdAnhadir, &QToolButton::clicked, this, &FraFavoritas::CmdAnhadir_Click);
  connect(CmdQuitar, &QToolButton::clicked, this, &FraFavoritas::CmdQuitar_Click);
  connect(CmdCerrarFav, &QPushButton::clicked, this, &FraFavoritas::CmdCerrarFav_Click);
}

void FraFavoritas::CrearEtiquetas() {
  const std::array<Etiqueta, 3> textos{{
      {QStringLiteral("1. Seleccione unidad de disco..."), {120, 300, 2280, 195}},
      {QStringLiteral("2. Seleccione carpeta..."), {120, 1005, 1695, 195}},
      {QStringLiteral("Lista de las carpetas favoritas:"), {360, 2880, 2640, 195}},
  }};
  for (int i = 0; i < 3; ++i) {
    LblInfoFav[i] = NuevaEtiqueta(this, QStringLiteral("LblInfoFav"), i, textos[i].rect);
    LblInfoFav[i]->setText(textos[i].texto);
  }
  PonerNegrita(*LblInfoFav[2], FuenteControles, PuntosTituloLista);
  for (QLabel* etiqueta : LblInfoFav) {  // never narrower than its words
    etiqueta->resize(std::max(etiqueta->width(), etiqueta->sizeHint().width()), etiqueta->height());
  }
  Shape1 = new QFrame(this);
  Disponer(*Shape1, QStringLiteral("Shape1"), RectEstados);
  Shape1->setFrameStyle(QFrame::Box | QFrame::Plain);
  const std::array altos{660, 820, 1000};
  for (int i = 0; i < 3; ++i) {
    LblEstado[i] = NuevaEtiqueta(this, QStringLiteral("LblEstado"), i,
                                 {RectEstados.izquierda + MargenEstado, altos[i],
                                  RectEstados.ancho - 2 * MargenEstado, AltoEstado});
    PonerNegrita(*LblEstado[i], QStringLiteral("Small Fonts"), PuntosEstado);
  }
}

void FraFavoritas::DisponerListas() const {
  Disponer(*DrvUnidad, QStringLiteral("DrvUnidad"), {120, 600, 1815, 315});
  Disponer(*DirCarpeta, QStringLiteral("DirCarpeta"), {120, 1320, 3135, 1440});
  Disponer(*LstFav, QStringLiteral("LstFav"), {120, 3120, 3135, 1230});
  DrvUnidad->setAccessibleName(QStringLiteral("Unidad de disco"));
  DrvUnidad->setAccessibleDescription(QStringLiteral("Unidad de disco"));
  DirCarpeta->setAccessibleName(QStringLiteral("Carpetas"));
  LstFav->setAccessibleName(QStringLiteral("Carpetas favoritas"));
  DrvUnidad->setCursor(Flecha());
  DirCarpeta->setCursor(Flecha());
  LstFav->setTextElideMode(Qt::ElideNone);
  PonerFondoPropio(*DirCarpeta);
  PonerFondoPropio(*LstFav);
}
