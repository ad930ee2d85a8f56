#include "text_box/encuadre.h"

#include <algorithm>
#include <string>

#include <QtMath>

#include "text_box/filas.h"
#include "text_box/movimiento.h"
#include "text_box/renglones_lineas.h"

namespace {
constexpr int AnchoCursor = 1;
}  // namespace

Encuadre::Encuadre(const Documento& documento, bool ajustado)
    : documento_(documento), ajustado_(ajustado) {}

void Encuadre::PonerFuente(const QFont& fuente) {
  fuente_ = fuente;
  tabla_.reset();
  reparto_.reset();
  encajado_ = false;
}

const TablaGlifos& Encuadre::Tabla() const {
  const Codificacion* codificacion = &documento_.CodificacionDelTexto();
  if (!tabla_ || codificacion_ != codificacion) tabla_.emplace(fuente_, *codificacion);
  codificacion_ = codificacion;
  return *tabla_;
}

void Encuadre::Medir(const QSize& tamano) {
  const bool otro_ancho = tamano.width() != tamano_.width();
  tamano_ = tamano;
  if (otro_ancho && ajustado_) reparto_.reset();
  encajado_ = false;
}

Punto Encuadre::AnchoUtil() const {
  return std::max(1, tamano_.width() - 2 * Margen) * Pixel;
}

void Encuadre::Reemplazado(const Cambio& cambio, bool seguir) {
  if (seguir && reparto_) {
    reparto_->Reemplazado(cambio);
  } else {
    reparto_.reset();
  }
  SeguirLectura(cambio);
  encajado_ = false;
}

// What changes in sight does not move what is above it.
void Encuadre::SeguirLectura(const Cambio& cambio) {
  const Posicion fin_quitado = cambio.pos + cambio.quitados;
  if (encajado_ && cambio.pos >= arriba_) {
    if (cambio.pos <= lectura_) lectura_ = arriba_;
  } else if (lectura_ > cambio.pos && lectura_ >= fin_quitado) {
    lectura_ += cambio.puestos - cambio.quitados;
  } else {
    lectura_ = std::min(lectura_, cambio.pos);
  }
}

void Encuadre::Recargado() {
  reparto_.reset();
  lectura_ = 0;
  x_ = 0;
  encajado_ = false;
}

// The bytes are the same; what they look like is not.
void Encuadre::Recodificado() {
  reparto_.reset();
  encajado_ = false;
}

Renglones& Encuadre::Reparto() const {
  if (reparto_) return *reparto_;
  const Bytes& texto = documento_.Texto();
  const Lineas& lineas = documento_.LineasDelTexto();
  if (ajustado_) {
    auto filas = std::make_unique<Filas>(texto, lineas);
    filas->Configurar(Tabla().Anchos(), AnchoUtil());
    reparto_ = std::move(filas);
  } else {
    auto filas = std::make_unique<RenglonesLineas>(texto, lineas);
    filas->Configurar(Tabla().Anchos());
    reparto_ = std::move(filas);
  }
  return *reparto_;
}

bool Encuadre::Avanzar(int milisegundos) {
  const bool completo = Reparto().Avanzar(milisegundos);
  if (completo) PonerX(x_);
  return completo;
}

int Encuadre::FilasVisibles() const {
  return std::max(1, (tamano_.height() - Margen) / Tabla().AltoFila());
}

std::int64_t Encuadre::FilaMaxima() const {
  return std::max<std::int64_t>(0, Reparto().Total() - FilasVisibles());
}

// The last row is never shown higher than at the bottom edge.
void Encuadre::Encajar() const {
  const Renglones& filas = Reparto();
  lectura_ = std::clamp<Posicion>(lectura_, 0, documento_.Tamano());
  encajado_ = filas.Cerca(lectura_);
  arriba_ = encajado_ ? filas.InicioDe(lectura_) : lectura_;
  if (!encajado_) return;
  int debajo = FilasVisibles() - 1;
  for (Posicion fila = arriba_; debajo > 0; --debajo) {
    fila = filas.Siguiente(fila);
    if (fila < 0) break;
  }
  arriba_ = Andar(arriba_, -debajo);
}

Posicion Encuadre::Arriba() const {
  if (!encajado_) Encajar();
  return arriba_;
}

void Encuadre::PonerArriba(Posicion pos) {
  lectura_ = pos;
  Encajar();
  lectura_ = arriba_;
}

void Encuadre::Desplazar(std::int64_t filas) {
  PonerArriba(Andar(Arriba(), filas));
}

Posicion Encuadre::Andar(Posicion fila, std::int64_t filas) const {
  const Renglones& renglones = Reparto();
  for (; filas != 0; filas += filas > 0 ? -1 : 1) {
    const Posicion otra = filas > 0 ? renglones.Siguiente(fila) : renglones.Anterior(fila);
    if (otra < 0) break;
    fila = otra;
  }
  return fila;
}

