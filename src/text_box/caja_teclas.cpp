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
  const Bytes& bytes = documento_.Texto();
  const Posicion pos = cursor_.pos;
  switch (orden) {
    case Orden::Escribir:
      return Escribir(DeFuera(texto, documento_.FinDeLinea()));
    case Orden::Enter:
      return Escribir(QByteArray::fromStdString(std::string(documento_.FinDeLinea())));
    case Orden::Tabulador:
      return Escribir("\t");
    case Orden::Retroceso:
      return Borrar(PasoIzquierda(bytes, pos), pos);
    case Orden::RetrocesoPalabra:
      return Borrar(PalabraIzquierda(bytes, pos), pos);
    case Orden::Suprimir:
      return Borrar(pos, PasoDerecha(bytes, pos));
    case Orden::SuprimirPalabra:
      return Borrar(pos, PalabraDerecha(bytes, pos));
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
  const auto seleccion = tecla.extender ? Seleccion::Extender : Seleccion::Quitar;
  switch (tecla.orden) {
    case Orden::FilaArriba:
      MoverFilas(-1, seleccion);
      break;
    case Orden::FilaAbajo:
      MoverFilas(1, seleccion);
      break;
    case Orden::PaginaArriba:
      MoverPagina(-1, seleccion);
      break;
    case Orden::PaginaAbajo:
      MoverPagina(1, seleccion);
      break;
    default:
      const std::optional<Lugar> destino = Destino(tecla);
      if (!destino) return false;
      Colocar(*destino, seleccion);
  }
  documento_.CerrarGrupo();
  if (tecla.extender) OfrecerSeleccion();
  return true;
}

std::optional<Lugar> CajaTexto::Destino(const Tecla& tecla) const {
  const Bytes& texto = documento_.Texto();
  const bool quitar = HaySeleccion() && !tecla.extender;
  switch (tecla.orden) {
    case Orden::Izquierda:
      return Lugar{quitar ? Desde() : PasoIzquierda(texto, cursor_.pos), false};
    case Orden::Derecha:
      return Lugar{quitar ? Hasta() : PasoDerecha(texto, cursor_.pos), false};
    case Orden::PalabraIzquierda:
      return Lugar{PalabraIzquierda(texto, cursor_.pos), false};
    case Orden::PalabraDerecha:
      return Lugar{PalabraDerecha(texto, cursor_.pos), false};
    case Orden::InicioFila:
      return Lugar{encuadre_.FilaDe(cursor_), false};
    case Orden::FinFila:
      return encuadre_.FinDeFila(encuadre_.FilaDe(cursor_));
    case Orden::InicioTexto:
      return Lugar{0, false};
    case Orden::FinTexto:
      return Lugar{texto.Tamano(), false};
    default:
      return std::nullopt;
  }
}

// The x that moving up and down began with is kept over shorter rows.
void CajaTexto::MoverFilas(std::int64_t filas, Seleccion seleccion) {
  const Punto x = columna_.value_or(encuadre_.XDe(cursor_));
  const Posicion fila = encuadre_.FilaDe(cursor_);
  const Posicion otra = encuadre_.Andar(fila, filas);
  Colocar(otra == fila ? cursor_ : encuadre_.EnFila(otra, x), seleccion, Columna::Conservar);
  columna_ = x;
}

void CajaTexto::MoverPagina(int sentido, Seleccion seleccion) {
  const int filas = sentido * std::max(1, encuadre_.FilasVisibles() - 1);
  encuadre_.Mostrar(cursor_);
  encuadre_.Desplazar(filas);
  MoverFilas(filas, seleccion);
}
