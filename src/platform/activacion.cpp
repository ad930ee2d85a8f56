#include "platform/activacion.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QApplication>
#include <QInputMethodEvent>
#include <QWindow>

#include "platform/ventana.h"

namespace {

constexpr std::chrono::milliseconds Paciencia{1000};  // with a desktop that does not answer
constexpr std::chrono::milliseconds Calma{150};       // after it has answered
constexpr std::chrono::milliseconds EsperaSinGestor{50};

Ventana* VentanaDe(QObject* objeto) {
  if (auto* widget = qobject_cast<QWidget*>(objeto)) {
    return qobject_cast<Ventana*>(widget->window());
  }
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->windowHandle() == objeto) {
      return qobject_cast<Ventana*>(widget);
    }
  }
  return nullptr;
}

// A press or a key as the desktop hands it to a window, before any control sees it.
bool EsPulsacion(QObject* objeto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
      return objeto->isWindowType();
    case QEvent::InputMethod:
      return !static_cast<QInputMethodEvent*>(evento)->commitString().isEmpty();
    default:
      return false;
  }
}

// A modal window stands before it: the desktop may activate it all the same.
bool Bloqueada(const Ventana& ventana) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal != &ventana;
}

void Anotar(std::vector<QPointer<Ventana>>& lista, Ventana& ventana) {
  if (std::find(lista.begin(), lista.end(), &ventana) == lista.end()) {
    lista.emplace_back(&ventana);
  }
}

}  // namespace

Activacion::Manejador::Manejador(Activacion& activacion) : activacion_(activacion) {
  ++activacion_.profundidad_;
}

Activacion::Manejador::~Manejador() {
  if (activacion_.profundidad_ == 1) {
    activacion_.Asentar();
  }
  --activacion_.profundidad_;
}

Activacion::DialogoAbierto::DialogoAbierto(Activacion& activacion, Ventana& duena)
    : manejador_(activacion), activacion_(activacion) {
  activacion_.MapearPendientes();
  duena.raise();
  ++activacion_.dialogos_;
}

Activacion::DialogoAbierto::~DialogoAbierto() {
  --activacion_.dialogos_;
  activacion_.Reclamar();
}

Activacion::BucleModal::BucleModal(Activacion& activacion)
    : activacion_(activacion), profundidad_(activacion.profundidad_) {
  activacion_.Asentar();
  activacion_.profundidad_ = 0;
}

Activacion::BucleModal::~BucleModal() {
  activacion_.profundidad_ = profundidad_;
}

Activacion::Activacion() {
  qApp->installEventFilter(this);
  paciencia_.setSingleShot(true);
  connect(&paciencia_, &QTimer::timeout, this, &Activacion::Sosegar);
  connect(qApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState estado) {
            if (estado != Qt::ApplicationActive) {
              elevadas_.clear();
            }
          });
}

Activacion::~Activacion() = default;

void Activacion::DarFoco(Ventana& ventana) {
  const Manejador manejador(*this);
  Anotar(tocadas_, ventana);
  reclamar_ = true;
  Mover(ventana);
}

void Activacion::Mapear(Ventana& ventana) {
  Anotar(por_mapear_, ventana);
}

void Activacion::Olvidar(Ventana& ventana) {
  for (auto* lista : {&por_mapear_, &tocadas_, &elevadas_}) {
    std::erase(*lista, &ventana);
  }
  for (auto* una : {&activa_, &pedida_, &presionada_}) {
    if (*una == &ventana) {
      una->clear();
    }
  }
}

bool Activacion::eventFilter(QObject* objeto, QEvent* evento) {
  const bool activada = evento->type() == QEvent::WindowActivate;
  if (!activada && !EsPulsacion(objeto, evento)) {
    return false;
  }
  Ventana* ventana = VentanaDe(objeto);
  if (ventana == nullptr || dialogos_ > 0 || Bloqueada(*ventana)) {
    return false;
  }
  if (!activada) {
    PorUsuario(*ventana);
  } else if (objeto == ventana) {
    PorEscritorio(*ventana);
  }
  return false;
}

