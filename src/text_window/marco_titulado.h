// A frame with its caption in the upper edge, as the text window's panels have it.
#pragma once

#include <QFont>
#include <QFrame>
#include <QPushButton>

#include "platform/boton_dibujo.h"
#include "platform/twips.h"

class MarcoTitulado : public QFrame {
  Q_OBJECT

 public:
  // Hidden at first. The caption's colour is the palette's WindowText, the background its Window;
  // its bold font is not handed on to the controls inside.
  MarcoTitulado(QWidget* padre, const QString& nombre, const QString& titulo,
                const RectTwips& rect);

  static QCursor Flecha();  // the pointer over the panels' buttons
  // A panel's button with a drawing; what screen readers are told is its tooltip, too.
  static QToolButton* CrearBotonDibujo(QWidget* panel, const AspectoBoton& aspecto);

 protected:
  // The light cyan button that closes the panel.
  QPushButton* CrearCerrar(const QString& nombre, const RectTwips& rect);
  bool focusNextPrevChild(bool siguiente) override;  // Tab stays inside, in the order of making
  void keyPressEvent(QKeyEvent* evento) override;    // Enter presses a button as the blank does
  void paintEvent(QPaintEvent* evento) override;

 private:
  QString titulo_;
  QFont fuente_titulo_;
};
