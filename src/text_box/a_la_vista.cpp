#include "text_box/a_la_vista.h"

#include <algorithm>

void ALaVista::Recoger(const Bytes& texto, const Encuadre& encuadre, Posicion inicio) {
  const Posicion fin = encuadre.Reparto().FinDe(inicio);
  izquierda = (encuadre.X() - Encuadre::Margen) * Pixel;
  con_signos = RecogerSignos(texto, encuadre, inicio, fin);
  if (con_signos) return;
  const auto corte = encuadre.Reparto().CorteEnX(
      inicio, std::max<Punto>(0, izquierda - encuadre.Tabla().AnchoMayor()));
  const Punto derecha = izquierda + (encuadre.Tamano().width() + Encuadre::Margen) * Pixel;
  // Every byte is at least a pixel wide.
  const Posicion cuantos =
      std::clamp<Posicion>((derecha - corte.x) / Pixel + 1, 0, fin - corte.pos);
  primera = corte.pos;
  bytes.resize(static_cast<std::size_t>(cuantos));
  texto.Copiar(corte.pos, corte.pos + cuantos, bytes.data());
  x.assign(1, corte.x - izquierda);
  const Avances& avances = encuadre.Tabla().Anchos();
  Punto pluma = corte.x;
  for (const char caracter : bytes) {
    if (pluma > derecha) break;
    const auto byte = static_cast<unsigned char>(caracter);
    pluma = byte == '\t' ? (pluma / avances.tabulador + 1) * avances.tabulador
                         : pluma + avances.ancho[byte];
    x.push_back(pluma - izquierda);
  }
  bytes.resize(x.size() - 1);
}

// False where the row, or what is in sight of it, is ASCII.
bool ALaVista::RecogerSignos(const Bytes& texto, const Encuadre& encuadre, Posicion inicio,
                             Posicion fin) {
  if (!encuadre.Tabla().Signos()) return false;
  Renglones::Corte desde{inicio, 0};
  Posicion hasta = fin;
  if (fin - inicio > Encuadre::MayorMaqueta) {
    const Punto margen = Pixel * 4 * encuadre.Tabla().AltoFila();  // what reaches into sight
    const Punto derecha = izquierda + encuadre.Tamano().width() * Pixel;
    const Renglones& reparto = encuadre.Reparto();
    desde = reparto.CorteEnX(inicio, std::max<Punto>(0, izquierda - margen));
    hasta = std::max(desde.pos, reparto.CorteEnX(inicio, derecha + margen).pos);
  }
  primera = desde.pos;
  bytes.resize(static_cast<std::size_t>(hasta - desde.pos));
  texto.Copiar(desde.pos, hasta, bytes.data());
  x.assign(1, desde.x - izquierda);
  return !Utf8::EsAscii({bytes.data(), bytes.size()});
}

std::size_t ALaVista::Indice(Posicion pos) const {
  return static_cast<std::size_t>(std::clamp<Posicion>(pos - primera, 0, std::ssize(bytes)));
}
