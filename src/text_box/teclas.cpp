#include "text_box/teclas.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

enum class Mayus { No, Si, DaIgual };

struct Renglon {
  int tecla;
  bool control;
  Mayus mayus;
  Orden orden;
  Aviso aviso;
};

constexpr auto Caracter = Aviso::Caracter;
constexpr auto Suprimir = Aviso::Suprimir;
constexpr auto Ninguno = Aviso::Ninguno;

constexpr auto Edicion = std::to_array<Renglon>({
    {Qt::Key_Return, false, Mayus::DaIgual, Orden::Enter, Caracter},
    {Qt::Key_Enter, false, Mayus::DaIgual, Orden::Enter, Caracter},
    {Qt::Key_Return, true, Mayus::DaIgual, Orden::Enter, Caracter},
    {Qt::Key_Enter, true, Mayus::DaIgual, Orden::Enter, Caracter},
    {Qt::Key_Tab, false, Mayus::No, Orden::Tabulador, Caracter},
    {Qt::Key_Escape, false, Mayus::DaIgual, Orden::Nada, Caracter},
    {Qt::Key_Backspace, false, Mayus::DaIgual, Orden::Retroceso, Caracter},
    {Qt::Key_Backspace, true, Mayus::DaIgual, Orden::RetrocesoPalabra, Caracter},
    {Qt::Key_Delete, false, Mayus::No, Orden::Suprimir, Suprimir},
    {Qt::Key_Delete, true, Mayus::DaIgual, Orden::SuprimirPalabra, Suprimir},
    {Qt::Key_Delete, false, Mayus::Si, Orden::Cortar, Suprimir},
    {Qt::Key_Insert, true, Mayus::No, Orden::Copiar, Caracter},
    {Qt::Key_Insert, false, Mayus::Si, Orden::Pegar, Caracter},
    {Qt::Key_C, true, Mayus::No, Orden::Copiar, Caracter},
    {Qt::Key_X, true, Mayus::No, Orden::Cortar, Caracter},
    {Qt::Key_V, true, Mayus::No, Orden::Pegar, Caracter},
    {Qt::Key_A, true, Mayus::No, Orden::ElegirTodo, Caracter},
    {Qt::Key_Z, true, Mayus::No, Orden::Deshacer, Caracter},
    {Qt::Key_Z, true, Mayus::Si, Orden::Rehacer, Caracter},
    {Qt::Key_Y, true, Mayus::No, Orden::Rehacer, Caracter},
    {Qt::Key_Copy, false, Mayus::No, Orden::Copiar, Caracter},
    {Qt::Key_Cut, false, Mayus::No, Orden::Cortar, Caracter},
    {Qt::Key_Paste, false, Mayus::No, Orden::Pegar, Caracter},
    {Qt::Key_F10, false, Mayus::Si, Orden::Menu, Ninguno},
    {Qt::Key_Up, true, Mayus::No, Orden::RodarArriba, Ninguno},
    {Qt::Key_Down, true, Mayus::No, Orden::RodarAbajo, Ninguno},
});

struct Paso {
  int tecla;
  Orden suelta;
  Orden con_control;
};

constexpr auto Movimiento = std::to_array<Paso>({
    {Qt::Key_Left, Orden::Izquierda, Orden::PalabraIzquierda},
    {Qt::Key_Right, Orden::Derecha, Orden::PalabraDerecha},
    {Qt::Key_Up, Orden::FilaArriba, Orden::FilaArriba},
    {Qt::Key_Down, Orden::FilaAbajo, Orden::FilaAbajo},
    {Qt::Key_PageUp, Orden::PaginaArriba, Orden::PaginaArriba},
    {Qt::Key_PageDown, Orden::PaginaAbajo, Orden::PaginaAbajo},
    {Qt::Key_Home, Orden::InicioFila, Orden::InicioTexto},
    {Qt::Key_End, Orden::FinFila, Orden::FinTexto},
});

bool Coincide(const Renglon& renglon, int tecla, bool control, bool mayus) {
  return renglon.tecla == tecla && renglon.control == control &&
         (renglon.mayus == Mayus::DaIgual || (renglon.mayus == Mayus::Si) == mayus);
}

bool EsTexto(const QString& texto) {
  return !texto.isEmpty() && (texto[0].isPrint() || texto[0].isSurrogate());
}

}  // namespace

Tecla Interpretar(const QKeyEvent& evento) {
  const Qt::KeyboardModifiers modificadores = evento.modifiers();
  if (modificadores & (Qt::AltModifier | Qt::MetaModifier)) return {};
  const bool control = modificadores & Qt::ControlModifier;
  const bool mayus = modificadores & Qt::ShiftModifier;
  const int tecla = evento.key();
  const auto* orden = std::ranges::find_if(
      Edicion, [&](const Renglon& renglon) { return Coincide(renglon, tecla, control, mayus); });
  if (orden != std::end(Edicion)) return {orden->orden, orden->aviso, false};
  const auto* paso = std::ranges::find(Movimiento, tecla, &Paso::tecla);
  if (paso != std::end(Movimiento)) {
    return {control ? paso->con_control : paso->suelta, Aviso::Ninguno, mayus};
  }
  if (control && tecla >= Qt::Key_A && tecla <= Qt::Key_Z) {
    return {Orden::Nada, Aviso::Caracter, false};
  }
  if (!control && EsTexto(evento.text())) return {Orden::Escribir, Aviso::Caracter, false};
  return {};
}
