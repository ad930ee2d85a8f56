#include "platform/dibujos.h"

#include <utility>

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr QSize TamanoPuntero(32, 32);

QString ArchivoDe(const QString& nombre) {
  return QStringLiteral(":/dibujos/%1.svg").arg(nombre);
}

QSize EnPantalla(QSize tamano, qreal escala) {
  return (QSizeF(tamano) * escala).toSize();
}

// The picture in exactly these pixels, where the build has made it; null where not.
QImage Hecho(const QString& ruta, QSize pixeles) {
  QFile archivo(QStringLiteral("%1_%2x%3").arg(ruta).arg(pixeles.width()).arg(pixeles.height()));
  if (!archivo.open(QIODevice::ReadOnly)) return {};
  QImage imagen(pixeles, QImage::Format_ARGB32_Premultiplied);
  const bool leida =
      archivo.size() == imagen.sizeInBytes() &&
      archivo.read(reinterpret_cast<char*>(imagen.bits()), archivo.size()) == archivo.size();
  return leida ? imagen : QImage();
}

// Draws an icon anew at each size that is asked for, so that it is never stretched. No icon here is
// ever disabled.
class MotorSvg : public QIconEngine {
 public:
  explicit MotorSvg(QString nombre) : nombre_(std::move(nombre)) {}

  void paint(QPainter* pintor, const QRect& rect, QIcon::Mode /*modo*/,
             QIcon::State /*estado*/) override {
    QSvgRenderer(ArchivoDe(nombre_)).render(pintor, rect);
  }
  QPixmap pixmap(const QSize& tamano, QIcon::Mode /*modo*/, QIcon::State /*estado*/) override {
    return Dibujo(nombre_, tamano, 1);
  }
  // A window hands each of these to the desktop before it is shown.
  QList<QSize> availableSizes(QIcon::Mode /*modo*/, QIcon::State /*estado*/) override {
    return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}};
  }
  bool isNull() override { return false; }
  QIconEngine* clone() const override { return new MotorSvg(nombre_); }

 private:
  QString nombre_;
};

}  // namespace

QPixmap Dibujo(const QString& nombre, QSize tamano, qreal escala) {
  const QSize pixeles = EnPantalla(tamano, escala);
  QPixmap lienzo = QPixmap::fromImage(Hecho(QStringLiteral(":/hechos/") + nombre, pixeles));
  if (lienzo.isNull()) {
    lienzo = QPixmap(pixeles);
    lienzo.fill(Qt::transparent);
    QPainter pintor(&lienzo);
    QSvgRenderer(ArchivoDe(nombre)).render(&pintor, lienzo.rect());
  }
  lienzo.setDevicePixelRatio(escala);
  return lienzo;
}

QPixmap Escrito(const QString& texto, QSize tamano, qreal escala) {
  const QString ruta = QStringLiteral(":/escritos/") + texto;
  QPixmap lienzo = QPixmap::fromImage(Hecho(ruta, EnPantalla(tamano, escala)));
  lienzo.setDevicePixelRatio(escala);
  return lienzo;
}

QIcon Icono(const QString& nombre) {
  return QIcon(new MotorSvg(nombre));
}

// X11 counts the hot spot in the picture's pixels, others in those of the window.
QCursor Puntero(const QString& nombre, int x, int y) {
  const qreal escala = qGuiApp->devicePixelRatio();
  const QPointF punta = QPointF(x, y) * (QGuiApplication::platformName() == u"xcb" ? escala : 1);
  return QCursor(Dibujo(nombre, TamanoPuntero, escala), qRound(punta.x()), qRound(punta.y()));
}
