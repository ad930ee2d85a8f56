#include "platform/activacion.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QWindow>

#include "platform/ventana.h"

namespace {

// A desktop that has not done by then what it was asked for is not going to.
constexpr std::chrono::milliseconds Paciencia{1000};

Ventana* VentanaDe(QObject* objeto) {
  if (auto* widget = qobject_cast<QWidget*>(objeto)) {
    return qobject_cast<Ventana*>(widget->window());
  }
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->windowHandle() == objeto) return qobject_cast<Ventana*>(widget);
  }
  return nullptr;
}

// As the desktop hands it to a window, before any control sees it.
bool EsPulsacion(QObject* objeto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
      return objeto->isWindowType();
    default:
      return false;
  }
}

bool EsTecla(QObject* objeto, QEvent* evento) {
  return (evento->type() == QEvent::KeyPress && objeto->isWindowType()) ||
         (evento->type() == QEvent::InputMethod &&
          !static_cast<QInputMethodEvent*>(evento)->commitString().isEmpty());
}

// An accent is composed only where a control says, when it is asked, that it takes such texts.
bool EsComposicion(const QEvent& evento) {
  return evento.type() == QEvent::InputMethod || evento.type() == QEvent::InputMethodQuery;
}

// A modal window stands before it: the desktop may activate it all the same.
bool Bloqueada(const Ventana& ventana) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal != &ventana;
}

bool PuedeTenerTeclado(const Ventana* ventana) {
  return ventana != nullptr && ventana->isVisible() && !ventana->isMinimized();
}

void Anotar(std::vector<QPointer<Ventana>>& lista, Ventana& ventana) {
  if (std::find(lista.begin(), lista.end(), &ventana) == lista.end()) lista.emplace_back(&ventana);
}

}  // namespace

Activacion::Manejador::Manejador(Activacion& activacion) : activacion_(activacion) {
  ++activacion_.profundidad_;
}

Activacion::Manejador::~Manejador() {
  if (activacion_.profundidad_ == 1) activacion_.Asentar();
  --activacion_.profundidad_;
}

Activacion::DialogoAbierto::DialogoAbierto(Activacion& activacion, Ventana& duena)
    : manejador_(activacion), activacion_(activacion), duena_(&duena) {
  activacion_.MapearPendientes();
  duena.raise();
  ++activacion_.dialogos_;
}

// The desktop gives the keyboard back to the dialog's owner, the program to its active window.
Activacion::DialogoAbierto::~DialogoAbierto() {
  --activacion_.dialogos_;
  activacion_.pedir_ = true;
  if (duena_ != nullptr) activacion_.Prever(*duena_);
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
  connect(&gestor_, &GestorVentanas::TecladoEn, this, &Activacion::DevolverAlModal,
          Qt::QueuedConnection);
  paciencia_.setSingleShot(true);
  paciencia_.setInterval(Paciencia);
  connect(&paciencia_, &QTimer::timeout, this, &Activacion::Sosegar);
  connect(qApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState estado) {
            if (estado != Qt::ApplicationActive) elevadas_.clear();
          });
}

Activacion::~Activacion() = default;

Ventana* Activacion::Activa() const {
  return static_cast<Ventana*>(foco_.Activa());
}

void Activacion::DarFoco(Ventana& ventana) {
  const Manejador manejador(*this);
  Anotar(tocadas_, ventana);
  pedir_ = true;
  Mover(ventana);
}

void Activacion::Mapear(Ventana& ventana) {
  Anotar(por_mapear_, ventana);
}

// Some desktops bring it back when it is mapped, the others when it is activated: both are asked.
void Activacion::Restaurar(Ventana& ventana) {
  pedir_ = true;
  Prever(ventana);
  if (ventana.windowHandle() != nullptr) {
    gestor_.Activar(*ventana.windowHandle(), GestorVentanas::Quien::Usuario);
  }
}

// The desktop chooses another of the windows for the keyboard, whichever it likes.
void Activacion::Desaparecer(Ventana& ventana) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* otra = qobject_cast<Ventana*>(widget);
    if (otra != nullptr && otra != &ventana && otra->isVisible()) Prever(*otra);
  }
}

void Activacion::Olvidar(Ventana& ventana) {
  for (auto* lista : {&por_mapear_, &tocadas_, &elevadas_}) std::erase(*lista, &ventana);
  foco_.Olvidar(ventana);
  peticiones_.Olvidar(ventana);
}

