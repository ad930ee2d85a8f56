#include "text_window/panel_guardar.h"

#include "platform/controles.h"
#include "text_window/marco_titulado.h"

namespace {

constexpr RectTwips RectPanel{0, 40, 1215, 680};
constexpr RectTwips RectGuardar{50, 140, 495, 480};
constexpr RectTwips RectCancelar{660, 140, 495, 480};
constexpr QSize TamanoDibujo(26, 26);  // pixels

}  // namespace

FraGuardar::FraGuardar(QWidget* padre) : QFrame(padre) {
  Disponer(*this, QStringLiteral("FraGuardar"), RectPanel);
  setFrameStyle(QFrame::Box | QFrame::Sunken);
  setAutoFillBackground(true);
  setAccessibleName(QStringLiteral("Guardar o cancelar"));
  CmdGuardar = MarcoTitulado::CrearBotonDibujo(
      this, {QStringLiteral("CmdGuardar"), RectGuardar, QStringLiteral("guardar"), TamanoDibujo,
             Qt::white, QStringLiteral("Guardar cambios...")});
  CmdCancelar = MarcoTitulado::CrearBotonDibujo(
      this, {QStringLiteral("CmdCancelar"), RectCancelar, QStringLiteral("cancelar"), TamanoDibujo,
             Qt::white, QStringLiteral("Cancelar")});
  hide();
}
