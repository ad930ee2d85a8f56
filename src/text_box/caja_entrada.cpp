// Input methods: dead keys, compose, text under composition.
#include <climits>

#include <QInputMethodEvent>

#include "shared/pagina_codigos.h"
#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

namespace {
constexpr Posicion Alrededor = 512;  // bytes told to an input method on each side of the caret
}

void CajaTexto::inputMethodEvent(QInputMethodEvent* evento) {
  evento->accept();
  if (solo_lectura_) return;
  const bool confirma = !evento->commitString().isEmpty() || evento->replacementLength() > 0;
  if (confirma && Avisar(Aviso::Caracter)) Confirmar(*evento);
  composicion_.Poner(*evento, fuente_);
  CursorMovido();
}

void CajaTexto::Confirmar(const QInputMethodEvent& evento) {
  const QByteArray bytes = DeFuera(evento.commitString(), documento_.FinDeLinea());
  if (evento.replacementLength() <= 0) return Escribir(bytes);
  const Posicion tamano = documento_.Tamano();
  const Posicion desde = std::clamp<Posicion>(cursor_.Pos() + evento.replacementStart(), 0, tamano);
  const Posicion hasta = std::clamp<Posicion>(desde + evento.replacementLength(), desde, tamano);
  Cambiar(desde, hasta, bytes, Agrupacion::Escribir);
}

// What surrounds the caret, in characters as in bytes.
QString CajaTexto::TextoEntre(Posicion desde, Posicion hasta) const {
  return PaginaCodigos::ATexto(documento_.Copia(desde, std::max(desde, hasta)));
}

QVariant CajaTexto::inputMethodQuery(Qt::InputMethodQuery pregunta) const {
  switch (pregunta) {
    case Qt::ImEnabled:
      return !solo_lectura_;
    case Qt::ImReadOnly:
      return solo_lectura_;
    case Qt::ImCursorRectangle:
      return RectanguloCursor().translated(viewport()->pos());
    case Qt::ImAnchorRectangle:
      return encuadre_.Cerca({Ancla(), false})
                 ? encuadre_.Rectangulo({Ancla(), false}).translated(viewport()->pos())
                 : QRect();
    case Qt::ImFont:
      return fuente_;
    case Qt::ImHints:
      return static_cast<int>(Qt::ImhMultiLine);
    default:
      return TextoParaMetodo(pregunta);
  }
}

QVariant CajaTexto::TextoParaMetodo(Qt::InputMethodQuery pregunta) const {
  const Posicion desde = std::max<Posicion>(0, cursor_.Pos() - Alrededor);
  const Posicion hasta = std::min<Posicion>(documento_.Tamano(), cursor_.Pos() + Alrededor);
  switch (pregunta) {
    case Qt::ImSurroundingText:
      return TextoEntre(desde, hasta);
    case Qt::ImCursorPosition:
      return static_cast<int>(cursor_.Pos() - desde);
    case Qt::ImAnchorPosition:
      return static_cast<int>(std::clamp(Ancla(), desde, hasta) - desde);
    case Qt::ImAbsolutePosition:
      return static_cast<int>(std::min<Posicion>(cursor_.Pos(), INT_MAX));
    case Qt::ImCurrentSelection:
      return TextoEntre(std::max(Desde(), desde), std::min(Hasta(), hasta));
    case Qt::ImTextBeforeCursor:
      return TextoEntre(desde, cursor_.Pos());
    case Qt::ImTextAfterCursor:
      return TextoEntre(cursor_.Pos(), hasta);
    default:
      return QAbstractScrollArea::inputMethodQuery(pregunta);
  }
}