void Activacion::PorUsuario(Ventana& ventana) {
  if (!ventana.isActiveWindow()) {
    presionada_ = &ventana;
    pedida_ = nullptr;  // what was asked for before is out of date
    paciencia_.start(Paciencia);
    // Without a window manager nobody else gives the pressed window the keyboard.
    QTimer::singleShot(EsperaSinGestor, &ventana, [this, &ventana] {
      if (activa_ == &ventana && !ventana.isActiveWindow() && !HayDialogo()) {
        ventana.activateWindow();
      }
    });
  }
  Mover(ventana);
}

// While the desktop has not caught up with the last request or press, its events are old news;
// and for a moment afterwards, since an older request may still be under way.
void Activacion::PorEscritorio(Ventana& ventana) {
  const bool esperada = pedida_ != nullptr || presionada_ != nullptr;
  if (pedida_ == &ventana || presionada_ == &ventana) {
    concedida_ = true;
    presionada_ = nullptr;
    pedida_ = &ventana;
    paciencia_.start(Calma);
  }
  if (!esperada) {
    Mover(ventana);
  }
}

// Nothing is under way any more: where the keyboard really is counts.
void Activacion::Sosegar() {
  pedida_ = nullptr;
  presionada_ = nullptr;
  auto* real = qobject_cast<Ventana*>(QApplication::activeWindow());
  if (real != nullptr && dialogos_ == 0 && !Bloqueada(*real)) {
    Mover(*real);
  }
}

void Activacion::Mover(Ventana& ventana) {
  if (activa_ == &ventana) {
    return;
  }
  const Manejador manejador(*this);
  const QPointer<Ventana> anterior = std::exchange(activa_, &ventana);
  if (anterior != nullptr) {
    anterior->Form_Deactivate();
  }
  if (activa_ == &ventana) {
    ventana.Form_Activate();
  }
}

void Activacion::MapearPendientes() {
  // The active window comes last, so that the desktop's own choice agrees with the program's.
  std::stable_partition(por_mapear_.begin(), por_mapear_.end(),
                        [this](const auto& ventana) { return ventana != activa_; });
  for (const auto& ventana : std::exchange(por_mapear_, {})) {
    if (ventana != nullptr) {
      ventana->setAttribute(Qt::WA_ShowWithoutActivating, ventana != activa_);
      ventana->show();
      Anotar(elevadas_, *ventana);
    }
  }
}

void Activacion::Asentar() {
  MapearPendientes();
  if (std::exchange(reclamar_, false) && dialogos_ == 0) {
    ElevarTocadas();
    PedirFoco();
  }
  tocadas_.clear();
}

// A window that had the focus for a moment comes up too, below the one that keeps it; not again
// while the user stays in the program, where nothing can have come between them.
void Activacion::ElevarTocadas() {
  for (const auto& ventana : tocadas_) {
    const bool arriba = std::find(elevadas_.begin(), elevadas_.end(), ventana) != elevadas_.end();
    if (ventana != nullptr && ventana != activa_ && !arriba && ventana->isVisible() &&
        !ventana->isMinimized()) {
      ventana->raise();
      Anotar(elevadas_, *ventana);
    }
  }
}

void Activacion::PedirFoco() {
  if (activa_ == nullptr || !activa_->isVisible() || activa_->isMinimized()) {
    return;
  }
  const bool en_orden = pedida_ == nullptr || (pedida_ == activa_ && concedida_);
  if (activa_->isActiveWindow() && presionada_ == nullptr && en_orden) {
    return;
  }
  activa_->raise();
  Anotar(elevadas_, *activa_);
  pedida_ = activa_;
  concedida_ = false;
  paciencia_.start(Paciencia);
  activa_->activateWindow();
}
