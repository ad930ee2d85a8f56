#include "text_window/panel_guardar.h"

#include "platform/controles.h"
#include "platform/dibujos.h"

namespace {

constexpr RectTwips RectPanel{0, 40, 1215, 680};
constexpr RectTwips RectGuardar{50, 140, 495, 480};
constexpr RectTwips RectCancelar{660, 140, 495, 480};
constexpr int LadoDibujo = 26;  // pixels

QToolButton* Boton(QWidget* padre, const QString& nombre, const RectTwips& rect,
                   const QString& dibujo, const QString& ayuda) {
  auto* boton = new QToolButton(padre);
  Colocar(*boton, nombre, rect);
  boton->setIcon(Icono(dibujo));
  boton->setIconSize({LadoDibujo, LadoDibujo});
  boton->setToolTip(ayuda);
  boton->setAccessibleName(ayuda);
  boton->setCursor(Puntero(QStringLiteral("puntero_flecha"), 0, 0));
  boton->setFocusPolicy(Qt::StrongFocus);
  QPalette blanco;
  blanco.setColor(QPalette::Button, Qt::white);
  boton->setPalette(blanco);
  return boton;
}

}  // namespace

FraGuardar::FraGuardar(QWidget* padre) : QFrame(padre) {
  Colocar(*this, QStringLiteral("FraGuardar"), RectPanel);
  setFrameStyle(QFrame::Box | QFrame::Sunken);
  setAutoFillBackground(true);
  setAccessibleName(QStringLiteral("Guardar o cancelar"));
  CmdGuardar = Boton(this, QStringLiteral("CmdGuardar"), RectGuardar, QStringLiteral("guardar"),
                     QStringLiteral("Guardar cambios..."));
  CmdCancelar = Boton(this, QStringLiteral("CmdCancelar"), RectCancelar, QStringLiteral("cancelar"),
                      QStringLiteral("Cancelar"));
  hide();
}
