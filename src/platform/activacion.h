// Which of the program's own windows is the active one, and the two handlers that run when that
// changes. The program moves it at once, inside the call; the desktop is asked afterwards, once.
#pragma once

#include <vector>

#include <QObject>
#include <QPointer>
#include <QTimer>

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

  Ventana* Activa() const { return activa_; }
  bool HayDialogo() const { return dialogos_ > 0; }

  // Moved by the program. Giving the focus to the window that is active already runs nothing.
  void DarFoco(Ventana& ventana);
  // The desktop may have moved the focus behind a change of window state: ask for it again.
  void Reclamar() { reclamar_ = true; }
  // A window that is to be mapped when the outermost handler ends.
  void Mapear(Ventana& ventana);
  void Olvidar(Ventana& ventana);  // closed: it is nobody's active window any more

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void PorUsuario(Ventana& ventana);
  void PorEscritorio(Ventana& ventana);
  void Mover(Ventana& ventana);
  void MapearPendientes();
  void Asentar();
  void ElevarTocadas();
  void PedirFoco();
  void Sosegar();

  QPointer<Ventana> activa_;
  QPointer<Ventana> pedida_;      // asked of the desktop, or granted a moment ago
  QPointer<Ventana> presionada_;  // pressed while the desktop had not yet activated it
  std::vector<QPointer<Ventana>> por_mapear_;
  std::vector<QPointer<Ventana>> tocadas_;   // given the focus during this handler
  std::vector<QPointer<Ventana>> elevadas_;  // raised since the user came to the program
  bool concedida_ = false;
  QTimer paciencia_;  // gives up on a request that nobody answers
  int profundidad_ = 0;
  int dialogos_ = 0;
  bool reclamar_ = false;
};
