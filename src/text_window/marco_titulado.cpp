#include "text_window/marco_titulado.h"

#include <QKeyEvent>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include "platform/controles.h"
#include "platform/dibujos.h"
#include "platform/fuentes.h"

namespace {

constexpr qreal PuntosTitulo = 9.75;
constexpr QColor CianClaro(128, 255, 255);

}  // namespace

MarcoTitulado::MarcoTitulado(QWidget* padre, const QString& nombre, const QString& titulo,
                             const RectTwips& rect)
    : QFrame(padre), titulo_(titulo), fuente_titulo_(FuenteDe(FuenteControles, PuntosTitulo)) {
  fuente_titulo_.setBold(true);
  Disponer(*this, nombre, rect);
  setAccessibleName(titulo);
  setAutoFillBackground(true);
  hide();
}

QToolButton* MarcoTitulado::CrearBotonDibujo(QWidget* panel, const AspectoBoton& aspecto) {
  QToolButton* boton = CrearBoton(panel, aspecto);
  boton->setToolTip(aspecto.accesible);
  boton->setCursor(Flecha());
  return boton;
}

QPushButton* MarcoTitulado::CrearCerrar(const QString& nombre, const RectTwips& rect) {
  auto* boton = new QPushButton(QStringLiteral("Cerrar"), this);
  Disponer(*boton, nombre, rect);
  boton->setCursor(Flecha());
  QPalette paleta;
  paleta.setColor(QPalette::Button, CianClaro);
  boton->setPalette(paleta);
  return boton;
}

QCursor MarcoTitulado::Flecha() {
  return Puntero(QStringLiteral("puntero_flecha"), 0, 0);
}

bool MarcoTitulado::focusNextPrevChild(bool siguiente) {
  QWidgetList vuelta = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  vuelta.removeIf([](const QWidget* control) {
    return control->isHidden() || (control->focusPolicy() & Qt::TabFocus) == 0;
  });
  if (vuelta.isEmpty()) return false;
  const qsizetype pasos = siguiente ? 1 : vuelta.size() - 1;
  QWidget* destino = vuelta[(vuelta.indexOf(focusWidget()) + pasos) % vuelta.size()];
  destino->setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

void MarcoTitulado::keyPressEvent(QKeyEvent* evento) {
  auto* boton = qobject_cast<QAbstractButton*>(focusWidget());
  const bool intro = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (intro && boton != nullptr && !boton->isCheckable()) {
    boton->click();
  } else {
    QFrame::keyPressEvent(evento);
  }
}

void MarcoTitulado::paintEvent(QPaintEvent* /*evento*/) {
  QStylePainter pintor(this);
  pintor.setFont(fuente_titulo_);
  QStyleOptionGroupBox marco;
  marco.initFrom(this);
  marco.fontMetrics = QFontMetrics(fuente_titulo_);
  marco.text = titulo_;
  marco.textAlignment = Qt::AlignLeft;
  marco.textColor = palette().color(QPalette::WindowText);
  marco.lineWidth = 1;
  marco.midLineWidth = 0;
  marco.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
  pintor.drawComplexControl(QStyle::CC_GroupBox, marco);
}
