#include "text_window/panel_guardar.h"

#include "platform/boton_dibujo.h"
#include "platform/controles.h"
#include "text_window/marco_titulado.h"

namespace {

constexpr RectTwips RectPanel{0, 40, 1215, 680};
constexpr RectTwips RectGuardar{50, 140, 495, 480};
constexpr RectTwips RectCancelar{660, 140, 495, 480};
constexpr int LadoDibujo = 26;  // pixels

QToolButton* Boton(QWidget* padre, const QString& nombre, const RectTwips& rect,
                   const QString& dibujo, const QString& ayuda) {
  auto* boton =
      CrearBoton(padre, {nombre, rect, dibujo, {LadoDibujo, LadoDibujo}, Qt::white, ayuda});
  boton->setToolTip(ayuda);
  boton->setCursor(MarcoTitulado::Flecha());
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
