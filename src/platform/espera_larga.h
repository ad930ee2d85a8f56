// What the user sees of a piece of work that holds the program up: nothing while it is short, then
// a dialog that tells how far it is and ends it.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>

#include <QString>

class Activacion;
class Ventana;

class Esperas {
 public:
  // Called between small steps of the work with what is done of it; false: the user has left it.
  using Seguir = std::function<bool(std::size_t hecho)>;

  virtual ~Esperas() = default;
  // The work lasts as long as what is given, and `duena` is there meanwhile. The name is shown
  // letter by letter; a `total` of 0 is one that nobody knows.
  virtual Seguir Empezar(Ventana& duena, const QString& titulo, const QString& nombre,
                         std::size_t total) = 0;
};

class EsperasReales : public Esperas {
 public:
  // `paciencia` is how long nothing is shown of a work that is half done by then; of others, half
  // as long.
  explicit EsperasReales(Activacion& activacion,
                         std::chrono::milliseconds paciencia = std::chrono::seconds(1))
      : activacion_(activacion), paciencia_(paciencia) {}
  Seguir Empezar(Ventana& duena, const QString& titulo, const QString& nombre,
                 std::size_t total) override;

 private:
  Activacion& activacion_;
  std::chrono::milliseconds paciencia_;
};
