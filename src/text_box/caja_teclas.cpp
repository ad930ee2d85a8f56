// Keys: what they do to a box.
#include <QKeyEvent>

#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

bool CajaTexto::event(QEvent* evento) {
  if (evento->type() == QEvent::ShortcutOverride) {
    // What the box understands is no shortcut of the window.
    const Orden orden = Interpretar(*static_cast<QKeyEvent*>(evento)).orden;
    if (orden != Orden::Ninguna) {
      evento->accept();
      return true;
    }
  }
  return QAbstractScrollArea::event(evento);
}

// Tab is text here; Shift+Tab leaves the box.
bool CajaTexto::focusNextPrevChild(bool siguiente) {
  if (siguiente && !SoloLectura()) return false;
  return QAbstractScrollArea::focusNextPrevChild(siguiente);
}

void CajaTexto::keyPressEvent(QKeyEvent* evento) {
  const Tecla tecla = Interpretar(*evento);
  if (tecla.orden == Orden::Ninguna) {
    evento->ignore();
    return;
  }
  evento->accept();
  if (Avisar(tecla.aviso) && !Mover(tecla)) Editar(tecla.orden, evento->text());
}

bool CajaTexto::Avisar(Aviso aviso) {
  if (!oyente_ || SoloLectura()) return true;
  if (aviso == Aviso::Suprimir) oyente_->TextBox_KeyDown();
  return aviso != Aviso::Caracter || oyente_->TextBox_KeyPress();
}

void CajaTexto::Editar(Orden orden, const QString& texto) {
  const Posicion pos = cursor_.Pos();
  switch (orden) {
    case Orden::Escribir:
      return Escribir(DeFuera(texto, documento_));
    case Orden::Enter:
      return Escribir(QByteArray::fromStdString(std::string(documento_.FinDeLinea())));
    case Orden::Tabulador:
      return Escribir("\t");
    case Orden::Retroceso:
      return edicion_.Borrar({RetrocesoIzquierda(documento_, pos), pos});
    case Orden::RetrocesoPalabra:
      return edicion_.Borrar({PalabraIzquierda(documento_, pos), pos});
    case Orden::Suprimir:
      return edicion_.Borrar({pos, PasoDerecha(documento_, pos)});
    case Orden::SuprimirPalabra:
      return edicion_.Borrar({pos, PalabraDerecha(documento_, pos)});
    default:
      return Mandar(orden);
  }
}

void CajaTexto::Mandar(Orden orden) {
  switch (orden) {
    case Orden::Cortar:
      return edicion_.Cortar();
    case Orden::Copiar:
      return edicion_.Copiar();
    case Orden::Pegar:
      return edicion_.Pegar();
    case Orden::Deshacer:
      return edicion_.Deshacer();
    case Orden::Rehacer:
      return edicion_.Rehacer();
    case Orden::Eliminar:
      return edicion_.Eliminar();
    case Orden::ElegirTodo:
      return ElegirTodo();
    case Orden::RodarArriba:
      return RodarFilas(-1);
    case Orden::RodarAbajo:
      return RodarFilas(1);
    case Orden::Menu:
      return MostrarMenu(viewport()->mapToGlobal(RectanguloCursor().bottomLeft()));
    default:
      return;
  }
}

void CajaTexto::Escribir(const QByteArray& bytes) {
  edicion_.Escribir(cursor_.Elegido(), bytes);
}

// Everything is selected where the user is: no scrolling to the end.
void CajaTexto::ElegirTodo() {
  const Posicion arriba = encuadre_.Arriba();
  const std::int64_t x = encuadre_.X();
  PonerCursor(documento_.Tamano(), 0);
  encuadre_.PonerArriba(arriba);
  RodarX(x);
  edicion_.Ofrecer();
}

bool CajaTexto::Mover(const Tecla& tecla) {
  if (!MoverPagina(tecla) && !cursor_.Mover(tecla)) return false;
  CursorMovido();
  documento_.CerrarGrupo();
  if (tecla.extender) edicion_.Ofrecer();
  return true;
}

// The text rolls with the caret; false for another key.
bool CajaTexto::MoverPagina(const Tecla& tecla) {
  if (tecla.orden != Orden::PaginaArriba && tecla.orden != Orden::PaginaAbajo) return false;
  const int pagina = std::max(1, encuadre_.FilasVisibles() - 1);
  const int filas = tecla.orden == Orden::PaginaArriba ? -pagina : pagina;
  encuadre_.Mostrar(cursor_.Donde());
  encuadre_.Desplazar(filas);
  cursor_.MoverFilas(filas, tecla.extender ? Seleccion::Extender : Seleccion::Quitar);
  return true;
}
