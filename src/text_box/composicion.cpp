#include "text_box/composicion.h"

void Composicion::Poner(const QInputMethodEvent& evento, const QFont& fuente) {
  const QString& texto = evento.preeditString();
  maqueta_.reset();
  ++numero_;
  if (texto.isEmpty()) return;
  cursor_ = static_cast<int>(texto.size());
  QList<QTextLayout::FormatRange> formatos;
  for (const QInputMethodEvent::Attribute& atributo : evento.attributes()) {
    if (atributo.type == QInputMethodEvent::Cursor) {
      cursor_ = atributo.length > 0 ? atributo.start : -1;
    } else if (atributo.type == QInputMethodEvent::TextFormat) {
      formatos.append({atributo.start, atributo.length,
                       qvariant_cast<QTextFormat>(atributo.value).toCharFormat()});
    }
  }
  if (formatos.isEmpty()) {
    QTextCharFormat subrayado;
    subrayado.setFontUnderline(true);
    formatos.append({0, static_cast<int>(texto.size()), subrayado});
  }
  maqueta_ = std::make_unique<QTextLayout>(texto, fuente);
  maqueta_->setFormats(formatos);
  maqueta_->beginLayout();
  maqueta_->createLine().setLeadingIncluded(true);
  maqueta_->endLayout();
}

qreal Composicion::Ancho() const {
  return maqueta_->lineAt(0).naturalTextWidth();
}

void Composicion::Pintar(QPainter& pintor, const QPointF& sitio) const {
  maqueta_->draw(&pintor, sitio);
}

std::optional<qreal> Composicion::XCursor() const {
  if (cursor_ < 0) return std::nullopt;
  return maqueta_->lineAt(0).cursorToX(cursor_);
}
