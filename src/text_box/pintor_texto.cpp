#include "text_box/pintor_texto.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include <QGlyphRun>

PintorTexto::PintorTexto(QPainter& pintor, const Bytes& texto, const Encuadre& encuadre,
                         const AspectoCaja& aspecto)
    : pintor_(pintor),
      texto_(texto),
      encuadre_(encuadre),
      tabla_(encuadre.Tabla()),
      aspecto_(aspecto) {}

void PintorTexto::Pintar(const Fila& fila) {
  vista_.Recoger(texto_, encuadre_, fila.inicio);
  const FilaRetratada retratada = Retratar(encuadre_, fila, vista_);
  if (vista_.con_signos) return PintarMaqueta(fila, retratada);
  Reunir();
  PintarEleccion(retratada, fila.y);
  PintarRango(0, retratada.elegido_desde, fila.y, aspecto_.texto);
  PintarRango(retratada.elegido_desde, retratada.elegido_hasta, fila.y, aspecto_.texto_elegido);
  PintarRango(retratada.elegido_hasta, vista_.bytes.size(), fila.y, aspecto_.texto);
}

FilaRetratada PintorTexto::Retratar(const Encuadre& encuadre, const Fila& fila,
                                    const ALaVista& vista) {
  FilaRetratada retratada;
  if (fila.elegido_desde < fila.elegido_hasta) {
    const Posicion fin = encuadre.Reparto().FinDe(fila.inicio);
    const Posicion siguiente = encuadre.Reparto().Siguiente(fila.inicio);
    retratada.elegido_desde = vista.Indice(fila.elegido_desde);
    retratada.elegido_hasta = vista.Indice(fila.elegido_hasta);
    retratada.fin_elegido =
        siguiente > fin && fila.elegido_desde <= fin && fila.elegido_hasta > fin;
    const bool nada = retratada.elegido_desde == retratada.elegido_hasta && !retratada.fin_elegido;
    if (nada) retratada.elegido_desde = retratada.elegido_hasta = 0;
  }
  if (!vista.bytes.empty() || retratada.fin_elegido) {
    retratada.x = vista.x.front();
    retratada.izquierda = vista.izquierda;
  }
  return retratada;
}

// Of a very long row what is in sight, by itself.
void PintorTexto::PintarMaqueta(const Fila& fila, const FilaRetratada& retratada) {
  const qreal izquierda = -static_cast<qreal>(vista_.izquierda) / Pixel;
  std::optional<Maqueta> parte;
  const Maqueta* maqueta = encuadre_.MaquetaDe(fila.inicio);
  if (maqueta == nullptr) {
    const std::string_view bytes(vista_.bytes.data(), vista_.bytes.size());
    maqueta = &parte.emplace(tabla_, bytes, vista_.x.front() + vista_.izquierda);
  }
  maqueta->Pintar(pintor_, izquierda, fila.y, {retratada.elegido_desde, retratada.elegido_hasta},
                  aspecto_);
  if (!retratada.fin_elegido) return;
  const qreal fin = izquierda + static_cast<qreal>(maqueta->Fin()) / Pixel;
  const qreal blanco = static_cast<qreal>(tabla_.Anchos().ancho[' ']) / Pixel;
  pintor_.fillRect(QRectF(fin, fila.y, blanco, tabla_.AltoFila()), aspecto_.fondo_elegido);
}

void PintorTexto::Reunir() {
  x_.clear();
  glifos_.clear();
  sitios_.clear();
  for (const char caracter : vista_.bytes) {
    glifos_.push_back(tabla_.De(static_cast<unsigned char>(caracter)).glifo);
  }
  for (const Punto x : vista_.x) {
    x_.push_back(static_cast<qreal>(x) / Pixel);
    sitios_.emplace_back(x_.back(), 0);
  }
}

// A blank stands for the line end.
void PintorTexto::PintarEleccion(const FilaRetratada& fila, int y) {
  const qreal blanco = fila.fin_elegido ? qreal(tabla_.Anchos().ancho[' ']) / Pixel : 0;
  const QPointF inicio(x_[fila.elegido_desde], y);
  const QPointF fin(x_[fila.elegido_hasta] + blanco, y + tabla_.AltoFila());
  pintor_.fillRect(QRectF(inicio, fin), aspecto_.fondo_elegido);
}

void PintorTexto::PintarRango(std::size_t desde, std::size_t hasta, int y, const QColor& color) {
  if (desde >= hasta) return;
  pintor_.setPen(color);
  const qreal base = y + tabla_.Base();
  const auto fuente_de = [&](std::size_t i) {
    return tabla_.De(static_cast<unsigned char>(vista_.bytes[i])).fuente;
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
  for (std::size_t i = desde; i < hasta; ++i) {
    if (vista_.bytes[i] != '\t') tabla_.PintarMarca(pintor_, x_[i], y, x_[i + 1] - x_[i]);
  }
}

void PintorTexto::PintarRayas(qreal izquierda, qreal derecha, qreal base) {
  const int grosor = std::max(1, qRound(tabla_.GrosorRaya()));
  const QColor color = pintor_.pen().color();
  const auto raya = [&](qreal y) {
    pintor_.fillRect(QRect(QPoint(qFloor(izquierda), qRound(y - grosor / 2.0)),
                           QPoint(qFloor(derecha) - 1, qRound(y - grosor / 2.0) + grosor - 1)),
                     color);
  };
  if (tabla_.Subrayada()) raya(base + tabla_.Subrayado());
  if (tabla_.Tachada()) raya(base - tabla_.Tachado());
}
