// What is seen of a box: its rows, text under composition, the caret.
#include <cmath>
#include <limits>

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleHints>

#include "text_box/caja_texto.h"
#include "text_box/pintor_texto.h"

namespace {

// Rows: to move fewer is not worth the copying of what is on the screen.
constexpr std::size_t MinimoMovidas = 4;

bool EsEntera(qreal escala) {
  return escala == std::floor(escala);
}

}  // namespace

void CajaTexto::paintEvent(QPaintEvent* evento) {
  QPainter pintor(viewport());
  pintor.fillRect(viewport()->rect(), aspecto_.fondo);
  PintarFilas(pintor, evento->region());
  if (CursorSeVe()) PintarCursor(pintor, RectanguloCursor());
  if (soltar_) PintarCursor(pintor, encuadre_.Rectangulo({*soltar_, false}));
}

template <typename Hacer>
void CajaTexto::CadaFila(Hacer hacer) const {
  PintorTexto::Fila fila{encuadre_.Arriba(), Encuadre::Margen, Desde(), Hasta()};
  while (fila.y < viewport()->height() && fila.inicio >= 0) {
    hacer(fila);
    fila.y += encuadre_.Tabla().AltoFila();
    fila.inicio = encuadre_.Reparto().Siguiente(fila.inicio);
  }
}

void CajaTexto::PintarFilas(QPainter& pintor, const QRegion& zona) {
  if (Vacia() && composicion_.Vacia()) return;
  PintorTexto filas(pintor, documento_.Texto(), encuadre_, aspecto_);
  const Posicion compuesta = FilaCompuesta();
  CadaFila([&](const PintorTexto::Fila& fila) {
    const QRect banda = Banda(fila.y, Rebase(compuesta >= 0));
    if (!zona.intersects(banda)) return;
    pintor.setClipRect(banda);
    if (fila.inicio == compuesta) {
      PintarCompuesta(pintor, filas, fila);
    } else {
      filas.Pintar(fila);
    }
  });
  pintor.setClipping(false);
}

// What is seen of the row whose upper edge is at `y`, whatever reaches out of it.
QRect CajaTexto::Banda(int y, int rebase) const {
  return QRect(0, y, viewport()->width(), encuadre_.Tabla().AltoFila())
      .adjusted(0, -rebase, 0, rebase);
}

// Never more than to the row above and below: of letters that are higher the rest is cut off. The
// fonts of text under composition are not known. Where a pixel of ours ends in the middle of one of
// the screen, that is drawn, too.
int CajaTexto::Rebase(bool compone) const {
  const int alto = encuadre_.Tabla().AltoFila();
  const int rebase = compone ? alto : std::min(alto, encuadre_.Tabla().Rebase());
  return EsEntera(devicePixelRatioF()) ? rebase : rebase + 1;
}

// Nothing of an empty text is asked before there is something to see: every start shows it.
Retrato CajaTexto::Retratar() const {
  Retrato retrato;
  if (Vacia() && composicion_.Vacia() && !CursorSeVe() && !soltar_) return retrato;
  const QRect cursor = CursorSeVe() ? RectanguloCursor() : QRect();
  const QRect soltar = soltar_ ? encuadre_.Rectangulo({*soltar_, false}) : QRect();
  const Posicion compuesta = FilaCompuesta();
  ALaVista vista;
  CadaFila([&](const PintorTexto::Fila& fila) {
    vista.Recoger(documento_.Texto(), encuadre_, fila.inicio);
    FilaRetratada retratada = PintorTexto::Retratar(encuadre_, fila, vista);
    if (cursor.isValid() && cursor.top() == fila.y) retratada.cursor = cursor.left();
    if (soltar.isValid() && soltar.top() == fila.y) retratada.soltar = soltar.left();
    if (fila.inicio == compuesta) {
      retratada.compuesta.emplace(composicion_.Numero(),
                                  encuadre_.Rectangulo(cursor_.Donde()).left());
    }
    retrato.Agregar(retratada, vista.bytes);
  });
  return retrato;
}

