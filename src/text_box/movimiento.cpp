#include "text_box/movimiento.h"

#include <QChar>

#include "text_box/grafemas.h"

namespace {

enum class Clase { Blanco, Letra, Signo, FinDeLinea, Sigue };

Clase ClaseDe(char32_t codigo) {
  if (codigo == '\n' || codigo == '\r') return Clase::FinDeLinea;
  if (QChar::isMark(codigo) || codigo == 0x200c || codigo == 0x200d) return Clase::Sigue;
  if (QChar::isSpace(codigo)) return Clase::Blanco;
  return QChar::isLetterOrNumber(codigo) || codigo == '_' ? Clase::Letra : Clase::Signo;
}

// Walks over the characters of a text with their classes. What clings to a character is of its
// class, or a letter where it clings to none.
class Paseante {
 public:
  explicit Paseante(const Documento& documento)
      : texto_(documento.Texto()), codificacion_(documento.CodificacionDelTexto()) {}

  Clase En(Posicion pos) const {
    const Clase clase = ClaseDe(codificacion_.En(texto_, pos).codigo);
    if (clase != Clase::Sigue) return clase;
    const Clase antes = Antes(pos);
    return antes == Clase::FinDeLinea ? Clase::Letra : antes;
  }
  // Of what ends at `pos` > 0; no letter of a thousand marks is looked through.
  Clase Antes(Posicion pos) const {
    for (int n = 0; n < 1000 && pos > 0; ++n) {
      pos = codificacion_.Inicio(texto_, pos - 1);
      const Clase clase = ClaseDe(codificacion_.En(texto_, pos).codigo);
      if (clase == Clase::FinDeLinea && n > 0) break;
      if (clase != Clase::Sigue) return clase;
    }
    return Clase::Letra;
  }
  Posicion FinDe(Posicion pos, Clase clase) const {
    while (pos < texto_.Total()) {
      const Utf8::Caracter caracter = codificacion_.En(texto_, pos);
      const Clase esta = ClaseDe(caracter.codigo);
      if (esta != clase && esta != Clase::Sigue) break;
      pos += caracter.largo;
    }
    return pos;
  }
  Posicion InicioDe(Posicion pos, Clase clase) const {
    Posicion inicio = pos;
    while (pos > 0) {
      pos = codificacion_.Inicio(texto_, pos - 1);
      const Clase esta = ClaseDe(codificacion_.En(texto_, pos).codigo);
      if (esta == Clase::Sigue) continue;  // its letter has to be of this class
      if (esta != clase) {
        // Marks that begin a line cling to nothing.
        return esta == Clase::FinDeLinea && clase == Clase::Letra ? pos + 1 : inicio;
      }
      inicio = pos;
    }
    return clase == Clase::Letra ? 0 : inicio;
  }

 private:
  LectorTexto texto_;
  const Codificacion& codificacion_;
};

bool EntreCRyLF(const Bytes& texto, Posicion pos) {
  return pos > 0 && pos < texto.Tamano() && texto.En(pos) == '\n' && texto.En(pos - 1) == '\r';
}

}  // namespace

Posicion PasoDerecha(const Documento& documento, Posicion pos) {
  if (pos >= documento.Tamano()) return documento.Tamano();
  if (EntreCRyLF(documento.Texto(), pos + 1)) return pos + 2;
  return FinDeGrafema(documento, pos);
}

Posicion PasoIzquierda(const Documento& documento, Posicion pos) {
  if (pos <= 0) return 0;
  if (EntreCRyLF(documento.Texto(), pos - 1)) return pos - 2;
  return InicioDeGrafema(documento, pos);
}

Posicion RetrocesoIzquierda(const Documento& documento, Posicion pos) {
  if (pos <= 0) return 0;
  if (EntreCRyLF(documento.Texto(), pos - 1)) return pos - 2;
  return documento.CodificacionDelTexto().Inicio(LectorTexto(documento.Texto()), pos - 1);
}

Posicion FueraDeCaracter(const Documento& documento, Posicion pos) {
  if (EntreCRyLF(documento.Texto(), pos)) return pos + 1;
  return documento.CodificacionDelTexto().Inicio(LectorTexto(documento.Texto()), pos);
}

Posicion PalabraDerecha(const Documento& documento, Posicion pos) {
  if (pos >= documento.Tamano()) return documento.Tamano();
  const Paseante paseante(documento);
  const Clase clase = paseante.En(pos);
  if (clase == Clase::FinDeLinea) return PasoDerecha(documento, pos);
  return paseante.FinDe(paseante.FinDe(pos, clase), Clase::Blanco);
}

Posicion PalabraIzquierda(const Documento& documento, Posicion pos) {
  if (pos <= 0) return 0;
  const Paseante paseante(documento);
  if (paseante.Antes(pos) == Clase::FinDeLinea) return PasoIzquierda(documento, pos);
  pos = paseante.InicioDe(pos, Clase::Blanco);
  if (pos == 0 || paseante.Antes(pos) == Clase::FinDeLinea) return pos;
  return paseante.InicioDe(pos, paseante.Antes(pos));
}

Rango PalabraEn(const Documento& documento, Posicion pos) {
  const Paseante paseante(documento);
  // At the end of a line the word before the click is meant.
  const bool al_final = pos >= documento.Tamano() || paseante.En(pos) == Clase::FinDeLinea;
  if (al_final && (pos == 0 || paseante.Antes(pos) == Clase::FinDeLinea)) return {pos, pos};
  const Clase clase = al_final ? paseante.Antes(pos) : paseante.En(pos);
  return {paseante.InicioDe(pos, clase), paseante.FinDe(pos, clase)};
}
