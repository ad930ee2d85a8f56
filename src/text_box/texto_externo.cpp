#include "text_box/texto_externo.h"

#include <algorithm>

#include <QUrl>

#include "shared/pagina_codigos.h"

namespace {

const QString TextoLlano = QStringLiteral("text/plain");

bool EsFin(char byte) {
  return byte == '\r' || byte == '\n';
}

// `bytes` with each line end as `fin`.
QByteArray ConFinales(const QByteArray& bytes, QByteArrayView fin) {
  QByteArray salida;
  salida.reserve(bytes.size());
  const char* desde = bytes.constBegin();
  const char* const tope = bytes.constEnd();
  for (;;) {
    const char* hasta = std::find_if(desde, tope, EsFin);
    salida.append(desde, hasta - desde);
    if (hasta == tope) return salida;
    salida.append(fin);
    const bool par = hasta[0] == '\r' && hasta + 1 != tope && hasta[1] == '\n';
    desde = hasta + (par ? 2 : 1);
  }
}

QByteArrayView Vista(std::string_view bytes) {
  return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

// Letter and accent apart become one character; what lies below is so already.
QString Compuesto(const QString& texto) {
  constexpr char16_t primer_acento = 0x300;
  const bool entero =
      std::ranges::all_of(texto, [](QChar caracter) { return caracter.unicode() < primer_acento; });
  return entero ? texto : texto.normalized(QString::NormalizationForm_C);
}

}  // namespace

QByteArray DeFuera(const QString& texto, std::string_view fin_de_linea) {
  QString entero = Compuesto(texto);
  entero.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  entero.replace(QChar::LineSeparator, QLatin1Char('\n'));
  return ConFinales(PaginaCodigos::ABytes(entero), Vista(fin_de_linea));
}

QByteArray DeFuera(const QMimeData& datos, std::string_view fin_de_linea) {
  const auto* propios = qobject_cast<const DatosTexto*>(&datos);
  return propios ? ConFinales(propios->Crudo(), Vista(fin_de_linea))
                 : DeFuera(datos.text(), fin_de_linea);
}

QString ParaFuera(const QByteArray& bytes) {
  if (!bytes.contains('\r')) return PaginaCodigos::ATexto(bytes);
  return PaginaCodigos::ATexto(ConFinales(bytes, "\n"));
}

QStringList DatosPendientes::formats() const {
  return {TextoLlano};
}

QVariant DatosPendientes::retrieveData(const QString& formato, QMetaType /*tipo*/) const {
  return formato == TextoLlano ? QVariant(ParaFuera(bytes_())) : QVariant();
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
