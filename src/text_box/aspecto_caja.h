// The colours of a text box, so chosen that caret and selection can be seen on any pair.
#pragma once

#include <QColor>
#include <QPalette>

struct AspectoCaja {
  QColor texto;
  QColor fondo;
  QColor cursor;
  QColor texto_elegido;
  QColor fondo_elegido;

  // `texto` and `fondo` stay as they are; the other three are derived from them and `paleta`.
  static AspectoCaja De(const QColor& texto, const QColor& fondo, const QPalette& paleta);
};

// The contrast ratio of two colours, 1 to 21, as WCAG 2 defines it.
qreal Contraste(const QColor& uno, const QColor& otro);
