#include "text_box/texto_externo.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QUrl>

#include "text_box/rastreo.h"

namespace {

constexpr std::size_t Bocado = std::size_t{16} << 20;  // bytes: some milliseconds
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

QByteArray Copia(const Extracto& extracto) {
  QByteArray bytes;
  bytes.reserve(extracto.tamano);
  for (const Pieza& pieza : extracto.piezas) {
    bytes.append(pieza.bytes.data(), static_cast<qsizetype>(pieza.bytes.size()));
  }
  return bytes;
}

QByteArrayView Vista(std::string_view bytes) {
  return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

}  // namespace

QByteArray DeFuera(const QString& texto, Documento& documento) {
  QString entero = texto;
  entero.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  entero.replace(QChar::LineSeparator, QLatin1Char('\n'));
  documento.Admitir(entero);
  return ConFinales(documento.CodificacionDelTexto().ABytes(entero), Vista(documento.FinDeLinea()));
}

QByteArray DeFuera(const QMimeData& datos, Documento& documento) {
  const auto* propios = qobject_cast<const DatosTexto*>(&datos);
  if (!propios || &propios->LaCodificacion() != &documento.CodificacionDelTexto()) {
    return DeFuera(datos.text(), documento);
  }
  return ConFinales(Copia(propios->ElExtracto()), Vista(documento.FinDeLinea()));
}

QString TextoEntre(const Documento& documento, Posicion desde, Posicion hasta) {
  return documento.CodificacionDelTexto().ATexto(documento.Copia(desde, std::max(desde, hasta)));
}

int CaracteresHasta(const Documento& documento, Posicion pos) {
  return static_cast<int>(
      std::min<std::int64_t>(documento.CaracteresHasta(pos), std::numeric_limits<int>::max()));
}

Posicion PosicionDeCaracter(const Documento& documento, int caracter) {
  return documento.InicioDeCaracter(std::max(caracter, 0));
}

Posicion TrasUnidades(const Documento& documento, Posicion desde, int unidades) {
  const LectorTexto texto(documento.Texto());
  const Codificacion& codificacion = documento.CodificacionDelTexto();
  const auto unidades_de = [](char32_t codigo) {
    return QChar::requiresSurrogates(codigo) ? 2 : 1;
  };
  for (; unidades > 0 && desde < texto.Total();) {
    const Utf8::Caracter caracter = codificacion.En(texto, desde);
    unidades -= unidades_de(caracter.codigo);
    desde += caracter.largo;
  }
  while (unidades < 0 && desde > 0) {
    desde = codificacion.Inicio(texto, desde - 1);
    unidades += unidades_de(codificacion.En(texto, desde).codigo);
  }
  return desde;
}

QString ParaFuera(const Extracto& extracto, const Codificacion& codificacion) {
  QString texto = codificacion.ATexto(Copia(extracto));
  QChar* donde = texto.data();
  bool tras_retorno = false;
  for (const QChar caracter : std::as_const(texto)) {
    if (!tras_retorno || caracter != u'\n') *donde++ = caracter == u'\r' ? u'\n' : caracter;
    tras_retorno = caracter == u'\r';
  }
  texto.truncate(donde - texto.constData());
  return texto;
}

bool RecuentoFines::Seguir(const Extracto& extracto, std::size_t bytes) {
  while (pieza_ < extracto.piezas.size() && bytes > 0) {
    const std::string_view todo = extracto.piezas[pieza_].bytes;
    const std::string_view tramo = todo.substr(dentro_, bytes);
    dentro_ += tramo.size();
    bytes -= tramo.size();
    std::string_view resto = todo.substr(dentro_);
    if (resto.empty()) {
      dentro_ = 0;
      if (++pieza_ < extracto.piezas.size()) resto = extracto.piezas[pieza_].bytes;
    }
    for (const char byte : tramo) todos_ |= static_cast<unsigned char>(byte);
    cr_ += std::count(tramo.begin(), tramo.end(), '\r');
    lf_ += std::count(tramo.begin(), tramo.end(), '\n');
    fines_ += ContarFines(tramo, resto.empty() ? -1 : static_cast<unsigned char>(resto.front()));
  }
  return pieza_ == extracto.piezas.size();
}

// Where there are as many CR as LF as line ends, each is a pair.
bool RecuentoFines::Solo(std::string_view fin) const {
  if (fin.size() == 2) return cr_ == fines_ && lf_ == fines_;
  return (fin == "\n" ? cr_ : lf_) == 0;
}

DatosTexto::DatosTexto(Extracto extracto, const Codificacion& codificacion)
    : extracto_(std::move(extracto)), codificacion_(codificacion) {
  if (extracto_.tamano > static_cast<Posicion>(Bocado)) reloj_.start(0, this);
}

void DatosTexto::timerEvent(QTimerEvent* /*evento*/) {
  if (recuento_.Seguir(extracto_, Bocado)) reloj_.stop();
}

bool DatosTexto::VaEn(const Documento& documento) const {
  recuento_.Seguir(extracto_, static_cast<std::size_t>(extracto_.tamano));
  const bool misma = &codificacion_ == &documento.CodificacionDelTexto();
  return (misma || recuento_.EsAscii()) && recuento_.Solo(documento.FinDeLinea());
}

QStringList DatosTexto::formats() const {
  return {TextoLlano};
}

// The toolkit goes on to UTF-8 where nothing can be caught: what has no room for that is not begun.
QVariant DatosTexto::retrieveData(const QString& formato, QMetaType /*tipo*/) const {
  constexpr std::size_t por_byte = sizeof(QChar) + 1 + 3;
  if (formato != TextoLlano) return {};
  if (!Almacen::Hacer(static_cast<std::size_t>(extracto_.tamano) * por_byte)) return {};
  return ParaFuera(extracto_, codificacion_);
}

bool TraeTexto(const QMimeData* datos) {
  if (!datos || !datos->hasFormat(TextoLlano)) return false;
  return std::ranges::none_of(datos->urls(), [](const QUrl& url) { return url.isLocalFile(); });
}
