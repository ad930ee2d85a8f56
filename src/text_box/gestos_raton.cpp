#include "text_box/gestos_raton.h"

#include <algorithm>
#include <utility>

#include <QApplication>

namespace {
constexpr int MilisegundosRodar = 50;
}

// Is the selection painted under this point?
bool GestosRaton::SobreElegido(const QPoint& punto, const Rango& elegido) const {
  const auto [desde, hasta] = elegido;
  const Lugar lugar = encuadre_.EnPunto(punto);
  if (desde == hasta || lugar.pos < desde || lugar.pos > hasta) return false;
  const int x = punto.x();
  const bool tras_inicio = lugar.pos > desde || x >= encuadre_.Rectangulo({desde, false}).left();
  const bool ante_fin = lugar.pos < hasta || x < encuadre_.Rectangulo({hasta, true}).left();
  return tras_inicio && ante_fin;
}

Rango GestosRaton::RangoEn(Posicion pos, Grano grano) const {
  const Lineas& lineas = documento_.LineasDelTexto();
  if (grano == Grano::Palabra) return PalabraEn(documento_, pos);
  if (grano == Grano::Caracter) return {pos, pos};
  const Posicion siguiente = lineas.Siguiente(pos);
  return {lineas.InicioDe(pos), siguiente < 0 ? documento_.Tamano() : siguiente};
}

GestosRaton::Eleccion GestosRaton::Empezar(const Lugar& lugar, Grano grano) {
  gesto_ = Gesto::Elegir;
  grano_ = grano;
  origen_ = RangoEn(lugar.pos, grano);
  return {origen_.desde, grano == Grano::Caracter ? lugar : Lugar{origen_.hasta, false}};
}

std::optional<GestosRaton::Eleccion> GestosRaton::Pulsar(const QPoint& punto, const Rango& elegido,
                                                         bool extender) {
  const bool cerca = (punto - pulsado_).manhattanLength() < QApplication::startDragDistance();
  const bool triple =
      doble_.isValid() && cerca && doble_.elapsed() < QApplication::doubleClickInterval();
  doble_.invalidate();
  pulsado_ = punto;
  const Lugar lugar = encuadre_.EnPunto(punto);
  if (triple) return Empezar(lugar, Grano::Linea);
  if (extender) return Eleccion{std::nullopt, Empezar(lugar, Grano::Caracter).cursor};
  if (!SobreElegido(punto, elegido)) return Empezar(lugar, Grano::Caracter);
  gesto_ = Gesto::QuizaArrastrar;
  return std::nullopt;
}

GestosRaton::Eleccion GestosRaton::PulsarDoble(const QPoint& punto) {
  pulsado_ = punto;
  doble_.start();
  return Empezar(encuadre_.EnPunto(punto), Grano::Palabra);
}

bool GestosRaton::EmpiezaArrastre(const QPoint& punto) {
  if (gesto_ != Gesto::QuizaArrastrar ||
      (punto - pulsado_).manhattanLength() < QApplication::startDragDistance()) {
    return false;
  }
  gesto_ = Gesto::Ninguno;
  return true;
}

std::optional<GestosRaton::Eleccion> GestosRaton::Extender(const QPoint& punto) {
  if (gesto_ != Gesto::Elegir) return std::nullopt;
  if (Fuera(punto).isNull()) {
    reloj_.stop();
  } else if (!reloj_.isActive()) {
    reloj_.start(MilisegundosRodar, this);
  }
  const Lugar lugar = encuadre_.EnPunto(punto);
  if (grano_ == Grano::Caracter) return Eleccion{std::nullopt, lugar};
  const Rango rango = RangoEn(lugar.pos, grano_);
  if (lugar.pos < origen_.desde) return Eleccion{origen_.hasta, {rango.desde, false}};
  return Eleccion{origen_.desde, {std::max(rango.hasta, origen_.hasta), false}};
}

GestosRaton::Gesto GestosRaton::Soltar() {
  reloj_.stop();
  return std::exchange(gesto_, Gesto::Ninguno);
}

QPoint GestosRaton::Fuera(const QPoint& punto) const {
  const QRect zona({}, encuadre_.Tamano());
  return {punto.x() - std::clamp(punto.x(), zona.left(), zona.right()),
          punto.y() - std::clamp(punto.y(), zona.top(), zona.bottom())};
}

void GestosRaton::timerEvent(QTimerEvent* /*evento*/) {
  emit TocaRodar();
}
