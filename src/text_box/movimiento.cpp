#include "text_box/movimiento.h"

#include <QChar>

#include "shared/pagina_codigos.h"

namespace {

enum class Clase { Blanco, Letra, Signo, FinDeLinea };

Clase ClaseDe(unsigned char byte) {
  if (byte == '\n' || byte == '\r') return Clase::FinDeLinea;
  const QChar caracter(PaginaCodigos::ATexto(byte));
  if (caracter.isSpace()) return Clase::Blanco;
  return caracter.isLetterOrNumber() || byte == '_' ? Clase::Letra : Clase::Signo;
}

Clase ClaseEn(const Bytes& texto, Posicion pos) {
  return ClaseDe(texto.En(pos));
}

bool EntreCRyLF(const Bytes& texto, Posicion pos) {
  return pos > 0 && pos < texto.Tamano() && texto.En(pos) == '\n' && texto.En(pos - 1) == '\r';
}

Posicion FinDeClase(const Bytes& texto, Posicion pos, Clase clase) {
  while (pos < texto.Tamano() && ClaseEn(texto, pos) == clase) ++pos;
  return pos;
}

Posicion InicioDeClase(const Bytes& texto, Posicion pos, Clase clase) {
  while (pos > 0 && ClaseEn(texto, pos - 1) == clase) --pos;
  return pos;
}

}  // namespace

Posicion PasoDerecha(const Bytes& texto, Posicion pos) {
  if (pos >= texto.Tamano()) return texto.Tamano();
  return FueraDeFinDeLinea(texto, pos + 1);
}

Posicion PasoIzquierda(const Bytes& texto, Posicion pos) {
  if (pos <= 0) return 0;
  return EntreCRyLF(texto, pos - 1) ? pos - 2 : pos - 1;
}

Posicion FueraDeFinDeLinea(const Bytes& texto, Posicion pos) {
  return EntreCRyLF(texto, pos) ? pos + 1 : pos;
}

Posicion PalabraDerecha(const Bytes& texto, Posicion pos) {
  if (pos >= texto.Tamano()) return texto.Tamano();
  const Clase clase = ClaseEn(texto, pos);
  if (clase == Clase::FinDeLinea) return PasoDerecha(texto, pos);
  return FinDeClase(texto, FinDeClase(texto, pos, clase), Clase::Blanco);
}

Posicion PalabraIzquierda(const Bytes& texto, Posicion pos) {
  if (pos <= 0) return 0;
  if (ClaseEn(texto, pos - 1) == Clase::FinDeLinea) return PasoIzquierda(texto, pos);
  pos = InicioDeClase(texto, pos, Clase::Blanco);
  if (pos == 0 || ClaseEn(texto, pos - 1) == Clase::FinDeLinea) return pos;
  return InicioDeClase(texto, pos, ClaseEn(texto, pos - 1));
}

Tramo PalabraEn(const Bytes& texto, Posicion pos) {
  // At the end of a line the word before the click is meant.
  const bool al_final = pos >= texto.Tamano() || ClaseEn(texto, pos) == Clase::FinDeLinea;
  if (al_final && (pos == 0 || ClaseEn(texto, pos - 1) == Clase::FinDeLinea)) return {pos, pos};
  const Clase clase = ClaseEn(texto, al_final ? pos - 1 : pos);
  return {InicioDeClase(texto, pos, clase), FinDeClase(texto, pos, clase)};
}
