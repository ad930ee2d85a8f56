#include "platform/ventana.h"

#include <array>
#include <cmath>
#include <utility>

#include <QCloseEvent>
#include <QEventLoop>
#include <QWindow>

#include "platform/accesibles.h"

namespace {

// What a frame takes until a window of this run has shown the real one, in twips.
constexpr int MargenAncho = 90;
constexpr int MargenAlto = 400;

// What a frame of this kind takes, as the desktop has last shown it in this run.
QMargins& MarcoConocido(Ventana::Marco marco) {
  static const QMargins supuesto(0, APixeles(MargenAlto), APixeles(MargenAncho), 0);
  static std::array conocidos{supuesto, supuesto, supuesto};
  return conocidos[static_cast<std::size_t>(marco)];
}

Qt::WindowFlags Banderas(Ventana::Marco marco) {
  const Qt::WindowFlags fijo = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  switch (marco) {
    case Ventana::Marco::Redimensionable:
      return Qt::Window;
    case Ventana::Marco::FijoConMinimizar:
      return fijo | Qt::WindowMinimizeButtonHint;
    case Ventana::Marco::Fijo:
      return fijo;
  }
  return Qt::Window;
}

Qt::WindowState EnToolkit(EstadoVentana estado) {
  switch (estado) {
    case EstadoVentana::Minimizada:
      return Qt::WindowMinimized;
    case EstadoVentana::Maximizada:
      return Qt::WindowMaximized;
    case EstadoVentana::Normal:
      break;
  }
  return Qt::WindowNoState;
}

// A place that was asked for is rounded to the screen's own pixels, and its frame's width again: so
// far from it the window has not been moved, or it would walk on from run to run.
int Vista(int pedida, qreal dicha) {
  constexpr qreal Redondeo = 0.75;  // pixels
  return std::abs(dicha - pedida) < Redondeo ? pedida : qRound(dicha);
}

// The twips that were set, while the pixels are still theirs; else the pixels' own.
int TwipsDe(int pedido, int pixeles) {
  return APixeles(pedido) == pixeles ? pedido : ATwips(pixeles);
}

}  // namespace

Ventana::Ventana(Activacion& activacion, Marco marco)
    : QWidget(nullptr, Banderas(marco)), activacion_(activacion), marco_(marco) {
  setAttribute(Qt::WA_QuitOnClose, false);
  HacerAccesibles();
  // Later, when the toolkit has heard it, too. Only once: some desktops say it again, and move the
  // frame about, when they make a show of minimising the window.
  connect(
      &activacion_.Gestor(), &GestorVentanas::MarcoCambiado, this,
      [this](WId ventana) {
        if (por_ajustar_ && internalWinId() == ventana) VerMarco();
      },
      Qt::QueuedConnection);
}

Ventana::~Ventana() {
  activacion_.Olvidar(*this);
}

void Ventana::Mostrar() {
  const Activacion::Manejador manejador(activacion_);
  Cargar();
  activacion_.DarFoco(*this);
}

void Ventana::MostrarSinActivar() {
  const Activacion::Manejador manejador(activacion_);
  Cargar();
}

void Ventana::Cargar() {
  if (!cargada_) {
    cargada_ = true;
    Form_Load();
  }
  if (!visible_) {
    visible_ = true;
    activacion_.Mapear(*this);
    Form_Resize();
  }
}

void Ventana::Aparecer(bool con_foco) {
  setAttribute(Qt::WA_ShowWithoutActivating, !con_foco);
  llegada_ = false;
  setWindowState(EnToolkit(por_mostrar_));
  show();
}

// Only a dialog in the toolkit's sense is kept in front of its owner by the window manager.
void Ventana::MostrarModal(Ventana& duena) {
  const Activacion::Manejador manejador(activacion_);
  setWindowFlag(Qt::Dialog);
  setWindowModality(Qt::ApplicationModal);
  Mostrar();
  create();
  windowHandle()->setTransientParent(duena.windowHandle());
  QEventLoop bucle;
  connect(this, &Ventana::Oculta, &bucle, &QEventLoop::quit);
  connect(this, &Ventana::Cerrada, &bucle, &QEventLoop::quit);
  if (visible_) {
    const Activacion::BucleModal en_bucle(activacion_);
    bucle.exec(QEventLoop::DialogExec);
  }
  duena.DarFoco();
}

void Ventana::DarFoco() {
  if (visible_) activacion_.DarFoco(*this);
}

void Ventana::Ocultar() {
  if (!visible_) return;
  const Activacion::Manejador manejador(activacion_);
  visible_ = false;
  activacion_.Desaparecer(*this);
  hide();
  emit Oculta();
}

void Ventana::Cerrar() {
  if (!cargada_) return;
  const Activacion::Manejador manejador(activacion_);
  cargada_ = false;
  Form_Unload();
  visible_ = false;
  activacion_.Desaparecer(*this);
  activacion_.Olvidar(*this);
  hide();
  por_mostrar_ = EstadoVentana::Normal;
  emit Cerrada();
}

