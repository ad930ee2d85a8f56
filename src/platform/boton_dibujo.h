// A button with a picture and no caption.
#pragma once

#include <QColor>
#include <QToolButton>

#include "platform/twips.h"

struct AspectoBoton {
  QString nombre;  // the control's
  RectTwips rect;
  QString dibujo;
  QSize tamano;  // of the drawing, in pixels
  QColor fondo;
  QString accesible;  // for screen readers
};

// Takes the focus by Tab; only the space bar and the mouse press it.
QToolButton* CrearBoton(QWidget* padre, const AspectoBoton& aspecto);
