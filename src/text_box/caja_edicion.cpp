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

bool CajaTexto::Cambiar(Posicion desde, Posicion hasta, std::optional<Extracto> nuevo,
                        Agrupacion agrupacion) {
  if (!nuevo || solo_lectura_ || (desde == hasta && nuevo->Vacia())) return false;
  avisos_.PorQuitar(desde, hasta);
  const Posicion fin = desde + nuevo->tamano;
  documento_.Reemplazar(desde, hasta - desde, std::move(*nuevo), agrupacion);
  Llevar({fin, false}, Seleccion::Quitar);
  return true;
}

// What `traer` brings; nothing when memory is out, which is told.
template <typename Traer>
std::optional<Extracto> CajaTexto::SiCabe(Traer traer) {
  std::optional<Extracto> extracto;
  try {
    extracto = traer();
  } catch (const std::bad_alloc&) {
    extracto.reset();
  }
  if (!extracto && oyente_) oyente_->FaltaMemoria();
  return extracto;
}

std::optional<Extracto> CajaTexto::Guardar(const QByteArray& bytes) {
  return documento_.Guardar({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// What the clipboard or a drag brings, with the document's line ends. What comes from a box of
// ours, with these line ends already, is not even copied.
std::optional<Extracto> CajaTexto::Recibir(const QMimeData& datos) {
  const std::string_view fin = documento_.FinDeLinea();
  const auto* propios = qobject_cast<const DatosTexto*>(&datos);
  if (propios && propios->SoloFin(fin)) return propios->ElExtracto();
  return SiCabe([&] { return Guardar(DeFuera(datos, documento_)); });
}

std::optional<Extracto> CajaTexto::Recibir(const QString& texto) {
  return SiCabe([&] { return Guardar(DeFuera(texto, documento_)); });
}

void CajaTexto::Borrar(Posicion desde, Posicion hasta) {
  if (HaySeleccion()) {
    Eliminar();
  } else {
    Cambiar(desde, hasta, Extracto{}, Agrupacion::Borrar);
  }
}

void CajaTexto::Insertar(const QString& texto) {
  Cambiar(Desde(), Hasta(), Recibir(texto), Agrupacion::Sola);
}

void CajaTexto::CambiarRango(Posicion desde, Posicion hasta, const QString& texto) {
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
  Cambiar(Desde(), Hasta(), Extracto{}, Agrupacion::Sola);
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
  return new DatosTexto(documento_.Extraer(Desde(), Hasta()), documento_.CodificacionDelTexto());
}

void CajaTexto::OfrecerSeleccion() {
  QClipboard* portapapeles = QApplication::clipboard();
  if (HaySeleccion() && portapapeles->supportsSelection()) {
    portapapeles->setMimeData(DatosElegidos(), QClipboard::Selection);
  }
}
