#include "text_window/marco_titulado.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include "platform/controles.h"
#include "platform/fuentes.h"

namespace {

constexpr qreal PuntosTitulo = 9.75;

}  // namespace

MarcoTitulado::MarcoTitulado(QWidget* padre, const QString& nombre, const QString& titulo,
                             const RectTwips& rect)
    : QFrame(padre), titulo_(titulo), fuente_titulo_(FuenteDe(FuenteControles, PuntosTitulo)) {
  fuente_titulo_.setBold(true);
  Colocar(*this, nombre, rect);
  setAccessibleName(titulo);
  setAutoFillBackground(true);
  hide();
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