std::int64_t Encuadre::MaximoX() const {
  if (ajustado_) return 0;
  const std::int64_t contenido =
      (Reparto().AnchoMaximo() + Pixel - 1) / Pixel + Punto{2} * Margen + AnchoCursor;
  return std::max<std::int64_t>(0, contenido - tamano_.width());
}

void Encuadre::PonerX(std::int64_t x) {
  x_ = std::max<std::int64_t>(0, x);
  if (x_ > 0 && (ajustado_ || Reparto().Completo())) x_ = std::min(x_, MaximoX());
}

void Encuadre::Mostrar(const Lugar& lugar) {
  const Posicion fila = FilaDe(lugar);
  if (fila < Arriba()) {
    PonerArriba(fila);
  } else if (fila > Andar(Arriba(), FilasVisibles() - 1)) {
    PonerArriba(Andar(fila, 1 - FilasVisibles()));
  }
  if (ajustado_) return;
  const std::int64_t x = Margen + XDe(lugar) / Pixel;
  if (x - Margen < x_) {
    PonerX(x - Margen);
  } else if (x + Margen + AnchoCursor > x_ + tamano_.width()) {
    PonerX(x + Margen + AnchoCursor - tamano_.width());
  }
}

Posicion Encuadre::FilaDe(const Lugar& lugar) const {
  const Renglones& filas = Reparto();
  if (lugar.al_final && lugar.pos > 0) {
    const Posicion fila = filas.InicioDe(lugar.pos - 1);
    if (filas.FinDe(fila) == lugar.pos) return fila;
  }
  return filas.InicioDe(lugar.pos);
}

QRect Encuadre::Rectangulo(const Lugar& lugar) const {
  const Posicion fila = FilaDe(lugar);
  const Posicion arriba = Arriba();
  std::int64_t x = Margen + XEnFila(fila, lugar.pos) / Pixel - x_;
  // Blanks may hang over the edge of a wrapped row: the caret stays in sight.
  if (ajustado_) x = std::min<std::int64_t>(x, tamano_.width() - AnchoCursor);
  x = std::clamp<std::int64_t>(x, -(1 << 20), 1 << 20);
  int numero = 0;
  const int ultima = tamano_.height() / Tabla().AltoFila() + 1;
  if (fila < arriba) numero = -1;
  for (Posicion otra = arriba; numero >= 0 && numero < ultima && otra != fila; ++numero) {
    otra = Andar(otra, 1);
  }
  return {static_cast<int>(x), Margen + numero * Tabla().AltoFila(), AnchoCursor,
          Tabla().AltoFila()};
}

Lugar Encuadre::EnPunto(const QPoint& punto) const {
  const int numero = qFloor(qreal(punto.y() - Margen) / Tabla().AltoFila());
  const Posicion fila = Andar(Arriba(), std::max(0, numero));
  return EnFila(fila, std::max<Punto>(0, (punto.x() - Margen + x_) * Pixel));
}

const Maqueta* Encuadre::MaquetaDe(Posicion fila) const {
  if (!Tabla().Signos()) return nullptr;
  const Posicion fin = Reparto().FinDe(fila);
  if (fin - fila > MayorMaqueta) return nullptr;
  std::string bytes(static_cast<std::size_t>(fin - fila), '\0');
  documento_.Texto().Copiar(fila, fin, bytes.data());
  return Utf8::EsAscii(bytes) ? nullptr : &Tabla().Maquetada(bytes);
}

Punto Encuadre::XEnFila(Posicion fila, Posicion pos) const {
  const Maqueta* maqueta = MaquetaDe(fila);
  return maqueta ? maqueta->XDe(static_cast<std::size_t>(std::max<Posicion>(pos - fila, 0)))
                 : Reparto().XDe(fila, pos);
}

Lugar Encuadre::EnFila(Posicion fila, Punto x) const {
  const Lugar fin = FinDeFila(fila);
  if (const Maqueta* maqueta = MaquetaDe(fila)) {
    const Posicion pos = fila + static_cast<Posicion>(maqueta->LugarEnX(x));
    return pos == fin.pos ? fin : Lugar{pos, false};
  }
  const Lugar cerca{Reparto().PosicionEnX(fila, x), false};
  // The rows never answer the end of a row broken by the width; for a caret it is a place too.
  if (!fin.al_final || PasoDerecha(documento_, cerca.pos) != fin.pos) return cerca;
  const Punto izquierda = Reparto().XDe(fila, cerca.pos);
  const Punto derecha = Reparto().XDe(fila, fin.pos);
  return x - izquierda > derecha - x ? fin : cerca;
}

Lugar Encuadre::FinDeFila(Posicion fila) const {
  const Posicion fin = Reparto().FinDe(fila);
  return {fin, fin == Reparto().Siguiente(fila)};
}
