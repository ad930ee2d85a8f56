// What a function that can fail gives back: nothing, or the system's reason.
#pragma once

#include <utility>

#include <QString>

class [[nodiscard]] Resultado {
 public:
  Resultado() = default;                                            // success
  static Resultado Fallo(int codigo) { return Resultado(codigo); }  // an errno value

  bool Bien() const { return codigo_ == 0; }
  int Codigo() const { return codigo_; }
  QString Motivo() const;  // the reason in Spanish, a whole sentence; empty on success

 private:
  explicit Resultado(int codigo) : codigo_(codigo) {}
  int codigo_ = 0;
};

// A value, or the reason why there is none.
template <typename T>
class [[nodiscard]] ResultadoCon {
 public:
  ResultadoCon(T valor) : valor_(std::move(valor)) {}           // NOLINT: implicit
  ResultadoCon(Resultado resultado) : resultado_(resultado) {}  // NOLINT: a failure

  bool Bien() const { return resultado_.Bien(); }
  Resultado Fallo() const { return resultado_; }
  T& Valor() { return valor_; }  // only on success
  const T& Valor() const { return valor_; }

 private:
  T valor_{};
  Resultado resultado_;
};
