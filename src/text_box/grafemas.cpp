#include "text_box/grafemas.h"

#include <algorithm>
#include <vector>

#include <QString>
#include <QTextBoundaryFinder>

namespace {

constexpr int Pocos = 64;  // characters; enough but for made-up ones
constexpr int Muchos = 4096;
constexpr char32_t PrimerAcento = 0x300;  // below this nothing clings to anything

bool EsFin(char32_t codigo) {
  return codigo == '\n' || codigo == '\r';
}

// Characters of a text for the toolkit's boundary finder, with their positions.
class Ventana {
 public:
  Ventana(const Documento& documento, Posicion pos) : documento_(documento), pos_(pos) {}

  // Reads on up to `hasta`, a line end or `n` characters in all; false where that was the end.
  bool Leer(Posicion hasta, int n) {
    const LectorTexto texto(documento_.Texto());
    for (; leidos_ < n && pos_ < hasta; ++leidos_) {
      const Utf8::Caracter caracter = documento_.CodificacionDelTexto().En(texto, pos_);
      if (EsFin(caracter.codigo) && leidos_ > 0) return false;
      // A byte of no sequence stands alone, as a control character does.
      const char32_t codigo = Utf8::EsSuelto(caracter.codigo) ? 0x80 : caracter.codigo;
      lugares_.push_back(pos_);
      if (QChar::requiresSurrogates(codigo)) {
        texto_ += QChar(QChar::highSurrogate(codigo));
        texto_ += QChar(QChar::lowSurrogate(codigo));
        lugares_.push_back(pos_);
      } else {
        texto_ += QChar(static_cast<char16_t>(codigo));
      }
      pos_ += caracter.largo;
    }
    return pos_ < hasta;
  }

  QTextBoundaryFinder Limites() const { return {QTextBoundaryFinder::Grapheme, texto_}; }
  qsizetype Tamano() const { return texto_.size(); }
  Posicion Lugar(qsizetype i) const {
    return i < std::ssize(lugares_) ? lugares_[static_cast<std::size_t>(i)] : pos_;
  }

 private:
  const Documento& documento_;
  Posicion pos_;  // what comes next
  int leidos_ = 0;
  QString texto_;
  std::vector<Posicion> lugares_;  // of each unit of the string
};

bool Solo(char32_t uno, char32_t otro) {
  return uno < PrimerAcento && otro < PrimerAcento;
}

}  // namespace

Posicion FinDeGrafema(const Documento& documento, Posicion pos) {
  const LectorTexto texto(documento.Texto());
  const Codificacion& codificacion = documento.CodificacionDelTexto();
  const Utf8::Caracter primero = codificacion.En(texto, pos);
  const Posicion siguiente = pos + primero.largo;
  if (siguiente >= texto.Total()) return texto.Total();
  if (Solo(primero.codigo, codificacion.En(texto, siguiente).codigo)) return siguiente;
  Ventana ventana(documento, pos);
  for (int n = Pocos;; n = Muchos) {
    const bool sigue = ventana.Leer(texto.Total(), n);
    QTextBoundaryFinder limites = ventana.Limites();
    const qsizetype fin = limites.toNextBoundary();
    if (fin < ventana.Tamano() || !sigue || n == Muchos) return ventana.Lugar(fin);
  }
}

// From a place before, where one surely begins: right before ASCII, or in front of a line.
Posicion InicioDeGrafema(const Documento& documento, Posicion pos) {
  const LectorTexto texto(documento.Texto());
  const Codificacion& codificacion = documento.CodificacionDelTexto();
  Posicion inicio = codificacion.Inicio(texto, pos - 1);
  const char32_t ultimo = codificacion.En(texto, inicio).codigo;
  const Posicion tope = inicio;
  for (int n = 0; n < Muchos && inicio > 0; ++n) {
    const Posicion anterior = codificacion.Inicio(texto, inicio - 1);
    const char32_t codigo = codificacion.En(texto, anterior).codigo;
    if (n == 0 && Solo(codigo, ultimo)) return tope;
    if (EsFin(codigo)) break;
    inicio = anterior;
    if (codigo < 0x80) break;
  }
  Ventana ventana(documento, inicio);
  ventana.Leer(pos, Muchos + 2);
  QTextBoundaryFinder limites = ventana.Limites();
  limites.toEnd();
  return ventana.Lugar(std::max<qsizetype>(limites.toPreviousBoundary(), 0));
}
