// The base of the program's windows: outer geometry in twips, state, showing, focus, and the
// handlers that run at each turn of a window's life.
#pragma once

#include <QWidget>

#include "platform/activacion.h"
#include "platform/twips.h"

enum class EstadoVentana { Normal = 0, Minimizada = 1, Maximizada = 2 };

class Ventana : public QWidget {
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

  virtual void Form_Load() {}
  virtual void Form_Resize() {}
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  virtual void Form_Unload() {}

 signals:
  void Oculta();
  void Cerrada();

 protected:
  Activacion& LaActivacion() const { return activacion_; }
  bool event(QEvent* evento) override;
  bool eventFilter(QObject* objeto, QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void Aparecer();
  QSize TamanoInterior() const;
  QRect RectanguloNormal() const;
  void AjustarAlMarco();

  Activacion& activacion_;
  QString titulo_;
  RectTwips pedido_;               // as last set; ancho 0: the size is not the program's to set
  bool ajustar_al_marco_ = false;  // the frame was not known when the size was set
  bool cargada_ = false;
  bool visible_ = false;
};
