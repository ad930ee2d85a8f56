#include "platform/espera_larga.h"

#include <memory>
#include <new>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/dialogo.h"
#include "platform/ventana.h"

namespace {

using std::chrono::milliseconds;
using Reloj = std::chrono::steady_clock;

constexpr int Ancho = 320;                // pixels, of the name and the bar
constexpr int Partes = 1000;              // of the bar
constexpr milliseconds EntreEventos{20};  // the user's and the desktop's, while the dialog is open

// The toolkit's own would run events whenever its bar is moved, and read the name as rich text.
class DialogoEspera : public QDialog {
 public:
  DialogoEspera(const QString& titulo, const QString& nombre, bool con_medida) {
    setWindowTitle(titulo);
    auto* rotulo = new QLabel(this);
    rotulo->setTextFormat(Qt::PlainText);
    rotulo->setText(rotulo->fontMetrics().elidedText(nombre, Qt::ElideMiddle, Ancho));
    rotulo->setAccessibleName(nombre);
    barra_ = new QProgressBar(this);
    barra_->setAccessibleName(titulo);
    barra_->setRange(0, con_medida ? Partes : 0);
    barra_->setMinimumWidth(Ancho);
    auto* cancelar = new QPushButton(QStringLiteral("Cancelar"), this);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(rotulo);
    columna->addWidget(barra_);
    columna->addWidget(cancelar, 0, Qt::AlignRight);
    columna->setSizeConstraint(QLayout::SetFixedSize);
  }
  void Poner(double parte) { barra_->setValue(static_cast<int>(parte * Partes)); }

 private:
  QProgressBar* barra_;
};

class Espera {
 public:
  Espera(Activacion& activacion, Ventana& duena, QString titulo, QString nombre, std::size_t total,
         milliseconds paciencia)
      : activacion_(activacion),
        duena_(duena),
        titulo_(std::move(titulo)),
        nombre_(std::move(nombre)),
        total_(total),
        paciencia_(paciencia) {}

  bool Seguir(std::size_t hecho) {
    const Reloj::time_point ahora = Reloj::now();
    if (ahora < proxima_ || (dialogo_ == nullptr && !Tarda(ahora - inicio_, hecho))) return true;
    try {
      return Atender(hecho);
    } catch (const std::bad_alloc&) {  // the work itself is not to fail for that
      Callar();
      return true;
    }
  }

 private:
  double Parte(std::size_t hecho) const {
    return static_cast<double>(hecho) / static_cast<double>(total_);
  }

  // No dialog comes up for the last moment of a work.
  bool Tarda(Reloj::duration pasado, std::size_t hecho) const {
    return pasado >= paciencia_ || (pasado >= paciencia_ / 2 && 2 * hecho < total_);
  }

  bool Atender(std::size_t hecho) {
    if (dialogo_ == nullptr) Mostrar();
    if (total_ > 0) dialogo_->Poner(Parte(hecho));
    QCoreApplication::processEvents();
    proxima_ = Reloj::now() + EntreEventos;
    return dialogo_->isVisible();  // every way to leave it hides it
  }

  void Mostrar() {
    dialogo_ = std::make_unique<DialogoEspera>(titulo_, nombre_, total_ > 0);
    abierto_.emplace(activacion_, duena_);
    PonerDelante(duena_, *dialogo_);
    dialogo_->setModal(true);
    dialogo_->show();
  }

  void Callar() {
    dialogo_.reset();
    abierto_.reset();
    proxima_ = Reloj::time_point::max();
  }

  Activacion& activacion_;
  Ventana& duena_;
  QString titulo_;
  QString nombre_;
  std::size_t total_;
  milliseconds paciencia_;
  Reloj::time_point inicio_ = Reloj::now();
  Reloj::time_point proxima_ = inicio_;  // no sooner the clock's word counts
  std::optional<Activacion::DialogoAbierto> abierto_;
  std::unique_ptr<DialogoEspera> dialogo_;  // gone before windows move again
};

}  // namespace

Esperas::Seguir EsperasReales::Empezar(Ventana& duena, const QString& titulo, const QString& nombre,
                                       std::size_t total) {
  const auto espera =
      std::make_shared<Espera>(activacion_, duena, titulo, nombre, total, paciencia_);
  return [espera](std::size_t hecho) { return espera->Seguir(hecho); };
}
