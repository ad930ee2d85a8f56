// What a box is and what it shows: construction, the caret's place, scrolling, changes of the text.
#include "text_box/caja_texto.h"

#include <algorithm>

#include <QEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QScrollBar>
#include <QTimerEvent>

#include "text_box/accesible_caja.h"

namespace {

constexpr int MilisegundosTrabajo = 8;
constexpr int PasoHorizontal = 20;  // pixels

}  // namespace

CajaTexto::CajaTexto(Documento& documento, Ajuste ajuste, QWidget* padre)
    : QAbstractScrollArea(padre),
      documento_(documento),
      encuadre_(documento, ajuste == Ajuste::AlAncho),
      vertical_(verticalScrollBar()),
      horizontal_(horizontalScrollBar()) {
  const bool ajustado = ajuste == Ajuste::AlAncho;
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(ajustado ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_InputMethodEnabled);
  setAcceptDrops(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setCursor(Qt::IBeamCursor);
  AccesibleCaja::Instalar();
  PonerFuente(font());
  PonerColores(Qt::black, Qt::white);
  Conectar();
  documento_.Observar(this);
}

CajaTexto::~CajaTexto() {
  documento_.DejarDeObservar(this);
}

void CajaTexto::Conectar() {
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
    const std::int64_t fila = std::min(vertical_.Valor(), encuadre_.FilaMaxima());
    PonerArriba(encuadre_.Reparto().PosicionDe(fila));
  });
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this,
          [this] { RodarX(horizontal_.Valor()); });
  connect(&gestos_, &GestosRaton::TocaRodar, this, &CajaTexto::RodarAlArrastrar);
}

void CajaTexto::PonerOyente(OyenteTeclas* oyente) {
  oyente_ = oyente;
}

void CajaTexto::PonerSoloLectura(bool solo_lectura) {
  edicion_.PonerSoloLectura(solo_lectura);
  setAttribute(Qt::WA_InputMethodEnabled, !solo_lectura);
}

void CajaTexto::PonerFuente(const QFont& fuente) {
  fuente_ = fuente;
  encuadre_.PonerFuente(fuente);
  retrato_.reset();
  cursor_.OlvidarColumna();
  Redibujar();
}

void CajaTexto::PonerEsperaFuentes(bool espera) {
  espera_fuentes_ = espera;
  ReiniciarParpadeo();
  DibujarCambios();
  updateMicroFocus();
}

void CajaTexto::PonerColores(const QColor& texto, const QColor& fondo) {
  aspecto_ = AspectoCaja::De(texto, fondo, palette());
  retrato_.reset();
  DibujarCambios();
}

void CajaTexto::PonerCursor(Posicion cursor, Posicion ancla) {
  documento_.CerrarGrupo();
  cursor_.Elegir(ancla, {cursor, false});
  CursorMovido();
}

void CajaTexto::Insertar(const QString& texto) {
  edicion_.Poner(cursor_.Elegido(), texto);
}

void CajaTexto::CambiarRango(Posicion desde, Posicion hasta, const QString& texto) {
  edicion_.Poner({desde, hasta}, texto);
}

Posicion CajaTexto::Arriba() const {
  return encuadre_.Arriba();
}

void CajaTexto::PonerArriba(Posicion pos) {
  mostrar_cursor_ = false;
  encuadre_.PonerArriba(pos);
  Redibujar();
}

void CajaTexto::CursorMovido() {
  MostrarCursor();
  ReiniciarParpadeo();
  Redibujar();
  updateMicroFocus();
  avisos_.CursorMovido(cursor_.Pos(), cursor_.Elegido());
}

// Later where that cannot be done yet.
void CajaTexto::MostrarCursor() {
  mostrar_cursor_ = !Vacia() && (!isVisible() || !encuadre_.Cerca(cursor_.Donde()));
  if (!mostrar_cursor_ && !Vacia()) encuadre_.Mostrar(cursor_.Donde());
}

