#include "text_box/edicion_texto.h"

#include <algorithm>
#include <new>
#include <utility>

#include <QApplication>
#include <QClipboard>

#include "text_box/texto_externo.h"

// False where nothing could be changed.
bool EdicionTexto::Cambiar(const Rango& rango, std::optional<Extracto> nuevo,
                           Agrupacion agrupacion) {
  const auto [desde, hasta] = rango;
  if (!nuevo || solo_lectura_ || (desde == hasta && nuevo->Vacia())) return false;
  oyente_.PorQuitar(rango);
  const Posicion fin = desde + nuevo->tamano;
  documento_.Reemplazar(desde, hasta - desde, std::move(*nuevo), agrupacion);
  Llevar({fin, false});
  return true;
}

void EdicionTexto::Llevar(const Lugar& lugar) {
  cursor_.Llevar(lugar, Seleccion::Quitar);
  oyente_.CursorMovido();
}

void EdicionTexto::Elegir(Posicion desde, Posicion hasta) {
  documento_.CerrarGrupo();
  cursor_.Elegir(desde, {hasta, false});
  oyente_.CursorMovido();
}

// What `traer` brings; nothing when memory is out, which is told.
template <typename Traer>
std::optional<Extracto> EdicionTexto::SiCabe(Traer traer) {
  std::optional<Extracto> extracto;
  try {
    extracto = traer();
  } catch (const std::bad_alloc&) {
    extracto.reset();
  }
  if (!extracto) oyente_.FaltaMemoria();
  return extracto;
}

std::optional<Extracto> EdicionTexto::Guardar(const QByteArray& bytes) {
  return documento_.Guardar({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// What the clipboard or a drag brings, with the document's line ends and in its code page. What
// comes from a box of ours, with these already, is not even copied.
std::optional<Extracto> EdicionTexto::Recibir(const QMimeData& datos) {
  const auto* propios = qobject_cast<const DatosTexto*>(&datos);
  if (propios && propios->VaEn(documento_)) return propios->ElExtracto();
  return SiCabe([&] { return Guardar(DeFuera(datos, documento_)); });
}

void EdicionTexto::Escribir(const Rango& rango, const QByteArray& bytes) {
  Cambiar(rango, SiCabe([&] { return Guardar(bytes); }), Agrupacion::Escribir);
}

void EdicionTexto::Poner(const Rango& rango, const QString& texto) {
  Cambiar(rango, SiCabe([&] { return Guardar(DeFuera(texto, documento_)); }), Agrupacion::Sola);
}

void EdicionTexto::Borrar(const Rango& rango) {
  if (cursor_.HaySeleccion()) return Eliminar();
  Cambiar(rango, Extracto{}, Agrupacion::Borrar);
}

void EdicionTexto::Deshacer() {
  Invertir(documento_.PorDeshacer(), &Documento::Deshacer);
}

void EdicionTexto::Rehacer() {
  Invertir(documento_.PorRehacer(), &Documento::Rehacer);
}

void EdicionTexto::Invertir(const Cambio& por_hacer, Cambio (Documento::*invertir)()) {
  if (solo_lectura_ || por_hacer.pos < 0) return;
  oyente_.PorQuitar({por_hacer.pos, por_hacer.pos + por_hacer.quitados});
  const Cambio hecho = (documento_.*invertir)();
  Llevar({hecho.pos + hecho.puestos, false});
}

void EdicionTexto::Eliminar() {
  Cambiar(cursor_.Elegido(), Extracto{}, Agrupacion::Sola);
}

void EdicionTexto::Cortar() {
  if (solo_lectura_ || !cursor_.HaySeleccion()) return;
  Copiar();
  Eliminar();
}

void EdicionTexto::Copiar() const {
  if (cursor_.HaySeleccion()) QApplication::clipboard()->setMimeData(DatosElegidos());
}

void EdicionTexto::Pegar() {
  const QMimeData* datos = QApplication::clipboard()->mimeData();
  if (!solo_lectura_ && datos) Cambiar(cursor_.Elegido(), Recibir(*datos), Agrupacion::Sola);
}

void EdicionTexto::Ofrecer() const {
  QClipboard* portapapeles = QApplication::clipboard();
  if (cursor_.HaySeleccion() && portapapeles->supportsSelection()) {
    portapapeles->setMimeData(DatosElegidos(), QClipboard::Selection);
  }
}

void EdicionTexto::PegarPrimaria(const Lugar& lugar) {
  const QClipboard* portapapeles = QApplication::clipboard();
  if (solo_lectura_ || !portapapeles->supportsSelection()) return;
  const QMimeData* datos = portapapeles->mimeData(QClipboard::Selection);
  if (!datos) return;
  // Taken before the caret moves: it may be this text's own selection.
  std::optional<Extracto> nuevo = Recibir(*datos);
  documento_.CerrarGrupo();
  Llevar(lugar);
  Cambiar(cursor_.Elegido(), std::move(nuevo), Agrupacion::Sola);
}

QMimeData* EdicionTexto::DatosElegidos() const {
  const auto [desde, hasta] = cursor_.Elegido();
  return new DatosTexto(documento_.Extraer(desde, hasta), documento_.CodificacionDelTexto());
}

void EdicionTexto::Soltar(const QMimeData& datos, Posicion pos) {
  if (Cambiar({pos, pos}, Recibir(datos), Agrupacion::Sola)) Elegir(pos, cursor_.Pos());
}

// One replacement, so one step of undo: the selection and what lies between it and `pos` change
// places.
void EdicionTexto::MoverElegido(Posicion pos) {
  const auto [desde, hasta] = cursor_.Elegido();
  if (pos >= desde && pos <= hasta) return;
  const bool atras = pos < desde;
  const Extracto elegido = documento_.Extraer(desde, hasta);
  const Extracto paso = atras ? documento_.Extraer(pos, desde) : documento_.Extraer(hasta, pos);
  const Posicion inicio = std::min(pos, desde);
  const Posicion llegada = atras ? pos : inicio + paso.tamano;
  if (Cambiar({inicio, std::max(pos, hasta)}, atras ? Juntar(elegido, paso) : Juntar(paso, elegido),
              Agrupacion::Sola)) {
    Elegir(llegada, llegada + elegido.tamano);
  }
}
