// Input methods: dead keys, compose, text under composition.
#include <QInputMethodEvent>

#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

namespace {
constexpr Posicion Alrededor = 512;  // bytes told to an input method on each side of the caret
}

void CajaTexto::inputMethodEvent(QInputMethodEvent* evento) {
  evento->accept();
  if (SoloLectura()) return;
  const bool confirma = !evento->commitString().isEmpty() || evento->replacementLength() > 0;
  if (confirma && Avisar(Aviso::Caracter)) Confirmar(*evento);
  composicion_.Poner(*evento, fuente_);
  CursorMovido();
}

void CajaTexto::Confirmar(const QInputMethodEvent& evento) {
  const QByteArray bytes = DeFuera(evento.commitString(), documento_);
  if (evento.replacementLength() <= 0) return Escribir(bytes);
  const Posicion desde = TrasUnidades(documento_, Cursor(), evento.replacementStart());
  const Posicion hasta = TrasUnidades(documento_, desde, evento.replacementLength());
  edicion_.Escribir({desde, hasta}, bytes);
}

QVariant CajaTexto::inputMethodQuery(Qt::InputMethodQuery pregunta) const {
  switch (pregunta) {
    case Qt::ImEnabled:
      return !SoloLectura();
    case Qt::ImReadOnly:
      return SoloLectura();
    case Qt::ImCursorRectangle:
      return RectanguloCursor().translated(viewport()->pos());
    case Qt::ImAnchorRectangle:
      return SeSitua() && encuadre_.Cerca({Ancla(), false})
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

// What surrounds the caret.
QVariant CajaTexto::TextoParaMetodo(Qt::InputMethodQuery pregunta) const {
  const Posicion desde = FueraDeCaracter(documento_, std::max<Posicion>(0, Cursor() - Alrededor));
  const Posicion hasta =
      FueraDeCaracter(documento_, std::min<Posicion>(documento_.Tamano(), Cursor() + Alrededor));
  const Posicion ancla = std::clamp(Ancla(), desde, hasta);
  switch (pregunta) {
    case Qt::ImSurroundingText:
      return TextoEntre(documento_, desde, hasta);
    case Qt::ImCursorPosition:
      return static_cast<int>(TextoEntre(documento_, desde, Cursor()).size());
    case Qt::ImAnchorPosition:
      return static_cast<int>(TextoEntre(documento_, desde, ancla).size());
    case Qt::ImAbsolutePosition:
      return CaracteresHasta(documento_, Cursor());
    case Qt::ImCurrentSelection:
      return TextoEntre(documento_, std::min(ancla, Cursor()), std::max(ancla, Cursor()));
    case Qt::ImTextBeforeCursor:
      return TextoEntre(documento_, desde, Cursor());
    case Qt::ImTextAfterCursor:
      return TextoEntre(documento_, Cursor(), hasta);
    default:
      return QAbstractScrollArea::inputMethodQuery(pregunta);
  }
}
