#include "platform/encima.h"

#include <QWindow>

#include "platform/ventana.h"

// On a window that the desktop knows already, setting the widget's flag would make a new one that
// loses focus and place; so the flag goes to the native window, and the widget is told.
void EncimaReal::Poner(Ventana& ventana, bool encima) {
  QWindow* nativa = ventana.windowHandle();
  if (nativa == nullptr) {
    ventana.setWindowFlag(Qt::WindowStaysOnTopHint, encima);
    return;
  }
  nativa->setFlag(Qt::WindowStaysOnTopHint, encima);
  ventana.overrideWindowFlags(nativa->flags());
}
