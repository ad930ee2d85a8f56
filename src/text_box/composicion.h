// Text under composition by an input method: shown at the caret, not yet in the document.
#pragma once

#include <memory>
#include <optional>

#include <QInputMethodEvent>
#include <QPainter>
#include <QTextLayout>

class Composicion {
 public:
  void Poner(const QInputMethodEvent& evento, const QFont& fuente);
  void Quitar() { maqueta_.reset(); }
  bool Vacia() const { return !maqueta_; }

  int Numero() const { return numero_; }  // another one for each text

  // The rest is for one that is not empty. Pixels.
  qreal Ancho() const;
  void Pintar(QPainter& pintor, const QPointF& sitio) const;  // top left corner, current pen
  std::optional<qreal> XCursor() const;  // nothing where the input method hides the caret

 private:
  std::unique_ptr<QTextLayout> maqueta_;
  int cursor_ = -1;
  int numero_ = 0;
};
