// The last net under every event: an exception ends the event, not the program.
#pragma once

#include <functional>
#include <utility>

#include <QApplication>
#include <QElapsedTimer>

class Red : public QApplication {
 public:
  using Aviso = std::function<void(const QString& motivo)>;

  Red(int& cuantos, char** argumentos);
  ~Red() override;
  // Tells the user, in whole Spanish sentences; called when no handler runs.
  void PonerAviso(Aviso aviso) { aviso_ = std::move(aviso); }
  int Ejecutar();

  bool notify(QObject* quien, QEvent* evento) override;

 private:
  void Recoger() noexcept;  // in a catch
  void Avisar(const QString& motivo);
  void Decir(const QString& motivo);

  Aviso aviso_;
  bool por_decir_ = false;
  QElapsedTimer dicho_;  // since the last time
};
