#include "text_box/accesible_caja.h"

#include <algorithm>

#include <QAccessible>

#include "text_box/texto_externo.h"

namespace {

QAccessibleInterface* Fabricar(const QString& /*clase*/, QObject* objeto) {
  auto* caja = qobject_cast<CajaTexto*>(objeto);
  return caja ? new AccesibleCaja(caja) : nullptr;
}

}  // namespace

void AccesibleCaja::Instalar() {
  static const bool hecho = (QAccessible::installFactory(Fabricar), true);
  Q_UNUSED(hecho)
}

AccesibleCaja::AccesibleCaja(CajaTexto* caja)
    : QAccessibleWidget(caja, QAccessible::EditableText) {}

CajaTexto& AccesibleCaja::Caja() const {
  return static_cast<CajaTexto&>(*widget());
}

int AccesibleCaja::Contar(Posicion pos) const {
  return CaracteresHasta(Texto(), pos);
}

Posicion AccesibleCaja::Dentro(int caracter) const {
  return PosicionDeCaracter(Texto(), caracter);
}

void* AccesibleCaja::interface_cast(QAccessible::InterfaceType tipo) {
  if (tipo == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (tipo == QAccessible::EditableTextInterface) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return QAccessibleWidget::interface_cast(tipo);
}

QAccessible::State AccesibleCaja::state() const {
  QAccessible::State estado = QAccessibleWidget::state();
  estado.editable = !Caja().SoloLectura();
  estado.readOnly = Caja().SoloLectura();
  estado.multiLine = true;
  estado.selectableText = true;
  return estado;
}

void AccesibleCaja::selection(int indice, int* desde, int* hasta) const {
  const auto [menor, mayor] = std::minmax({Caja().Cursor(), Caja().Ancla()});
  const bool hay = indice == 0 && menor != mayor;
  *desde = hay ? Contar(menor) : 0;
  *hasta = hay ? Contar(mayor) : 0;
}

int AccesibleCaja::selectionCount() const {
  return Caja().Cursor() == Caja().Ancla() ? 0 : 1;
}

void AccesibleCaja::addSelection(int desde, int hasta) {
  setSelection(0, desde, hasta);
}

void AccesibleCaja::removeSelection(int indice) {
  if (indice == 0) setCursorPosition(cursorPosition());
}

void AccesibleCaja::setSelection(int indice, int desde, int hasta) {
  if (indice == 0) Caja().PonerCursor(Dentro(hasta), Dentro(desde));
}

int AccesibleCaja::cursorPosition() const {
  return Contar(Caja().Cursor());
}

void AccesibleCaja::setCursorPosition(int pos) {
  Caja().PonerCursor(Dentro(pos), Dentro(pos));
}

QString AccesibleCaja::text(int desde, int hasta) const {
  return TextoEntre(Texto(), Dentro(desde), Dentro(hasta));
}

Rango AccesibleCaja::Unidad(Posicion pos, QAccessible::TextBoundaryType unidad) const {
  const Posicion tamano = Texto().Tamano();
  const auto hasta = [tamano](Posicion siguiente) { return siguiente < 0 ? tamano : siguiente; };
  const Lineas& lineas = Texto().LineasDelTexto();
  switch (unidad) {
    case QAccessible::CharBoundary:
      return {pos, PasoDerecha(Texto(), pos)};
    case QAccessible::WordBoundary:
      return PalabraEn(Texto(), pos);
    case QAccessible::LineBoundary: {
      const Renglones& filas = Caja().Vista().Reparto();
      const Posicion fila = filas.InicioDe(pos);
      return {fila, hasta(filas.Siguiente(fila))};
    }
    case QAccessible::NoBoundary:
      return {0, tamano};
    default:
      return {lineas.InicioDe(pos), hasta(lineas.Siguiente(pos))};
  }
}

QString AccesibleCaja::Responder(const Rango& rango, int* desde, int* hasta) const {
  *desde = Contar(rango.desde);
  *hasta = Contar(rango.hasta);
  return text(*desde, *hasta);
}

QString AccesibleCaja::textAtOffset(int pos, QAccessible::TextBoundaryType unidad, int* desde,
                                    int* hasta) const {
  return Responder(Unidad(Dentro(pos), unidad), desde, hasta);
}

QString AccesibleCaja::textBeforeOffset(int pos, QAccessible::TextBoundaryType unidad, int* desde,
                                        int* hasta) const {
  const Rango esta = Unidad(Dentro(pos), unidad);
  if (esta.desde == 0) return Responder({0, 0}, desde, hasta);
  return Responder(Unidad(PasoIzquierda(Texto(), esta.desde), unidad), desde, hasta);
}

QString AccesibleCaja::textAfterOffset(int pos, QAccessible::TextBoundaryType unidad, int* desde,
                                       int* hasta) const {
  const Rango esta = Unidad(Dentro(pos), unidad);
  const Posicion tamano = Texto().Tamano();
  if (esta.hasta >= tamano) return Responder({tamano, tamano}, desde, hasta);
  // A line end is in no word: the word after it is meant.
  const Posicion sigue = esta.hasta > Dentro(pos) ? esta.hasta : PasoDerecha(Texto(), Dentro(pos));
  return Responder(Unidad(sigue, unidad), desde, hasta);
}

int AccesibleCaja::characterCount() const {
  return Contar(Texto().Tamano());
}

// Nothing for a character that is out of sight.
QRect AccesibleCaja::characterRect(int pos) const {
  if (!Caja().isVisible()) return {};
  const Lugar lugar{Dentro(pos), false};
  const Encuadre& vista = Caja().Vista();
  QRect sitio = vista.Rectangulo(lugar);
  const Posicion fila = vista.FilaDe(lugar);
  const Posicion fin = vista.Reparto().FinDe(fila);
  if (lugar.pos < fin) {
    sitio.setWidth(static_cast<int>(
        std::abs(vista.XDe({PasoDerecha(Texto(), lugar.pos), true}) - vista.XDe(lugar)) / Pixel));
  }
  if (!sitio.intersects(QRect(QPoint(), vista.Tamano()))) return {};
  return sitio.translated(Caja().viewport()->mapToGlobal(QPoint()));
}

int AccesibleCaja::offsetAtPoint(const QPoint& punto) const {
  const QPoint dentro = Caja().viewport()->mapFromGlobal(punto);
  if (!Caja().isVisible() || !Caja().viewport()->rect().contains(dentro)) return -1;
  return Contar(Caja().Vista().EnPunto(dentro).pos);
}

void AccesibleCaja::scrollToSubstring(int desde, int /*hasta*/) {
  if (!characterRect(desde).isValid()) Caja().PonerArriba(Dentro(desde));
}

QString AccesibleCaja::attributes(int /*pos*/, int* desde, int* hasta) const {
  *desde = 0;
  *hasta = characterCount();
  return {};
}

void AccesibleCaja::deleteText(int desde, int hasta) {
  replaceText(desde, hasta, {});
}

void AccesibleCaja::insertText(int pos, const QString& texto) {
  replaceText(pos, pos, texto);
}

void AccesibleCaja::replaceText(int desde, int hasta, const QString& texto) {
  const Posicion inicio = Dentro(desde);
  Caja().CambiarRango(inicio, std::max(inicio, Dentro(hasta)), texto);
}
