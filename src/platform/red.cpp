#include "platform/red.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <new>

#include <QTimer>

#include "shared/resultado.h"

namespace {

// Memory put by for the moment when there is none: with it a handler that is under way gets to its
// end, and the message can be shown. Until then it is only address space.
constexpr std::size_t TamanoReserva = std::size_t{8} << 20;
constexpr std::chrono::milliseconds Silencio{2000};  // painting may fail again and again

std::atomic<char*>& Reserva() {
  static std::atomic<char*> reserva;
  return reserva;
}

bool HayReserva() {
  return Reserva() != nullptr;
}

void Reservar() {
  if (!HayReserva()) Reserva() = new (std::nothrow) char[TamanoReserva];
}

void SoltarReserva() {
  delete[] Reserva().exchange(nullptr);
}

void Ceder() {
  if (!HayReserva()) throw std::bad_alloc();
  SoltarReserva();
}

// The sentence for the exception that is being handled.
QString MotivoDeExcepcion() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return Resultado::Fallo(ENOMEM).Motivo();
  } catch (...) {
    return QStringLiteral("Se ha producido un error inesperado.");
  }
}

}  // namespace

Red::Red(int& cuantos, char** argumentos) : QApplication(cuantos, argumentos) {
  Reservar();
  std::set_new_handler(Ceder);
}

Red::~Red() {
  std::set_new_handler(nullptr);
  SoltarReserva();
}

// Some events, such as another program's wish for what is selected, come past notify().
int Red::Ejecutar() {
  while (true) {
    try {
      return exec();
    } catch (...) {
      Recoger();
    }
  }
}

bool Red::notify(QObject* quien, QEvent* evento) {
  try {
    const bool hecho = QApplication::notify(quien, evento);
    if (!HayReserva()) Avisar(QStringLiteral("Queda muy poca memoria."));
    return hecho;
  } catch (...) {
    Recoger();
    return false;
  }
}

void Red::Recoger() noexcept {
  SoltarReserva();
  try {
    Avisar(MotivoDeExcepcion());
  } catch (...) {  // not even that
    beep();
  }
}

// When the events under way are done with; once for all that fails meanwhile.
void Red::Avisar(const QString& motivo) {
  if (por_decir_ || (dicho_.isValid() && !dicho_.hasExpired(Silencio.count()))) return;
  QTimer::singleShot(0, this, [this, motivo] { Decir(motivo); });
  por_decir_ = true;
}

void Red::Decir(const QString& motivo) {
  try {
    if (aviso_) aviso_(motivo + QStringLiteral("\n\nEl texto sigue en la ventana."));
  } catch (...) {
    beep();
  }
  Reservar();
  dicho_.start();
  por_decir_ = false;
}
