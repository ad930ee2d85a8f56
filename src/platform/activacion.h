// Which of the program's own windows is the active one, and the two handlers that run when that
// changes. The program moves it at once, inside the call; the desktop is asked afterwards, once.
#pragma once

#include <vector>

#include <QObject>
#include <QPointer>
#include <QTimer>

#include "platform/foco_propio.h"
#include "platform/gestor_ventanas.h"

class Ventana;

class Activacion : public QObject {
  Q_OBJECT

 public:
  // While one of these lives a handler is running. When the outermost ends, the windows that
  // were shown are mapped and the desktop is asked for the focus, if the program moved it.
  class Manejador {
   public:
    explicit Manejador(Activacion& activacion);
    ~Manejador();
    Manejador(const Manejador&) = delete;
    Manejador& operator=(const Manejador&) = delete;

   private:
    Activacion& activacion_;
  };

  // While one of these lives a dialog of the system is open over `duena`: nothing moves.
  class DialogoAbierto {
   public:
    DialogoAbierto(Activacion& activacion, Ventana& duena);
    ~DialogoAbierto();
    DialogoAbierto(const DialogoAbierto&) = delete;
    DialogoAbierto& operator=(const DialogoAbierto&) = delete;

   private:
    Manejador manejador_;
    Activacion& activacion_;
    QPointer<Ventana> duena_;
  };

  // While one of these lives a handler waits in the event loop of a modal window: what it asked for
  // is done, and the handlers inside the loop end on their own.
  class BucleModal {
   public:
    explicit BucleModal(Activacion& activacion);
    ~BucleModal();
    BucleModal(const BucleModal&) = delete;
    BucleModal& operator=(const BucleModal&) = delete;

   private:
    Activacion& activacion_;
    int profundidad_;
  };

  Activacion();
  ~Activacion() override;

  Ventana* Activa() const;
  bool HayDialogo() const { return dialogos_ > 0; }
  const GestorVentanas& Gestor() const { return gestor_; }

  // Moved by the program. Giving the focus to the window that is active already runs nothing.
  void DarFoco(Ventana& ventana);
  // A window that is to be mapped when the outermost handler ends.
  void Mapear(Ventana& ventana);
  void Restaurar(Ventana& ventana);    // brought back by the program from minimised
  void Desaparecer(Ventana& ventana);  // about to be hidden or closed
  void Olvidar(Ventana& ventana);      // closed: it is nobody's active window any more

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void PorUsuario(Ventana& ventana);
  void PorEscritorio(Ventana& ventana);
  bool Reenviar(Ventana& ventana, QEvent& evento);
  void Mover(Ventana& ventana);
  void MapearPendientes();
  void Asentar();
  void ElevarTocadas();
  void PedirFoco();
  static void Entregar(Ventana& ventana);
  void Prever(Ventana& ventana);
  void DevolverAlModal(WId ventana);
  void Sosegar();

  GestorVentanas gestor_;
  FocoPropio foco_;            // where the focus is, as the program sees it
  PeticionesFoco peticiones_;  // what the desktop has still to do about it
  QTimer paciencia_;           // when it ends they were lost or refused
  std::vector<QPointer<Ventana>> por_mapear_;
  std::vector<QPointer<Ventana>> tocadas_;   // given the focus during this handler
  std::vector<QPointer<Ventana>> elevadas_;  // raised since the user came to the program
  bool pedir_ = false;                       // the program moved the focus during this handler
  int profundidad_ = 0;
  int dialogos_ = 0;
};
