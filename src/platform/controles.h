// Laying out a window's controls from a table.
#pragma once

#include <QString>
#include <QWidget>

#include "platform/twips.h"

// Names a control as the system names it and puts it in its place inside its parent.
inline void Disponer(QWidget& control, const QString& nombre, const RectTwips& rect) {
  control.setObjectName(nombre);
  control.setGeometry(rect.EnPixeles());
}