bool Activacion::eventFilter(QObject* objeto, QEvent* evento) {
  gestor_.AnotarHora(*evento);
  const bool activada = evento->type() == QEvent::WindowActivate;
  const bool tecla = EsTecla(objeto, evento);
  const bool teclado = tecla || EsComposicion(*evento);
  const bool del_usuario = tecla || EsPulsacion(objeto, evento);
  if (!activada && !teclado && !del_usuario) return false;
  Ventana* ventana = VentanaDe(objeto);
  if (ventana == nullptr || dialogos_ > 0 || Bloqueada(*ventana)) return false;
  if (teclado && Reenviar(*ventana, *evento)) return true;
  if (activada && objeto == ventana) PorEscritorio(*ventana);
  if (del_usuario) PorUsuario(*ventana);
  return false;
}

void Activacion::PorUsuario(Ventana& ventana) {
  const Manejador manejador(*this);
  pedir_ = true;  // a press need not bring the keyboard along, and an older request may take it
  if (!ventana.isActiveWindow()) Prever(ventana);
  Mover(ventana);
}

// Typed while the keyboard is still on its way, or was refused: for the window that is to have it.
bool Activacion::Reenviar(Ventana& ventana, QEvent& evento) {
  Ventana* activa = Activa();
  const bool en_camino = !peticiones_.Vacias() || QApplication::activeWindow() == activa;
  if (activa == &ventana || !en_camino || !PuedeTenerTeclado(activa)) return false;
  QObject* destino = activa->windowHandle();
  if (EsComposicion(evento)) destino = activa->focusWidget();
  if (destino != nullptr) QCoreApplication::sendEvent(destino, &evento);
  return true;
}

void Activacion::PorEscritorio(Ventana& ventana) {
  switch (peticiones_.Activada(ventana, foco_.Activa())) {
    case PeticionesFoco::Respuesta::Repetir:
      if (gestor_.BotonPulsado()) {
        Mover(ventana);
      } else {
        PedirFoco();
      }
      break;
    case PeticionesFoco::Respuesta::DelUsuario:
      Mover(ventana);
      break;
    case PeticionesFoco::Respuesta::Conforme:
    case PeticionesFoco::Respuesta::Esperar:
      break;
  }
}

// Some desktops let a window take the keyboard that a modal one stands before.
void Activacion::DevolverAlModal(WId ventana) {
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal->windowHandle() != nullptr && modal->internalWinId() != ventana &&
      qobject_cast<Ventana*>(QWidget::find(ventana)) != nullptr) {
    gestor_.Activar(*modal->windowHandle(), GestorVentanas::Quien::Usuario);
  }
}

// No answer. The request can have been lost while the desktop was busy with another: it is made
// once more. Or it was refused: the program passes the keyboard on, until the user moves it.
void Activacion::Sosegar() {
  peticiones_.Vaciar();
  auto* real = qobject_cast<Ventana*>(QApplication::activeWindow());
  if (real == nullptr || real == Activa() || dialogos_ > 0 || Bloqueada(*real)) return;
  if (PuedeTenerTeclado(Activa())) {
    PedirFoco();
    Entregar(*Activa());
  }
}

// As the toolkit does when the desktop has done it.
void Activacion::Entregar(Ventana& ventana) {
  QApplication::setActiveWindow(&ventana);
  if (QWidget* control = ventana.focusWidget()) control->setFocus();
}

void Activacion::Mover(Ventana& ventana) {
  const Manejador manejador(*this);
  foco_.Mover(ventana);
}

void Activacion::Prever(Ventana& ventana) {
  peticiones_.Prever(ventana);
  paciencia_.start();
}

void Activacion::MapearPendientes() {
  // The active window comes last, so that the desktop's own choice agrees with the program's.
  std::stable_partition(por_mapear_.begin(), por_mapear_.end(),
                        [this](const auto& ventana) { return ventana != Activa(); });
  for (const auto& ventana : std::exchange(por_mapear_, {})) {
    if (ventana != nullptr) {
      ventana->Aparecer(ventana == Activa());
      Prever(*ventana);
      Anotar(elevadas_, *ventana);
    }
  }
}

void Activacion::Asentar() {
  MapearPendientes();
  if (std::exchange(pedir_, false) && dialogos_ == 0) {
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
    if (ventana != nullptr && ventana != Activa() && !arriba && ventana->isVisible() &&
        !ventana->isMinimized()) {
      ventana->raise();
      Anotar(elevadas_, *ventana);
    }
  }
}

void Activacion::PedirFoco() {
  Ventana* activa = Activa();
  if (!PuedeTenerTeclado(activa)) return;
  if (activa->isActiveWindow() && peticiones_.Vacias()) {
    Entregar(*activa);  // the program may have passed it on
    return;
  }
  activa->raise();
  Anotar(elevadas_, *activa);
  peticiones_.Pedir(*activa);
  paciencia_.start();
  if (!gestor_.Activar(*activa->windowHandle())) activa->activateWindow();
  QGuiApplication::inputMethod()->update(Qt::ImEnabled);
}