void CajaTexto::Reemplazado(const Cambio& cambio) {
  encuadre_.Reemplazado(cambio, isVisible());
  cursor_.Reemplazado(cambio);
  Redibujar();
  avisos_.Cambiado(cambio);
}

void CajaTexto::PorQuitar(const Rango& rango) {
  avisos_.PorQuitar(rango.desde, rango.hasta);
}

void CajaTexto::FaltaMemoria() {
  if (oyente_) oyente_->FaltaMemoria();
}

void CajaTexto::Recargado() {
  encuadre_.Recargado();
  cursor_.Recargado();
  mostrar_cursor_ = false;
  gestos_.Soltar();
  if (!composicion_.Vacia()) {
    composicion_.Quitar();
    QGuiApplication::inputMethod()->reset();
  }
  CursorMovido();
}

void CajaTexto::Recodificado() {
  encuadre_.Recodificado();
  Redibujar();
}

void CajaTexto::Redibujar() {
  if (!isVisible()) return;
  ActualizarBarras();
  DibujarCambios();
}

void CajaTexto::ActualizarBarras() {
  if (Vacia()) {
    encuadre_.PonerX(0);
    vertical_.Poner(0, 0, 1, 1);
    horizontal_.Poner(0, 0, encuadre_.Tamano().width(), PasoHorizontal);
    return;
  }
  const Renglones& filas = encuadre_.Reparto();
  encuadre_.PonerX(encuadre_.X());
  const Posicion arriba = encuadre_.Arriba();  // asked first: the answer may make more rows known
  const std::int64_t maxima = encuadre_.FilaMaxima();
  vertical_.Poner(std::min(filas.Indice(arriba), maxima), maxima, encuadre_.FilasVisibles(), 1);
  horizontal_.Poner(encuadre_.X(), encuadre_.MaximoX(), encuadre_.Tamano().width(), PasoHorizontal);
  if (!filas.Completo() && !reloj_trabajo_.isActive()) reloj_trabajo_.start(0, this);
}

void CajaTexto::RodarX(std::int64_t x) {
  encuadre_.PonerX(x);
  Redibujar();
}

void CajaTexto::RodarFilas(std::int64_t filas) {
  mostrar_cursor_ = false;
  encuadre_.Desplazar(filas);
  Redibujar();
}

// The bars' own signals are used: they come also where the toolkit sees no difference.
void CajaTexto::scrollContentsBy(int /*dx*/, int /*dy*/) {}

void CajaTexto::resizeEvent(QResizeEvent* evento) {
  QAbstractScrollArea::resizeEvent(evento);
  encuadre_.Medir(viewport()->size());
  retrato_.reset();
  Redibujar();
}

void CajaTexto::showEvent(QShowEvent* evento) {
  QAbstractScrollArea::showEvent(evento);
  encuadre_.Medir(viewport()->size());
  if (mostrar_cursor_) MostrarCursor();
  Redibujar();
}

void CajaTexto::hideEvent(QHideEvent* evento) {
  QAbstractScrollArea::hideEvent(evento);
  retrato_.reset();
  reloj_trabajo_.stop();
  gestos_.Soltar();
}

void CajaTexto::timerEvent(QTimerEvent* evento) {
  const int reloj = evento->timerId();
  if (reloj == reloj_trabajo_.timerId()) {
    Trabajar();
  } else if (reloj == reloj_parpadeo_.timerId()) {
    cursor_encendido_ = !cursor_encendido_;
    DibujarCambios();
  } else {
    QAbstractScrollArea::timerEvent(evento);
  }
}

void CajaTexto::Trabajar() {
  if (encuadre_.Avanzar(MilisegundosTrabajo)) reloj_trabajo_.stop();
  if (mostrar_cursor_) MostrarCursor();
  Redibujar();
}

void CajaTexto::changeEvent(QEvent* evento) {
  QAbstractScrollArea::changeEvent(evento);
  if (evento->type() == QEvent::PaletteChange) PonerColores(ColorTexto(), ColorFondo());
}
