// The mouse in a box. Nothing done with it is announced as a key.
#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>
#include <QWheelEvent>

#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

namespace {

constexpr int GradosMuesca = 120;  // of the wheel, in eighths of a degree
constexpr int MilisegundosRodar = 50;

// Takes whole steps of `unidad` out of `resto`.
int Enteros(int& resto, int unidad) {
  const int enteros = resto / unidad;
  resto -= enteros * unidad;
  return enteros;
}

}  // namespace

Tramo CajaTexto::TramoEn(Posicion pos, Grano grano) const {
  const Bytes& texto = documento_.Texto();
  const Lineas& lineas = documento_.LineasDelTexto();
  if (grano == Grano::Palabra) return PalabraEn(texto, pos);
  if (grano == Grano::Caracter) return {pos, pos};
  const Posicion siguiente = lineas.Siguiente(pos);
  return {lineas.InicioDe(pos), siguiente < 0 ? texto.Tamano() : siguiente};
}

void CajaTexto::EmpezarSeleccion(const Lugar& lugar, Grano grano) {
  raton_.gesto = Raton::Gesto::Elegir;
  raton_.grano = grano;
  raton_.origen = TramoEn(lugar.pos, grano);
  documento_.CerrarGrupo();
  ancla_ = raton_.origen.desde;
  Colocar(grano == Grano::Caracter ? lugar : Lugar{raton_.origen.hasta, false},
          Seleccion::Extender);
}

void CajaTexto::ExtenderSeleccion(const QPoint& punto) {
  const Lugar lugar = encuadre_.EnPunto(punto);
  if (raton_.grano == Grano::Caracter) return Colocar(lugar, Seleccion::Extender);
  const Tramo tramo = TramoEn(lugar.pos, raton_.grano);
  const bool hacia_atras = lugar.pos < raton_.origen.desde;
  ancla_ = hacia_atras ? raton_.origen.hasta : raton_.origen.desde;
  const Posicion fin = hacia_atras ? tramo.desde : std::max(tramo.hasta, raton_.origen.hasta);
  Colocar({fin, false}, Seleccion::Extender);
}

void CajaTexto::mousePressEvent(QMouseEvent* evento) {
  const QPoint punto = evento->position().toPoint();
  if (evento->button() == Qt::MiddleButton) return PegarPrimaria(punto);
  if (evento->button() != Qt::LeftButton) return;
  const Lugar lugar = encuadre_.EnPunto(punto);
  const bool cerca = (punto - raton_.pulsado).manhattanLength() < QApplication::startDragDistance();
  const bool triple = raton_.doble.isValid() && cerca &&
                      raton_.doble.elapsed() < QApplication::doubleClickInterval();
  raton_.doble.invalidate();
  raton_.pulsado = punto;
  if (triple) return EmpezarSeleccion(lugar, Grano::Linea);
  if (evento->modifiers() & Qt::ShiftModifier) {
    raton_.gesto = Raton::Gesto::Elegir;
    raton_.grano = Grano::Caracter;
    documento_.CerrarGrupo();
    return Colocar(lugar, Seleccion::Extender);
  }
  if (HaySeleccion() && EnSeleccion(punto)) {
    raton_.gesto = Raton::Gesto::QuizaArrastrar;
  } else {
    EmpezarSeleccion(lugar, Grano::Caracter);
  }
}

// Is the selection painted under this point?
bool CajaTexto::EnSeleccion(const QPoint& punto) const {
  const Lugar lugar = encuadre_.EnPunto(punto);
  if (lugar.pos < Desde() || lugar.pos > Hasta()) return false;
  const int x = punto.x();
  const bool tras_inicio =
      lugar.pos > Desde() || x >= encuadre_.Rectangulo({Desde(), false}).left();
  const bool ante_fin = lugar.pos < Hasta() || x < encuadre_.Rectangulo({Hasta(), true}).left();
  return tras_inicio && ante_fin;
}

void CajaTexto::mouseMoveEvent(QMouseEvent* evento) {
  if (!(evento->buttons() & Qt::LeftButton)) return;
  const QPoint punto = evento->position().toPoint();
  if (raton_.gesto == Raton::Gesto::QuizaArrastrar) {
    if ((punto - raton_.pulsado).manhattanLength() >= QApplication::startDragDistance())
      ArrastrarTexto();
    return;
  }
  if (raton_.gesto != Raton::Gesto::Elegir) return;
  if (viewport()->rect().contains(punto)) {
    reloj_arrastre_.stop();
  } else if (!reloj_arrastre_.isActive()) {
    reloj_arrastre_.start(MilisegundosRodar, this);
  }
  ExtenderSeleccion(punto);
}

// The farther outside the pointer is, the faster the text rolls.
void CajaTexto::RodarAlArrastrar() {
  const QPoint punto = viewport()->mapFromGlobal(QCursor::pos());
  const QRect zona = viewport()->rect();
  const int fuera_y = punto.y() - std::clamp(punto.y(), zona.top(), zona.bottom());
  const int fuera_x = punto.x() - std::clamp(punto.x(), zona.left(), zona.right());
  if (fuera_y != 0) RodarFilas(fuera_y / encuadre_.Tabla().AltoFila() + (fuera_y > 0 ? 1 : -1));
  if (fuera_x != 0) RodarX(encuadre_.X() + fuera_x);
  ExtenderSeleccion(punto);
}

void CajaTexto::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return;
  reloj_arrastre_.stop();
  const auto gesto = std::exchange(raton_.gesto, Raton::Gesto::Ninguno);
  if (gesto == Raton::Gesto::QuizaArrastrar) {
    documento_.CerrarGrupo();
    Colocar(encuadre_.EnPunto(evento->position().toPoint()), Seleccion::Quitar);
  } else if (gesto == Raton::Gesto::Elegir) {
    OfrecerSeleccion();
  }
}

void CajaTexto::mouseDoubleClickEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return mousePressEvent(evento);
  raton_.pulsado = evento->position().toPoint();
  raton_.doble.start();
  EmpezarSeleccion(encuadre_.EnPunto(raton_.pulsado), Grano::Palabra);
}

void CajaTexto::PegarPrimaria(const QPoint& punto) {
  const QClipboard* portapapeles = QApplication::clipboard();
  if (solo_lectura_ || !portapapeles->supportsSelection()) return;
  const QMimeData* datos = portapapeles->mimeData(QClipboard::Selection);
  if (!datos) return;
  // Taken before the caret moves: it may be this box's own selection.
  std::optional<Pieza> nueva = Recibir(*datos);
  documento_.CerrarGrupo();
  Colocar(encuadre_.EnPunto(punto), Seleccion::Quitar);
  Cambiar(cursor_.pos, cursor_.pos, std::move(nueva), Agrupacion::Sola);
}

// Whole rows; a touch pad's small turns add up.
void CajaTexto::wheelEvent(QWheelEvent* evento) {
  evento->accept();
  if (evento->phase() != Qt::NoScrollPhase && !evento->pixelDelta().isNull()) {
    raton_.rueda += evento->pixelDelta();
    RodarFilas(-Enteros(raton_.rueda.ry(), encuadre_.Tabla().AltoFila()));
    RodarX(encuadre_.X() - std::exchange(raton_.rueda.rx(), 0));
    return;
  }
  raton_.rueda += evento->angleDelta() * QApplication::wheelScrollLines();
  RodarFilas(-Enteros(raton_.rueda.ry(), GradosMuesca));
  const int pasos = Enteros(raton_.rueda.rx(), GradosMuesca);
  RodarX(encuadre_.X() - std::int64_t{pasos} * horizontalScrollBar()->singleStep());
}
