// The window manager of an X11 desktop, spoken to where the toolkit says too little: who is to have
// the keyboard, and what a frame takes. After the Extended Window Manager Hints of freedesktop.org.
// Elsewhere, and without a manager, it knows nothing and the toolkit does what it can.
#pragma once

#include <optional>

#include <QAbstractNativeEventFilter>
#include <QMargins>
#include <QObject>
#include <qwindowdefs.h>

class QEvent;
class QWindow;
struct xcb_connection_t;

class GestorVentanas : public QObject, private QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  // Who asks, in the hints' numbers. What the user does is granted where a program is refused.
  enum class Quien { Programa = 1, Usuario = 2 };

  GestorVentanas();
  ~GestorVentanas() override;

  // Asks for the keyboard for `ventana`, which is brought back first where it is minimised. The
  // requests of a run are served in their order. False: there is nobody to ask.
  bool Activar(const QWindow& ventana, Quien quien = Quien::Programa);
  // The time of what the user did last goes with a request: an older one would be refused.
  void AnotarHora(const QEvent& evento);
  // Is a button of the mouse down? A press reaches a window after the keyboard that it brings.
  bool BotonPulsado() const;
  // What its frame takes; nothing until the manager has said it.
  std::optional<QMargins> Marco(const QWindow& ventana) const;
  // Where its frame begins on the screen, asked of the desktop: the toolkit can be mistaken.
  // Nothing where windows have no place of their own. At a scale it can lie between two pixels.
  std::optional<QPointF> Esquina(const QWindow& ventana) const;

 signals:
  void TecladoEn(WId ventana);      // the manager has given it the keyboard
  void MarcoCambiado(WId ventana);  // the manager has said what the frame takes

 private:
  bool nativeEventFilter(const QByteArray& tipo, void* mensaje, qintptr* resultado) override;
  bool Sabe(quint32 indicacion) const;
  std::optional<QMarginsF> MarcoNativo(const QWindow& ventana) const;
  void AnotarHora(quint32 hora);

  xcb_connection_t* conexion_ = nullptr;  // null: no X11
  quint32 raiz_ = 0;
  quint32 activa_ = 0;      // the atom _NET_ACTIVE_WINDOW
  quint32 sabidas_ = 0;     // _NET_SUPPORTED
  quint32 marco_ = 0;       // _NET_FRAME_EXTENTS
  quint32 protocolos_ = 0;  // WM_PROTOCOLS
  quint32 hora_ = 0;        // of the server, in milliseconds; it wraps around
};
