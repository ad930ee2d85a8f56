#include "text_box/texto_externo.h"

#include <algorithm>

#include <QUrl>

#include "shared/pagina_codigos.h"
#include "text_box/rastreo.h"

namespace {

const QString TextoLlano = QStringLiteral("text/plain");

bool EsFin(char byte) {
  return byte == '\r' || byte == '\n';
}

// `bytes` with each line end as `fin`.
QByteArray ConFinales(const QByteArray& bytes, QByteArrayView fin) {
  const qsizetype fines = std::count_if(bytes.begin(), bytes.end(), EsFin);
  QByteArray salida(bytes.size() + fines * (fin.size() - 1), Qt::Uninitialized);
  char* donde = salida.data();
  const char* desde = bytes.constBegin();
  const char* const tope = bytes.constEnd();
  while (desde != tope) {
    const char byte = *desde++;
    if (!EsFin(byte)) {
      *donde++ = byte;
      continue;
    }
    if (byte == '\r' && desde != tope && *desde == '\n') ++desde;
    donde = std::copy(fin.begin(), fin.end(), donde);
  }
  salida.truncate(donde - salida.constData());
  return salida;
}

QByteArray Copia(const Pieza& pieza) {
  QByteArray bytes;
  bytes.reserve(pieza.tamano);
  for (const Trozo& trozo : pieza.trozos) {
    bytes.append(trozo.bytes.data(), static_cast<qsizetype>(trozo.bytes.size()));
  }
  return bytes;
}

// Are there as many CR as LF as line ends? Then each is a pair.
bool SoloPares(const Pieza& pieza) {
  std::ptrdiff_t cr = 0;
  std::ptrdiff_t lf = 0;
  std::ptrdiff_t fines = 0;
  for (std::size_t i = 0; i < pieza.trozos.size(); ++i) {
    const std::string_view bytes = pieza.trozos[i].bytes;
    const bool ultimo = i + 1 == pieza.trozos.size();
    cr += std::count(bytes.begin(), bytes.end(), '\r');
    lf += std::count(bytes.begin(), bytes.end(), '\n');
    fines += ContarFines(
        bytes, ultimo ? -1 : static_cast<unsigned char>(pieza.trozos[i + 1].bytes.front()));
  }
  return cr == fines && lf == fines;
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
  return propios ? ConFinales(Copia(propios->LaPieza()), Vista(fin_de_linea))
                 : DeFuera(datos.text(), fin_de_linea);
}

QString ParaFuera(const QByteArray& bytes) {
  if (!bytes.contains('\r')) return PaginaCodigos::ATexto(bytes);
  return PaginaCodigos::ATexto(ConFinales(bytes, "\n"));
}

QStringList DatosTexto::formats() const {
  return {TextoLlano};
}

QVariant DatosTexto::retrieveData(const QString& formato, QMetaType /*tipo*/) const {
  return formato == TextoLlano ? QVariant(ParaFuera(Copia(pieza_))) : QVariant();
}

bool SoloFin(const Pieza& pieza, std::string_view fin) {
  if (fin.size() == 2) return SoloPares(pieza);
  const char otro = fin == "\n" ? '\r' : '\n';
  return std::ranges::none_of(pieza.trozos, [otro](const Trozo& trozo) {
    return trozo.bytes.find(otro) != std::string_view::npos;
  });
}

bool TraeTexto(const QMimeData* datos) {
  if (!datos || !datos->hasFormat(TextoLlano)) return false;
  return std::ranges::none_of(datos->urls(), [](const QUrl& url) { return url.isLocalFile(); });
}
