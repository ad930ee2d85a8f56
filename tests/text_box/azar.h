// Random edits of a text, with all that the core says of it compared with what is true.
#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "text_box/filas.h"
#include "text_box/ingenuo.h"
#include "text_box/lineas.h"
#include "text_box/renglones_lineas.h"

class Azar {
 public:
  explicit Azar(std::uint64_t semilla);
  void Paso();  // one edit; std::runtime_error when something is wrong afterwards

 private:
  // Rows of one kind next to the truth about them.
  struct Pareja {
    std::unique_ptr<Renglones> renglones;
    Avances avances;
    Punto ancho = 0;  // 0: not wrapped
  };

  std::int64_t Hasta(std::int64_t maximo);  // 0..maximo
  Avances UnosAvances();
  std::string UnTexto();
  void Reconfigurar(Pareja& pareja);
  void Editar();
  void Exigir(bool cierto, const char* que) const;
  ingenuo::Inicios Inicios(const Pareja& pareja) const;
  void ComprobarLineas();
  void ComprobarLugar(const Pareja& pareja, const ingenuo::Inicios& inicios, Posicion pos);
  void ComprobarEquis(const Pareja& pareja, const ingenuo::Inicios& inicios, std::size_t i);
  void ComprobarTodo(const Pareja& pareja);

  std::mt19937_64 azar_;
  std::string cierto_;  // the text
  Bytes texto_;
  std::vector<std::string> alfabeto_;  // characters, or parts of them
  bool utf8_ = false;
  std::int64_t tamano_ = 0;
  Filas::Medidas medidas_;
  std::unique_ptr<Lineas> lineas_;
  std::vector<Pareja> parejas_;
};
