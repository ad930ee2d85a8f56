#include "shared/ruta_guardada.h"

#include <algorithm>

#include <QStringBuilder>

#include "shared/pagina_codigos.h"
#include "shared/rutas.h"

namespace {

constexpr QStringView Principio = u"/dev/null/";
constexpr QStringView Fin = u"??";  // stands nowhere else in it
constexpr char Signo = '?';
constexpr qsizetype Cifras = 2;

bool EsFinDeLinea(QChar caracter) {
  return caracter == u'\n' || caracter == u'\r';
}

bool PareceCifrada(const QString& texto) {
  return texto.startsWith(Principio) && texto.endsWith(Fin);
}

bool CabeComoEs(const QString& ruta) {
  return PaginaCodigos::Representable(ruta) && !PareceCifrada(ruta) &&
         std::none_of(ruta.begin(), ruta.end(), EsFinDeLinea);
}

}  // namespace

QString RutaAGuardar(const QString& ruta) {
  if (CabeComoEs(ruta)) return ruta;
  QByteArray bytes;
  for (const char byte : RutaDelSistema(ruta)) {
    bytes += byte;
    if (byte != Signo && !EsFinDeLinea(QLatin1Char(byte))) continue;
    bytes.back() = Signo;
    bytes += QByteArray(1, byte).toHex();
  }
  return Principio % PaginaCodigos::ATexto(bytes) % Fin;
}

QString RutaGuardada(const QString& valor) {
  if (!PareceCifrada(valor)) return valor;
  const QByteArray cifrada =
      PaginaCodigos::ABytes(QStringView(valor).sliced(Principio.size()).chopped(Fin.size()));
  QByteArray bytes;
  for (qsizetype i = 0; i < cifrada.size(); ++i) {
    if (cifrada[i] != Signo) {
      bytes += cifrada[i];
      continue;
    }
    const QByteArray cifras = cifrada.mid(i + 1, Cifras);
    const QByteArray byte = QByteArray::fromHex(cifras);
    if (byte.toHex() != cifras || byte.isEmpty()) return valor;
    bytes += byte;
    i += Cifras;
  }
  return RutaComoTexto(bytes);
}