EstadoVentana Ventana::Estado() const {
  if (!isVisible()) return por_mostrar_;
  if (isMinimized()) return EstadoVentana::Minimizada;
  return isMaximized() ? EstadoVentana::Maximizada : EstadoVentana::Normal;
}

void Ventana::PonerEstado(EstadoVentana estado) {
  const EstadoVentana antes = Estado();
  if (!isVisible()) {
    por_mostrar_ = estado;
  } else if (estado != antes) {
    const Activacion::Manejador manejador(activacion_);
    setWindowState(EnToolkit(estado));
    if (antes == EstadoVentana::Minimizada) activacion_.Restaurar(*this);
  }
}

RectTwips Ventana::Rectangulo() const {
  if (visto_.isNull()) {  // never seen in its frame: still what was asked for
    return pedido_;
  }
  return {TwipsDe(pedido_.izquierda, visto_.x()), TwipsDe(pedido_.arriba, visto_.y()),
          TwipsDe(pedido_.ancho, visto_.width()), TwipsDe(pedido_.alto, visto_.height())};
}

void Ventana::PonerRectangulo(const RectTwips& rectangulo) {
  pedido_ = rectangulo;
  resize(Exterior().shrunkBy(MarcoConocido(marco_)));
  PonerPosicion(rectangulo.izquierda, rectangulo.arriba);
}

void Ventana::PonerPosicion(int izquierda, int arriba) {
  pedido_.izquierda = izquierda;
  pedido_.arriba = arriba;
  por_ajustar_ = true;
  visto_ = {};
  move(EsquinaPedida());
  VerMarco();
}

QPoint Ventana::EsquinaPedida() const {
  return {APixeles(pedido_.izquierda), APixeles(pedido_.arriba)};
}

// Never smaller than a frame with a pixel inside.
QSize Ventana::Exterior() const {
  const QSize exterior(APixeles(pedido_.ancho), APixeles(pedido_.alto));
  return exterior.expandedTo(QSize(1, 1).grownBy(MarcoConocido(marco_)));
}

// What the program asks for is the outer place and size: they are made exact once, when the window
// is first seen in its frame and in the normal state; one that came in another state, when it has
// been seen in that one first.
void Ventana::VerMarco() {
  const QWindow* nativa = windowHandle();
  if (!isVisible() || nativa == nullptr || !nativa->isExposed()) return;
  const EstadoVentana estado = Estado();
  llegada_ = llegada_ || estado == por_mostrar_;
  const auto marco = activacion_.Gestor().Marco(*nativa);
  if (estado != EstadoVentana::Normal || !llegada_ || !marco) return;
  if (std::exchange(por_ajustar_, false)) AjustarAlMarco(*marco);
  // Its place stays the one asked for where the desktop tells of none.
  const QPoint pedida = EsquinaPedida();
  const QPointF esquina = activacion_.Gestor().Esquina(*nativa).value_or(pedida);
  visto_ = QRect(QPoint(Vista(pedida.x(), esquina.x()), Vista(pedida.y(), esquina.y())),
                 size().grownBy(*marco));
}

// In one request, and for the inside: what the toolkit takes for the outer place is not yet true.
void Ventana::AjustarAlMarco(const QMargins& marco) {
  if (por_mostrar_ == EstadoVentana::Normal) {  // else it may still be that of the state just left
    MarcoConocido(marco_) = marco;
  }
  if (pedido_.ancho > 0) {
    setGeometry(QRect(EsquinaPedida(), Exterior()).marginsRemoved(MarcoConocido(marco_)));
  }
}

// The toolkit reads "[*]" in a title as a place for its own mark: doubled, it shows itself.
void Ventana::PonerTitulo(const QString& titulo) {
  titulo_ = titulo;
  setWindowTitle(QString(titulo).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void Ventana::PonerTituloSiDistinto(const QString& titulo) {
  if (titulo != titulo_) PonerTitulo(titulo);
}

bool Ventana::event(QEvent* evento) {
  if (evento->type() == QEvent::WinIdChange && windowHandle() != nullptr) {
    windowHandle()->installEventFilter(this);
  }
  return QWidget::event(evento);
}

bool Ventana::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == windowHandle() && evento->type() == QEvent::Expose) VerMarco();
  return QWidget::eventFilter(objeto, evento);
}

void Ventana::changeEvent(QEvent* evento) {
  QWidget::changeEvent(evento);
  if (evento->type() == QEvent::WindowStateChange && visible_) {
    const Activacion::Manejador manejador(activacion_);
    Form_Resize();
    VerMarco();
  }
}

void Ventana::moveEvent(QMoveEvent* evento) {
  QWidget::moveEvent(evento);
  VerMarco();
}

void Ventana::closeEvent(QCloseEvent* evento) {
  Cerrar();
  evento->accept();
}

void Ventana::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  if (visible_) {
    const Activacion::Manejador manejador(activacion_);
    Form_Resize();
  }
  VerMarco();
}
