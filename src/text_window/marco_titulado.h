// A frame with its caption in the upper edge, as the text window's panels have it.
#pragma once

#include <QFont>
#include <QFrame>
#include <QPushButton>

#include "platform/twips.h"

class MarcoTitulado : public QFrame {
  Q_OBJECT

 public:
  // Hidden at first. The caption's colour is the palette's WindowText, the background its Window;
  // its bold font is not handed on to the controls inside.
  MarcoTitulado(QWidget* padre, const QString& nombre, const QString& titulo,
                const RectTwips& rect);

  static QCursor Flecha();  // the pointer over the panels' buttons

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
