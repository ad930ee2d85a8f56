#include "text_box/a_la_vista.h"

#include <algorithm>

void ALaVista::Recoger(const Bytes& texto, const Encuadre& encuadre, Posicion inicio) {
  const Posicion fin = encuadre.Reparto().FinDe(inicio);
  izquierda = (encuadre.X() - Encuadre::Margen) * Pixel;
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

std::size_t ALaVista::Indice(Posicion pos) const {
  return static_cast<std::size_t>(std::clamp<Posicion>(pos - primera, 0, std::ssize(bytes)));
}
