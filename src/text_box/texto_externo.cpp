#include "text_box/texto_externo.h"

#include <algorithm>

#include <QUrl>

#include "shared/pagina_codigos.h"

namespace {

const QString TextoLlano = QStringLiteral("text/plain");

// Every line end of `texto` becomes `fin`. In place of a regular expression: texts are long.
template <typename Texto>
Texto ConFinales(const Texto& texto, const Texto& fin) {
  Texto salida;
  salida.reserve(texto.size());
  for (qsizetype i = 0; i < texto.size(); ++i) {
    const auto caracter = texto[i];
    if (caracter == '\r' && i + 1 < texto.size() && texto[i + 1] == '\n') ++i;
    if (caracter == '\r' || caracter == '\n')
      salida += fin;
    else
      salida += caracter;
  }
  return salida;
}

}  // namespace

QByteArray DeFuera(const QString& texto, std::string_view fin_de_linea) {
  QString entero = texto.normalized(QString::NormalizationForm_C);
  entero.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  entero.replace(QChar::LineSeparator, QLatin1Char('\n'));
  const QByteArray bytes = PaginaCodigos::ABytes(entero);
  return ConFinales(bytes, QByteArray(fin_de_linea.data(), qsizetype(fin_de_linea.size())));
}

QString ParaFuera(const QByteArray& bytes) {
  if (!bytes.contains('\r')) return PaginaCodigos::ATexto(bytes);
  return PaginaCodigos::ATexto(ConFinales(bytes, QByteArray("\n")));
}

QStringList DatosTexto::formats() const {
  return {TextoLlano};
}

QVariant DatosTexto::retrieveData(const QString& formato, QMetaType /*tipo*/) const {
  return formato == TextoLlano ? QVariant(ParaFuera(bytes_)) : QVariant();
}

bool TraeTexto(const QMimeData* datos) {
  if (!datos || !datos->hasFormat(TextoLlano)) return false;
  return std::ranges::none_of(datos->urls(), [](const QUrl& url) { return url.isLocalFile(); });
}
