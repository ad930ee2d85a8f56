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
  if (siguiente && !solo_lectura_) return false;
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
  if (!oyente_ || solo_lectura_) return true;
  if (aviso == Aviso::Suprimir) oyente_->TeclaSuprimir();
  return aviso != Aviso::Caracter || oyente_->TeclaCaracter();
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
      return Borrar(PasoIzquierda(documento_, pos), pos);
    case Orden::RetrocesoPalabra:
      return Borrar(PalabraIzquierda(documento_, pos), pos);
    case Orden::Suprimir:
      return Borrar(pos, PasoDerecha(documento_, pos));
    case Orden::SuprimirPalabra:
      return Borrar(pos, PalabraDerecha(documento_, pos));
    default:
      return Mandar(orden);
  }
}

void CajaTexto::Mandar(Orden orden) {
  switch (orden) {
    case Orden::Cortar:
      return Cortar();
    case Orden::Copiar:
      return Copiar();
    case Orden::Pegar:
      return Pegar();
    case Orden::Deshacer:
      return Deshacer();
    case Orden::Rehacer:
      return Rehacer();
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
  Cambiar(Desde(), Hasta(), bytes, Agrupacion::Escribir);
}

bool CajaTexto::Mover(const Tecla& tecla) {
  if (!MoverPagina(tecla) && !cursor_.Mover(tecla)) return false;
  CursorMovido();
  documento_.CerrarGrupo();
  if (tecla.extender) OfrecerSeleccion();
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