// Has what looks different from what was drawn last drawn anew.
void CajaTexto::DibujarCambios() {
  if (!isVisible()) return;
  Retrato nuevo = Retratar();
  if (retrato_) {
    DibujarCambios(nuevo);
  } else {
    viewport()->update();
  }
  retrato_ = std::move(nuevo);
}

void CajaTexto::DibujarCambios(const Retrato& nuevo) {
  // What lies between the pixels of the screen cannot be copied.
  const bool puede_mover = EsEntera(devicePixelRatioF());
  const auto diferencia =
      nuevo.Desde(*retrato_, puede_mover ? MinimoMovidas : std::numeric_limits<int>::max());
  if (diferencia.movidas == 0 && diferencia.otras.empty()) return;
  const int alto = encuadre_.Tabla().AltoFila();
  const int rebase = Rebase(nuevo.Compone() || retrato_->Compone());
  const auto borde = [&](std::size_t fila) {
    return Encuadre::Margen + static_cast<int>(fila) * alto;
  };
  QRegion zona;
  if (diferencia.movidas > 0) {
    const int paso = static_cast<int>(diferencia.pasos) * alto;
    const int desde = borde(diferencia.primera);
    const int hasta = borde(diferencia.primera + diferencia.movidas);
    const QRect ahora(QPoint(0, desde), QPoint(viewport()->width() - 1, hasta - 1));
    viewport()->scroll(0, paso, ahora.united(ahora.translated(0, -paso)) & viewport()->rect());
    // Their neighbours are others now, which reach into them.
    for (const int y : {desde, hasta}) zona += QRect(0, y - rebase, ahora.width(), 2 * rebase);
  }
  for (const std::size_t fila : diferencia.otras) zona += Banda(borde(fila), rebase);
  viewport()->update(zona);
}

// Where the text under composition is shown; -1 where there is none.
Posicion CajaTexto::FilaCompuesta() const {
  return composicion_.Vacia() ? -1 : encuadre_.FilaDe(cursor_.Donde());
}

// The row with the text under composition: what follows the caret makes room for it.
void CajaTexto::PintarCompuesta(QPainter& pintor, PintorTexto& filas,
                                const PintorTexto::Fila& fila) {
  const QRect cursor = encuadre_.Rectangulo(cursor_.Donde());
  const int ancho = qCeil(composicion_.Ancho());
  pintor.save();
  pintor.setClipRect(QRect(0, cursor.top(), cursor.left(), cursor.height()));
  filas.Pintar(fila);
  pintor.setClipRect(
      QRect(cursor.left() + ancho, cursor.top(), viewport()->width(), cursor.height()));
  pintor.translate(ancho, 0);
  filas.Pintar(fila);
  pintor.restore();
  pintor.setPen(aspecto_.texto);
  composicion_.Pintar(pintor, cursor.topLeft());
}

// Above the top row there is a margin, but no row that it could be in.
void CajaTexto::PintarCursor(QPainter& pintor, const QRect& sitio) const {
  if (sitio.top() >= Encuadre::Margen) pintor.fillRect(sitio, aspecto_.cursor);
}

bool CajaTexto::CursorSeVe() const {
  return cursor_encendido_ && hasFocus() && !soltar_ && SeSitua();
}

// An empty rectangle where an input method hides the caret, or its row is not known yet.
QRect CajaTexto::RectanguloCursor() const {
  if (!SeSitua() || !encuadre_.Cerca(cursor_.Donde())) return {};
  const QRect sitio = encuadre_.Rectangulo(cursor_.Donde());
  if (composicion_.Vacia()) return sitio;
  const std::optional<qreal> x = composicion_.XCursor();
  return x ? sitio.translated(qRound(*x), 0) : QRect();
}

// The caret is lit again after each movement.
void CajaTexto::ReiniciarParpadeo() {
  reloj_parpadeo_.stop();
  cursor_encendido_ = hasFocus();
  const int periodo = QGuiApplication::styleHints()->cursorFlashTime();
  if (cursor_encendido_ && periodo > 1) reloj_parpadeo_.start(periodo / 2, this);
}

void CajaTexto::focusInEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusInEvent(evento);
  ReiniciarParpadeo();
  DibujarCambios();
}

void CajaTexto::focusOutEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusOutEvent(evento);
  ReiniciarParpadeo();
  DibujarCambios();
}
