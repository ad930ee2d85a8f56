// What the keys mean to a text box.
#pragma once

#include <QKeyEvent>

enum class Orden {
  Ninguna,  // not a key of the text box
  Nada,     // announced, and then nothing
  Escribir,
  Enter,
  Tabulador,
  Retroceso,
  RetrocesoPalabra,
  Suprimir,
  SuprimirPalabra,
  Cortar,
  Copiar,
  Pegar,
  Eliminar,  // what is selected; from the menu
  Deshacer,
  Rehacer,
  ElegirTodo,
  Izquierda,
  Derecha,
  PalabraIzquierda,
  PalabraDerecha,
  FilaArriba,
  FilaAbajo,
  PaginaArriba,
  PaginaAbajo,
  InicioFila,
  FinFila,
  InicioTexto,
  FinTexto,
  RodarArriba,
  RodarAbajo,
  Menu,
};

enum class Aviso { Ninguno, Caracter, Suprimir };  // who is told of it, see OyenteTeclas

struct Tecla {
  Orden orden = Orden::Ninguna;
  Aviso aviso = Aviso::Ninguno;
  bool extender = false;  // the selection grows with the movement
};

Tecla Interpretar(const QKeyEvent& evento);
