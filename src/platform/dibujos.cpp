#include "platform/dibujos.h"

#include <utility>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr QSize TamanoPuntero(32, 32);

void Pintar(QPainter& pintor, const QString& nombre, const QRectF& donde) {
  QSvgRenderer(QStringLiteral(":/dibujos/%1.svg").arg(nombre)).render(&pintor, donde);
}

// Draws an icon anew at each size that is asked for, so that it is never stretched.
class MotorSvg : public QIconEngine {
 public:
  explicit MotorSvg(QString nombre) : nombre_(std::move(nombre)) {}

  void paint(QPainter* pintor, const QRect& rect, QIcon::Mode modo,
             QIcon::State /*estado*/) override {
    if (modo == QIcon::Disabled) {
      pintor->setOpacity(0.4);
    }
    Pintar(*pintor, nombre_, rect);
  }
  QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override {
    QPixmap lienzo(tamano);
    lienzo.fill(Qt::transparent);
    QPainter pintor(&lienzo);
    paint(&pintor, lienzo.rect(), modo, estado);
    return lienzo;
  }
  QList<QSize> availableSizes(QIcon::Mode /*modo*/, QIcon::State /*estado*/) override {
    return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {128, 128}, {256, 256}};
  }
  bool isNull() override { return false; }
  QIconEngine* clone() const override { return new MotorSvg(nombre_); }

 private:
  QString nombre_;
};

}  // namespace

QPixmap Dibujo(const QString& nombre, QSize tamano, qreal escala) {
  QPixmap lienzo((QSizeF(tamano) * escala).toSize());
  lienzo.fill(Qt::transparent);
  QPainter pintor(&lienzo);
  Pintar(pintor, nombre, lienzo.rect());
  pintor.end();
  lienzo.setDevicePixelRatio(escala);
  return lienzo;
}

QIcon Icono(const QString& nombre) {
  return QIcon(new MotorSvg(nombre));
}

QCursor Puntero(const QString& nombre, int x, int y) {
  return QCursor(Dibujo(nombre, TamanoPuntero, qGuiApp->devicePixelRatio()), x, y);
}
