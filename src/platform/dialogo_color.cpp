#include "platform/dialogo_color.h"

#include <QEvent>

DialogoColor::DialogoColor(const QString& titulo, const QColor& inicial, QWidget* duena)
    : QColorDialog(inicial, duena) {
  setOption(DontUseNativeDialog);
  setWindowTitle(titulo);
  for (auto* parte : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (parte->inherits("QColorPicker")) {  // the square of hues and saturations
      parte->installEventFilter(this);
    }
  }
}

// The square leaves the brightness alone, and black with any hue is black.
bool DialogoColor::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::MouseButtonPress && currentColor().value() == 0) {
    setCurrentColor(Qt::white);
  }
  return QColorDialog::eventFilter(objeto, evento);
}
