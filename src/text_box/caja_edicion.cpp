// What changes the text, and the clipboard.
#include <new>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

// False where nothing could be changed.
bool CajaTexto::Cambiar(Posicion desde, Posicion hasta, const QByteArray& bytes,
                        Agrupacion agrupacion) {
  return Cambiar(desde, hasta, SiCabe([&] { return Guardar(bytes); }), agrupacion);
}

bool CajaTexto::Cambiar(Posicion desde, Posicion hasta, std::optional<Pieza> nueva,
                        Agrupacion agrupacion) {
  if (!nueva || solo_lectura_ || (desde == hasta && nueva->Vacia())) return false;
  avisos_.PorQuitar(desde, hasta);
  const Posicion fin = desde + nueva->tamano;
  documento_.Reemplazar(desde, hasta - desde, std::move(*nueva), agrupacion);
  Llevar({fin, false}, Seleccion::Quitar);
  return true;
}

// What `traer` brings; nothing when memory is out, which is told.
template <typename Traer>
std::optional<Pieza> CajaTexto::SiCabe(Traer traer) {
  std::optional<Pieza> pieza;
  try {
    pieza = traer();
  } catch (const std::bad_alloc&) {
    pieza.reset();
  }
  if (!pieza && oyente_) oyente_->FaltaMemoria();
  return pieza;
}

std::optional<Pieza> CajaTexto::Guardar(const QByteArray& bytes) {
  return documento_.Guardar({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// What the clipboard or a drag brings, with the document's line ends. What comes from a box of
// ours, with these line ends already, is not even copied.
std::optional<Pieza> CajaTexto::Recibir(const QMimeData& datos) {
  const std::string_view fin = documento_.FinDeLinea();
  const auto* propios = qobject_cast<const DatosTexto*>(&datos);
  if (propios && propios->SoloFin(fin)) return propios->LaPieza();
  return SiCabe([&] { return Guardar(DeFuera(datos, documento_)); });
}

std::optional<Pieza> CajaTexto::Recibir(const QString& texto) {
  return SiCabe([&] { return Guardar(DeFuera(texto, documento_)); });
}

void CajaTexto::Borrar(Posicion desde, Posicion hasta) {
  if (HaySeleccion()) {
    Eliminar();
  } else {
    Cambiar(desde, hasta, Pieza{}, Agrupacion::Borrar);
  }
}

void CajaTexto::Insertar(const QString& texto) {
  Cambiar(Desde(), Hasta(), Recibir(texto), Agrupacion::Sola);
}

void CajaTexto::CambiarTramo(Posicion desde, Posicion hasta, const QString& texto) {
  Cambiar(desde, hasta, Recibir(texto), Agrupacion::Sola);
}

void CajaTexto::Deshacer() {
  const Cambio cambio = documento_.PorDeshacer();
  if (solo_lectura_ || cambio.pos < 0) return;
  avisos_.PorQuitar(cambio.pos, cambio.pos + cambio.quitados);
  IrA(documento_.Deshacer());
}

void CajaTexto::Rehacer() {
  const Cambio cambio = documento_.PorRehacer();
  if (solo_lectura_ || cambio.pos < 0) return;
  avisos_.PorQuitar(cambio.pos, cambio.pos + cambio.quitados);
  IrA(documento_.Rehacer());
}

void CajaTexto::IrA(const Cambio& cambio) {
  Llevar({cambio.pos + cambio.puestos, false}, Seleccion::Quitar);
}

void CajaTexto::Eliminar() {
  Cambiar(Desde(), Hasta(), Pieza{}, Agrupacion::Sola);
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
  if (!solo_lectura_ && datos) Cambiar(Desde(), Hasta(), Recibir(*datos), Agrupacion::Sola);
}

void CajaTexto::ElegirTodo() {
  // Everything is selected where the user is: no scrolling to the end.
  const Posicion arriba = encuadre_.Arriba();
  const std::int64_t x = encuadre_.X();
  PonerCursor(documento_.Tamano(), 0);
  encuadre_.PonerArriba(arriba);
  RodarX(x);
  OfrecerSeleccion();
}

QMimeData* CajaTexto::DatosElegidos() const {
  return new DatosTexto(documento_.Extracto(Desde(), Hasta()), documento_.CodificacionDelTexto());
}

void CajaTexto::OfrecerSeleccion() {
  QClipboard* portapapeles = QApplication::clipboard();
  if (HaySeleccion() && portapapeles->supportsSelection()) {
    portapapeles->setMimeData(DatosElegidos(), QClipboard::Selection);
  }
}
