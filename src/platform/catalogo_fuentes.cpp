#include "platform/catalogo_fuentes.h"

#include <algorithm>
#include <chrono>
#include <system_error>

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include "platform/fuentes.h"

namespace {

// Where a window is not to be seen, as one that comes minimised, its picture is not waited for.
constexpr std::chrono::milliseconds Paciencia{500};

bool SeVenTodas() {
  return std::ranges::all_of(QGuiApplication::topLevelWindows(), [](const QWindow* ventana) {
    return !ventana->isVisible() || ventana->isExposed();
  });
}

}  // namespace

// Under Wayland showing a window may change the environment.
CatalogoFuentes::CatalogoFuentes() : leido_(QGuiApplication::platformName() != u"xcb") {
  if (leido_) return;
  qApp->installEventFilter(this);
  QTimer::singleShot(Paciencia, this, &CatalogoFuentes::Adelantar);
}

// A window draws itself in the event that it is seen for the first time in.
bool CatalogoFuentes::eventFilter(QObject* /*objeto*/, QEvent* evento) {
  if (evento->type() == QEvent::Expose && SeVenTodas()) {
    qApp->removeEventFilter(this);
    QMetaObject::invokeMethod(this, &CatalogoFuentes::Adelantar, Qt::QueuedConnection);
  }
  return false;
}

void CatalogoFuentes::Adelantar() {
  if (leido_ || adelantado_) return;
  adelantado_ = true;
  qApp->removeEventFilter(this);
  try {
    lectura_ = std::jthread([this] { Leer(); });
  } catch (const std::system_error&) {  // no thread to be had
    Leer();
  }
}

void CatalogoFuentes::Leer() {
  LeerCatalogoFuentes();
  const auto llegar = [this] {
    leido_ = true;
    emit Llegado();
  };
  QMetaObject::invokeMethod(this, llegar, Qt::QueuedConnection);
}
