#include "text_box/pintor_texto.h"

#include <algorithm>

#include <QGlyphRun>

PintorTexto::PintorTexto(QPainter& pintor, const Bytes& texto, const Encuadre& encuadre,
                         const AspectoCaja& aspecto)
    : pintor_(pintor),
      texto_(texto),
      encuadre_(encuadre),
      tabla_(encuadre.Tabla()),
      aspecto_(aspecto) {}

void PintorTexto::Pintar(const Fila& fila) {
  const Posicion fin = encuadre_.Reparto().FinDe(fila.inicio);
  Reunir(fila.inicio, fin);
  const std::size_t desde = Indice(fila.elegido_desde);
  const std::size_t hasta = Indice(fila.elegido_hasta);
  if (fila.elegido_desde < fila.elegido_hasta) {
    const Posicion siguiente = encuadre_.Reparto().Siguiente(fila.inicio);
    const bool con_fin_de_linea =
        siguiente > fin && fila.elegido_desde <= fin && fila.elegido_hasta > fin;
    PintarEleccion(fila, desde, hasta, con_fin_de_linea);
  }
  PintarRango(0, desde, fila.y, aspecto_.texto);
  PintarRango(desde, hasta, fila.y, aspecto_.texto_elegido);
  PintarRango(hasta, bytes_.size(), fila.y, aspecto_.texto);
}

// Collects the bytes in sight with their x; every byte is at least a pixel wide.
void PintorTexto::Reunir(Posicion inicio, Posicion fin) {
  const Punto izquierda = (encuadre_.X() - Encuadre::Margen) * Pixel;
  const auto corte =
      encuadre_.Reparto().CorteEnX(inicio, std::max<Punto>(0, izquierda - tabla_.AnchoMayor()));
  const Punto a_la_vista = izquierda + (encuadre_.Tamano().width() + Encuadre::Margen) * Pixel;
  const Posicion cuantos =
      std::clamp<Posicion>((a_la_vista - corte.x) / Pixel + 1, 0, fin - corte.pos);
  primera_ = corte.pos;
  bytes_.resize(static_cast<std::size_t>(cuantos));
  texto_.Copiar(corte.pos, corte.pos + cuantos, bytes_.data());
  x_.clear();
  glifos_.clear();
  sitios_.clear();
  const Avances& avances = tabla_.Anchos();
  Punto x = corte.x;
  for (const char caracter : bytes_) {
    if (x > a_la_vista) break;
    const auto byte = static_cast<unsigned char>(caracter);
    x_.push_back(static_cast<qreal>(x - izquierda) / Pixel);
    glifos_.push_back(tabla_.De(byte).glifo);
    sitios_.emplace_back(x_.back(), 0);
    x = byte == '\t' ? (x / avances.tabulador + 1) * avances.tabulador : x + avances.ancho[byte];
  }
  bytes_.resize(glifos_.size());
  x_.push_back(static_cast<qreal>(x - izquierda) / Pixel);
}

std::size_t PintorTexto::Indice(Posicion pos) const {
  return static_cast<std::size_t>(
      std::clamp<Posicion>(pos - primera_, 0, static_cast<Posicion>(bytes_.size())));
}

void PintorTexto::PintarEleccion(const Fila& fila, std::size_t desde, std::size_t hasta,
                                 bool fin_elegido) {
  const qreal blanco =
      fin_elegido ? qreal(tabla_.Anchos().ancho[' ']) / Pixel : 0;  // stands for the line end
  pintor_.fillRect(
      QRectF(QPointF(x_[desde], fila.y), QPointF(x_[hasta] + blanco, fila.y + tabla_.AltoFila())),
      aspecto_.fondo_elegido);
}

void PintorTexto::PintarRango(std::size_t desde, std::size_t hasta, int y, const QColor& color) {
  if (desde >= hasta) return;
  pintor_.setPen(color);
  const qreal base = y + tabla_.Base();
  const auto fuente_de = [&](std::size_t i) {
    return tabla_.De(static_cast<unsigned char>(bytes_[i])).fuente;
  };
  for (std::size_t i = desde; i < hasta;) {
    const std::uint8_t fuente = fuente_de(i);
    const std::size_t inicio = i;
    for (; i < hasta && fuente_de(i) == fuente; ++i) sitios_[i].setY(base);
    if (fuente == TablaGlifos::Marca) {
      PintarMarcas(inicio, i, y);
      continue;
    }
    QGlyphRun trazo;
    trazo.setRawFont(tabla_.Fuente(fuente));
    trazo.setRawData(&glifos_[inicio], &sitios_[inicio], static_cast<int>(i - inicio));
    pintor_.drawGlyphRun(QPointF(), trazo);
  }
  PintarRayas(x_[desde], x_[hasta], base);
}

// A control character is a small hollow box, a tab is empty.
void PintorTexto::PintarMarcas(std::size_t desde, std::size_t hasta, int y) {
  const qreal alto = tabla_.Base() / 2;
  for (std::size_t i = desde; i < hasta; ++i) {
    if (bytes_[i] != '\t') {
      pintor_.drawRect(QRectF(x_[i] + 1, y + tabla_.Base() - alto,
                              std::max<qreal>(1, x_[i + 1] - x_[i] - 3), alto - 1));
    }
  }
}

void PintorTexto::PintarRayas(qreal izquierda, qreal derecha, qreal base) {
  if (!tabla_.Subrayada() && !tabla_.Tachada()) return;
  QPen pluma(pintor_.pen().color());
  pluma.setWidthF(tabla_.GrosorRaya());
  pluma.setCapStyle(Qt::FlatCap);
  pintor_.setPen(pluma);
  const auto raya = [&](qreal y) {
    pintor_.drawLine(QLineF(qFloor(izquierda), y, qFloor(derecha), y));
  };
  if (tabla_.Subrayada()) raya(base + tabla_.Subrayado());
  if (tabla_.Tachada()) raya(base - tabla_.Tachado());
}
