#include "platform/accesibles.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

#include "platform/imagen.h"
#include "platform/ventana.h"

namespace {

// As a hand would: through the window, which becomes the active one before the command runs, and
// not while a dialog stands before it.
void Pulsar(const Imagen& imagen) {
  QWindow* ventana = imagen.window()->windowHandle();
  const QWidget* modal = QApplication::activeModalWidget();
  if (ventana == nullptr || (modal != nullptr && modal != imagen.window())) return;
  const QPoint centro = imagen.rect().center();
  const QPointF dentro = imagen.mapTo(imagen.window(), centro);
  const QPointF global = imagen.mapToGlobal(centro);
  const auto enviar = [&](QEvent::Type tipo, Qt::MouseButtons abajo) {
    QMouseEvent evento(tipo, dentro, global, Qt::LeftButton, abajo, Qt::NoModifier);
    QCoreApplication::sendEvent(ventana, &evento);
  };
  enviar(QEvent::MouseButtonPress, Qt::LeftButton);
  enviar(QEvent::MouseButtonRelease, Qt::NoButton);
}

class AccesibleImagen : public QAccessibleWidget {
 public:
  explicit AccesibleImagen(Imagen* imagen) : QAccessibleWidget(imagen) {}

  QAccessible::Role role() const override {
    return EsBoton() ? QAccessible::Button : QAccessible::Graphic;
  }

  QStringList actionNames() const override {
    return EsBoton() ? QStringList{pressAction()} : QStringList{};
  }

  // Later, so that the reader has its answer before a command opens a dialog.
  void doAction(const QString& accion) override {
    auto* imagen = static_cast<Imagen*>(widget());
    if (accion == pressAction() && EsBoton() && imagen->isEnabled()) {
      QMetaObject::invokeMethod(
          imagen, [imagen] { Pulsar(*imagen); }, Qt::QueuedConnection);
    }
  }

 private:
  bool EsBoton() const { return !widget()->accessibleName().isEmpty(); }
};

class AccesibleVentana : public QAccessibleWidget {
 public:
  explicit AccesibleVentana(Ventana* ventana) : QAccessibleWidget(ventana) {}

  QAccessible::Role role() const override {
    return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window;
  }
};

// Asked for each class of the object, from its own down to its base: the kinds of QFrame that the
// toolkit knows are answered before QFrame is.
QAccessibleInterface* Fabricar(const QString& clase, QObject* objeto) {
  if (auto* imagen = qobject_cast<Imagen*>(objeto)) return new AccesibleImagen(imagen);
  if (auto* ventana = qobject_cast<Ventana*>(objeto)) return new AccesibleVentana(ventana);
  if (clase == u"QFrame") {  // readers take a "frame" for a window
    return new QAccessibleWidget(static_cast<QWidget*>(objeto), QAccessible::Grouping);
  }
  return nullptr;
}

}  // namespace

void HacerAccesibles() {
  static const bool hecho = (QAccessible::installFactory(Fabricar), true);
  Q_UNUSED(hecho)
}
