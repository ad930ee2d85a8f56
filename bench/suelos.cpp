#include "bench/suelos.h"

#include <algorithm>
#include <fcntl.h>
#include <string>
#include <unistd.h>

#include <QPainter>

#include "bench/tabla.h"
#include "bench/textos.h"
#include "shared/descriptor.h"
#include "shared/rutas.h"

void EscribirArchivo(const QString& ruta, std::int64_t bytes) {
  const std::string texto = Texto(Lineas80, bytes);
  const int descriptor =
      ::open(RutaDelSistema(ruta).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  const std::string_view tramo = texto;
  Exigir(EscribirTodo(descriptor, {&tramo, 1}).Bien() && ::fsync(descriptor) == 0,
         "a file could not be written");
  ::close(descriptor);
}

QByteArray LeerSolo(const QString& ruta, std::int64_t bytes) {
  QByteArray sitio(bytes, Qt::Uninitialized);
  const int descriptor = ::open(RutaDelSistema(ruta).constData(), O_RDONLY | O_CLOEXEC);
  const ssize_t leidos = ::read(descriptor, sitio.data(), sitio.size());
  ::close(descriptor);
  Exigir(leidos == static_cast<ssize_t>(bytes), "a file could not be read whole");
  return sitio;
}

double SegundosLeerSolo(const QString& ruta, std::int64_t bytes) {
  QByteArray leido;
  return Segundos([&] { leido = LeerSolo(ruta, bytes); });
}

Leido LeerYConvertir(const QString& ruta, std::int64_t bytes) {
  Leido leido{LeerSolo(ruta, bytes), {}};
  leido.texto = QString::fromLatin1(leido.bytes);
  return leido;
}

bool Foto::TieneLetras() const {
  constexpr int Oscuro = 100;
  constexpr int Puntos = 500;  // a caret alone has fewer
  int oscuros = 0;
  for (int y = 0; y < imagen_.height() / 2; ++y) {
    for (int x = 0; x < imagen_.width() / 2; ++x) {
      if (qGray(imagen_.pixel(x, y)) < Oscuro) ++oscuros;
    }
  }
  return oscuros >= Puntos && oscuros < imagen_.width() * imagen_.height() / 8;
}

Vacia::Vacia(const QSize& tamano, QWidget* padre) : widget_(padre), foto_(tamano) {
  widget_.resize(tamano);
  widget_.show();
}

Letras::Letras(const QSize& tamano, const QFont& fuente) : foto_(tamano) {
  setFont(fuente);
  resize(tamano);
  const QFontMetrics medidas(fuente);
  const int columnas = tamano.width() / medidas.horizontalAdvance(u'x');
  const auto linea = QString::fromStdString(Texto(Lineas80, LargoLinea - 1)).left(columnas);
  lineas_ = QStringList(tamano.height() / medidas.height(), linea);
}

void Letras::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pintor(this);
  pintor.fillRect(rect(), Qt::white);
  int y = pintor.fontMetrics().ascent();
  for (const QString& linea : lineas_) {
    pintor.drawText(0, y, linea);
    y += pintor.fontMetrics().height();
  }
}
