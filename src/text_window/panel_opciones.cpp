#include "text_window/panel_opciones.h"

#include <array>

#include "platform/controles.h"
#include "platform/dibujos.h"

namespace {

constexpr RectTwips RectPanel{40, 40, 3210, 3495};
constexpr RectTwips RectCerrar{2460, 3120, 615, 255};
constexpr int LadoDibujo = 48;  // pixels

struct Boton {
  QToolButton* FraOpciones::*control;
  QString nombre;
  QString texto;
  QString dibujo;
  RectTwips rect;
};

struct FilaCasilla {
  bool Opciones::*opcion;
  QString nombre;
  QString texto;
  RectTwips rect;
};

}  // namespace

// The controls are made in the order in which Tab walks through them.
FraOpciones::FraOpciones(Opciones& opciones, QWidget* padre)
    : MarcoTitulado(padre, QStringLiteral("FraOpciones"), QStringLiteral("Opciones:"), RectPanel),
      opciones_(opciones) {
  CrearBotones();
  CrearCasillas();
  CmdCerrar = CrearCerrar(QStringLiteral("CmdCerrar"), RectCerrar);
}

void FraOpciones::MostrarOpciones() {
  for (const auto& [control, opcion] : casillas_) control->setChecked(opciones_.*opcion);
}

void FraOpciones::CrearBotones() {
  const auto botones = std::to_array<Boton>({
      {&FraOpciones::CmdFuente,
       QStringLiteral("CmdFuente"),
       QStringLiteral("Fuente de letra"),
       QStringLiteral("fuente"),
       {120, 240, 1335, 1095}},
      {&FraOpciones::CmdFColor,
       QStringLiteral("CmdFColor"),
       QStringLiteral("Color del Fondo"),
       QStringLiteral("color_fondo"),
       {1680, 240, 1335, 1095}},
      {&FraOpciones::CmdFavoritas,
       QStringLiteral("CmdFavoritas"),
       QStringLiteral("Selec. Favoritas"),
       QStringLiteral("favoritas"),
       {120, 1440, 1335, 1095}},
  });
  for (const Boton& uno : botones) {
    auto* boton = new QToolButton(this);
    Disponer(*boton, uno.nombre, uno.rect);
    boton->setText(uno.texto);
    boton->setIcon(Icono(uno.dibujo));
    boton->setIconSize({LadoDibujo, LadoDibujo});
    boton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    boton->setFocusPolicy(Qt::StrongFocus);
    boton->setCursor(Flecha());
    this->*uno.control = boton;
  }
}

void FraOpciones::CrearCasillas() {
  const auto casillas = std::to_array<FilaCasilla>({
      {&Opciones::Confirmar,
       QStringLiteral("ChkConfirmar"),
       QStringLiteral("Mostrar\ndiálogo al\neliminar un\narchivo"),
       {1820, 1680, 1095, 795}},
      {&Opciones::Favoritas,
       QStringLiteral("ChkFavoritas"),
       QStringLiteral("Abrir carpetas favoritas al inicio"),
       {120, 2640, 2535, 195}},
      {&Opciones::Ajustar,
       QStringLiteral("ChkAjustar"),
       QStringLiteral("Ajustar el texto a la ventana"),
       {120, 3000, 2535, 195}},
  });
  for (const FilaCasilla& una : casillas) {
    auto* casilla = new QCheckBox(una.texto, this);
    Disponer(*casilla, una.nombre, una.rect);
    casilla->resize(casilla->size().expandedTo({casilla->sizeHint().width(), 0}));
    casilla->setAccessibleName(QString(una.texto).replace(u'\n', u' '));
    casillas_.push_back({casilla, una.opcion});
    connect(casilla, &QCheckBox::toggled, this, [this, opcion = una.opcion](bool marcada) {
      opciones_.*opcion = marcada;
      emit OpcionCambiada();
    });
  }
}
