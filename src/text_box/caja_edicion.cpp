// What changes the text, and the clipboard.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPointer>

#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

namespace {

constexpr Posicion MayorOferta = 1 << 20;  // bytes that are copied at each selecting

}  // namespace

// False where nothing could be changed.
bool CajaTexto::Cambiar(Posicion desde, Posicion hasta, const QByteArray& bytes,
                        Agrupacion agrupacion) {
  if (solo_lectura_ || (desde == hasta && bytes.isEmpty())) return false;
  if (QAccessible::isActive())
    por_quitar_ = documento_.Copia(desde, std::min(hasta, desde + MaximoLeido));
  const std::string_view nuevos(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  if (!documento_.Reemplazar(desde, hasta - desde, nuevos, agrupacion)) {
    QApplication::beep();  // out of memory
    return false;
  }
  Colocar({desde + bytes.size(), false}, Seleccion::Quitar);
  return true;
}

void CajaTexto::Borrar(Posicion desde, Posicion hasta) {
  if (HaySeleccion()) {
    Eliminar();
  } else {
    Cambiar(desde, hasta, {}, Agrupacion::Borrar);
  }
}

void CajaTexto::Insertar(const QString& texto) {
  Cambiar(Desde(), Hasta(), DeFuera(texto, documento_.FinDeLinea()), Agrupacion::Sola);
}

void CajaTexto::CambiarTramo(Posicion desde, Posicion hasta, const QString& texto) {
  Cambiar(desde, hasta, DeFuera(texto, documento_.FinDeLinea()), Agrupacion::Sola);
}

void CajaTexto::Deshacer() {
  if (!solo_lectura_) IrA(documento_.Deshacer());
}

void CajaTexto::Rehacer() {
  if (!solo_lectura_) IrA(documento_.Rehacer());
}

void CajaTexto::IrA(const Cambio& cambio) {
  if (cambio.pos >= 0) Colocar({cambio.pos + cambio.puestos, false}, Seleccion::Quitar);
}

void CajaTexto::Eliminar() {
  Cambiar(Desde(), Hasta(), {}, Agrupacion::Sola);
}

void CajaTexto::Cortar() {
  if (solo_lectura_ || !HaySeleccion()) return;
  Copiar();
  Eliminar();
}

void CajaTexto::Copiar() {
  if (HaySeleccion()) QApplication::clipboard()->setMimeData(DatosElegidos());
}

void CajaTexto::Pegar() {
  PegarDatos(QApplication::clipboard()->mimeData());
}

void CajaTexto::PegarDatos(const QMimeData* datos) {
  if (solo_lectura_ || !datos) return;
  Cambiar(Desde(), Hasta(), DeFuera(*datos, documento_.FinDeLinea()), Agrupacion::Sola);
}

void CajaTexto::ElegirTodo() {
  documento_.CerrarGrupo();
  ancla_ = 0;
  // Everything is selected where the user is: no scrolling to the end.
  const Posicion arriba = encuadre_.Arriba();
  const std::int64_t x = encuadre_.X();
  Colocar({documento_.Tamano(), false}, Seleccion::Extender);
  encuadre_.PonerArriba(arriba);
  RodarX(x);
  OfrecerSeleccion();
}

QMimeData* CajaTexto::DatosElegidos() const {
  return new DatosTexto(documento_.Copia(Desde(), Hasta()));
}

// A small selection is offered as it is now; a large one as it is when somebody takes it, so that
// selecting costs nothing at any size.
void CajaTexto::OfrecerSeleccion() {
  QClipboard* portapapeles = QApplication::clipboard();
  if (!HaySeleccion() || !portapapeles->supportsSelection()) return;
  if (Hasta() - Desde() <= MayorOferta) {
    portapapeles->setMimeData(DatosElegidos(), QClipboard::Selection);
    return;
  }
  const auto elegidos = [caja = QPointer<const CajaTexto>(this)] {
    return caja ? caja->documento_.Copia(caja->Desde(), caja->Hasta()) : QByteArray();
  };
  portapapeles->setMimeData(new DatosPendientes(elegidos), QClipboard::Selection);
}
