// A picture in a window, or a transparent area over one, that feels the mouse.
#pragma once

#include <QWidget>

class Imagen : public QWidget {
  Q_OBJECT

 public:
  // Without a drawing it is a transparent area.
  explicit Imagen(QWidget* padre, QString dibujo = {});

 signals:
  void RatonMovido();
  void Pulsada();  // pressed and let go inside, with the main button; once for a double click

 protected:
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  QString dibujo_;
  QPixmap pintada_;
  bool presionada_ = false;
};
