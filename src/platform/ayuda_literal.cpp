#include "platform/ayuda_literal.h"

#include <QFontMetrics>
#include <QScreen>
#include <QToolTip>
#include <QWidget>

// Rich text always: the toolkit would take some names for it. What forbids a line to be broken
// belongs to a paragraph, and is not heeded in a part of one.
void PonerAyudaLiteral(QWidget& control, const QString& texto) {
  control.setAccessibleDescription(texto);  // else a screen reader is told the marks, too
  const int ancho = QFontMetrics(QToolTip::font()).horizontalAdvance(texto);
  const bool cabe = ancho < control.screen()->availableGeometry().width();
  const QString blancos = cabe ? QStringLiteral("pre") : QStringLiteral("pre-wrap");
  control.setToolTip(texto.isEmpty() ? QString()
                                     : QStringLiteral("<div style='white-space:%1'>%2</div>")
                                           .arg(blancos, texto.toHtmlEscaped()));
}
