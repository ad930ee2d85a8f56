#include "platform/ventana.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QWindow>

#include "platform/accesibles.h"

namespace {

// What a frame takes until a window of this run has shown the real one, in twips.
constexpr int MargenAncho = 90;
constexpr int MargenAlto = 400;

// The frame of the last window that the desktop has decorated in this run.
QSize& MarcoConocido() {
  static QSize marco(APixeles(MargenAncho), APixeles(MargenAlto));
  return marco;
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

QSize MargenesDe(const QWindow& ventana) {
  const QMargins marco = ventana.frameMargins();
  return {marco.left() + marco.right(), marco.top() + marco.bottom()};
}

// The twips that were set, while the pixels are still theirs; else the pixels' own.
int TwipsDe(int pedido, int pixeles) {
  return APixeles(pedido) == pixeles ? pedido : ATwips(pixeles);
}

}  // namespace

Ventana::Ventana(Activacion& activacion, Marco marco)
    : QWidget(nullptr, Banderas(marco)), activacion_(activacion) {
  setAttribute(Qt::WA_QuitOnClose, false);
  HacerAccesibles();
}

Ventana::~Ventana() {
  activacion_.Olvidar(*this);
}

void Ventana::Mostrar() {
  const Activacion::Manejador manejador(activacion_);
  Aparecer();
  activacion_.DarFoco(*this);
}

void Ventana::MostrarSinActivar() {
  const Activacion::Manejador manejador(activacion_);
  Aparecer();
}

void Ventana::Aparecer() {
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
  if (visible_) {
    activacion_.DarFoco(*this);
  }
}

void Ventana::Ocultar() {
  if (!visible_) {
    return;
  }
  const Activacion::Manejador manejador(activacion_);
  visible_ = false;
  hide();
  emit Oculta();
}

void Ventana::Cerrar() {
  if (!cargada_) {
    return;
  }
  const Activacion::Manejador manejador(activacion_);
  cargada_ = false;
  Form_Unload();
  visible_ = false;
  activacion_.Olvidar(*this);
  hide();
  emit Cerrada();
}

EstadoVentana Ventana::Estado() const {
  if (isMinimized()) {
    return EstadoVentana::Minimizada;
  }
  return isMaximized() ? EstadoVentana::Maximizada : EstadoVentana::Normal;
}

void Ventana::PonerEstado(EstadoVentana estado) {
  if (estado == Estado()) {
    return;
  }
  const Activacion::Manejador manejador(activacion_);
  switch (estado) {
    case EstadoVentana::Normal:
      setWindowState(Qt::WindowNoState);
      break;
    case EstadoVentana::Minimizada:
      setWindowState(Qt::WindowMinimized);
      break;
    case EstadoVentana::Maximizada:
      setWindowState(Qt::WindowMaximized);
      break;
  }
  activacion_.Reclamar();
}

RectTwips Ventana::Rectangulo() const {
  if (ajustar_al_marco_) {  // never seen in its frame: still what was asked for
    return pedido_;
  }
  const QRect normal = RectanguloNormal();
  return {TwipsDe(pedido_.izquierda, normal.x()), TwipsDe(pedido_.arriba, normal.y()),
          TwipsDe(pedido_.ancho, normal.width()), TwipsDe(pedido_.alto, normal.height())};
}

// The frame's rectangle in pixels.
QRect Ventana::RectanguloNormal() const {
  const bool normal = Estado() == EstadoVentana::Normal;
  const QSize marco = windowHandle() != nullptr ? MargenesDe(*windowHandle()) : MarcoConocido();
  return {normal ? pos() : normalGeometry().topLeft(),
          (normal ? size() : normalGeometry().size()) + marco};
}

void Ventana::PonerRectangulo(const RectTwips& rectangulo) {
  pedido_ = rectangulo;
  ajustar_al_marco_ = !isVisible() || Estado() != EstadoVentana::Normal;
  resize(TamanoInterior());
  move(APixeles(pedido_.izquierda), APixeles(pedido_.arriba));
}

void Ventana::PonerPosicion(int izquierda, int arriba) {
  pedido_.izquierda = izquierda;
  pedido_.arriba = arriba;
  move(APixeles(izquierda), APixeles(arriba));
}

QSize Ventana::TamanoInterior() const {
  const QSize marco =
      isVisible() && windowHandle() != nullptr ? MargenesDe(*windowHandle()) : MarcoConocido();
  const QSize exterior(APixeles(pedido_.ancho), APixeles(pedido_.alto));
  return (exterior - marco).expandedTo(QSize(1, 1));
}

// The desktop has drawn its frame: what was a guess until now is made exact, once.
void Ventana::AjustarAlMarco() {
  MarcoConocido() = MargenesDe(*windowHandle());
  if (ajustar_al_marco_ && Estado() == EstadoVentana::Normal) {
    ajustar_al_marco_ = false;
    resize(TamanoInterior());
  }
}

// The toolkit reads "[*]" in a title as a place for its own mark: doubled, it shows itself.
void Ventana::PonerTitulo(const QString& titulo) {
  titulo_ = titulo;
  setWindowTitle(QString(titulo).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void Ventana::PonerTituloSiDistinto(const QString& titulo) {
  if (titulo != titulo_) {
    PonerTitulo(titulo);
  }
}

bool Ventana::event(QEvent* evento) {
  if (evento->type() == QEvent::WinIdChange && windowHandle() != nullptr) {
    windowHandle()->installEventFilter(this);
  }
  return QWidget::event(evento);
}

bool Ventana::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == windowHandle() && evento->type() == QEvent::Expose && windowHandle()->isExposed()) {
    AjustarAlMarco();
  }
  return QWidget::eventFilter(objeto, evento);
}

void Ventana::changeEvent(QEvent* evento) {
  QWidget::changeEvent(evento);
  if (evento->type() == QEvent::WindowStateChange && visible_) {
    const Activacion::Manejador manejador(activacion_);
    Form_Resize();
  }
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
}
