#include "text_box/movimiento.h"

#include <QChar>

namespace {

enum class Clase { Blanco, Letra, Signo, FinDeLinea };

Clase ClaseEn(const Documento& documento, Posicion pos) {
  const unsigned char byte = documento.Texto().En(pos);
  if (byte == '\n' || byte == '\r') return Clase::FinDeLinea;
  const QChar caracter(documento.CodificacionDelTexto().Caracter(byte));
  if (caracter.isSpace()) return Clase::Blanco;
  return caracter.isLetterOrNumber() || caracter == u'_' ? Clase::Letra : Clase::Signo;
}

bool EntreCRyLF(const Bytes& texto, Posicion pos) {
  return pos > 0 && pos < texto.Tamano() && texto.En(pos) == '\n' && texto.En(pos - 1) == '\r';
}

Posicion FinDeClase(const Documento& documento, Posicion pos, Clase clase) {
  while (pos < documento.Tamano() && ClaseEn(documento, pos) == clase) ++pos;
  return pos;
}

Posicion InicioDeClase(const Documento& documento, Posicion pos, Clase clase) {
  while (pos > 0 && ClaseEn(documento, pos - 1) == clase) --pos;
  return pos;
}

}  // namespace

Posicion PasoDerecha(const Documento& documento, Posicion pos) {
  if (pos >= documento.Tamano()) return documento.Tamano();
  return FueraDeFinDeLinea(documento, pos + 1);
}

Posicion PasoIzquierda(const Documento& documento, Posicion pos) {
  if (pos <= 0) return 0;
  return EntreCRyLF(documento.Texto(), pos - 1) ? pos - 2 : pos - 1;
}

Posicion FueraDeFinDeLinea(const Documento& documento, Posicion pos) {
  return EntreCRyLF(documento.Texto(), pos) ? pos + 1 : pos;
}

Posicion PalabraDerecha(const Documento& documento, Posicion pos) {
  if (pos >= documento.Tamano()) return documento.Tamano();
  const Clase clase = ClaseEn(documento, pos);
  if (clase == Clase::FinDeLinea) return PasoDerecha(documento, pos);
  return FinDeClase(documento, FinDeClase(documento, pos, clase), Clase::Blanco);
}

Posicion PalabraIzquierda(const Documento& documento, Posicion pos) {
  if (pos <= 0) return 0;
  if (ClaseEn(documento, pos - 1) == Clase::FinDeLinea) return PasoIzquierda(documento, pos);
  pos = InicioDeClase(documento, pos, Clase::Blanco);
  if (pos == 0 || ClaseEn(documento, pos - 1) == Clase::FinDeLinea) return pos;
  return InicioDeClase(documento, pos, ClaseEn(documento, pos - 1));
}

Rango PalabraEn(const Documento& documento, Posicion pos) {
  // At the end of a line the word before the click is meant.
  const bool al_final = pos >= documento.Tamano() || ClaseEn(documento, pos) == Clase::FinDeLinea;
  if (al_final && (pos == 0 || ClaseEn(documento, pos - 1) == Clase::FinDeLinea)) return {pos, pos};
  const Clase clase = ClaseEn(documento, al_final ? pos - 1 : pos);
  return {InicioDeClase(documento, pos, clase), FinDeClase(documento, pos, clase)};
}
