// The base of the program's windows: outer geometry in twips, state, showing, focus, and the
// handlers that run at each turn of a window's life.
#pragma once

#include <QWidget>

#include "platform/activacion.h"
#include "platform/twips.h"

enum class EstadoVentana { Normal = 0, Minimizada = 1, Maximizada = 2 };

class Ventana : public QWidget, public Activable {
  Q_OBJECT

 public:
  enum class Marco { Redimensionable, FijoConMinimizar, Fijo };

  Ventana(Activacion& activacion, Marco marco);
  ~Ventana() override;

  // Shown by the program; a minimised window counts as visible. The first showing runs Form_Load.
  void Mostrar();  // and makes it the active window
  void MostrarSinActivar();
  // Shows it in front of `duena`, the only window that answers, and returns when it was hidden or
  // closed; then `duena` is the active window again.
  void MostrarModal(Ventana& duena);
  void DarFoco();  // nothing happens to a window that is not visible
  void Ocultar();  // it stays loaded
  void Cerrar();   // runs Form_Unload
  bool Visible() const { return visible_; }

  // What is set before the window is shown is the state that it comes with.
  EstadoVentana Estado() const;
  void PonerEstado(EstadoVentana estado);

  // Left and top of the frame, outer width and height, in twips: of the normal state, also while
  // the window is minimised or maximised.
  RectTwips Rectangulo() const;
  void PonerRectangulo(const RectTwips& rectangulo);
  void PonerPosicion(int izquierda, int arriba);

  // The caption as the program set it, letter by letter.
  const QString& Titulo() const { return titulo_; }
  void PonerTitulo(const QString& titulo);
  void PonerTituloSiDistinto(const QString& titulo);

  // Form_Activate and Form_Deactivate besides.
  virtual void Form_Load() {}
  virtual void Form_Resize() {}
  virtual void Form_Unload() {}

  // Mapped, in the state that was set, with the keyboard or without: the last step of a showing.
  void Aparecer(bool con_foco);

 signals:
  void Oculta();
  void Cerrada();

 protected:
  Activacion& LaActivacion() const { return activacion_; }
  bool event(QEvent* evento) override;
  bool eventFilter(QObject* objeto, QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void moveEvent(QMoveEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void Cargar();
  QPoint EsquinaPedida() const;
  QSize Exterior() const;
  void VerMarco();
  void AjustarAlMarco(const QMargins& marco);

  Activacion& activacion_;
  Marco marco_;
  QString titulo_;
  EstadoVentana por_mostrar_ = EstadoVentana::Normal;  // the state to come with
  RectTwips pedido_;          // as last set; ancho 0: the size is not the program's to set
  QRect visto_;               // the frame in pixels, as last seen in the normal state
  bool por_ajustar_ = false;  // set, and not yet seen in its frame
  bool llegada_ = false;      // seen in the state that it came with
  bool cargada_ = false;
  bool visible_ = false;
};
