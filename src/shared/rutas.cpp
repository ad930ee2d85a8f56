#include "shared/rutas.h"

#include "shared/constantes.h"

namespace {

constexpr char16_t ByteSuelto = 0xDC00;  // plus the byte
constexpr qsizetype MaximoSecuencia = 4;

bool EsByteSuelto(const QString& ruta, qsizetype i) {
  const char16_t caracter = ruta[i].unicode();
  const bool es_mitad = caracter >= ByteSuelto + 0x80 && caracter <= ByteSuelto + 0xFF;
  return es_mitad && (i == 0 || !ruta[i - 1].isHighSurrogate());
}

// Bytes of the one character of UTF-8 that the text begins with; 0 where there is none.
qsizetype LargoSecuencia(QByteArrayView texto) {
  const qsizetype maximo = qMin(texto.size(), MaximoSecuencia);
  for (qsizetype largo = 1; largo <= maximo; ++largo) {
    if (texto.first(largo).isValidUtf8()) return largo;
  }
  return 0;
}

}  // namespace

QString ConBarra(const QString& carpeta) {
  return carpeta.endsWith(SeparadorRuta) ? carpeta : carpeta + SeparadorRuta;
}

QByteArray RutaDelSistema(const QString& ruta) {
  if (ruta.contains(QChar(u'\0'))) return {};
  QByteArray bytes;
  qsizetype hecho = 0;
  for (qsizetype i = 0; i < ruta.size(); ++i) {
    if (!EsByteSuelto(ruta, i)) continue;
    bytes += QStringView(ruta).sliced(hecho, i - hecho).toUtf8();
    bytes += static_cast<char>(ruta[i].unicode() - ByteSuelto);
    hecho = i + 1;
  }
  return bytes + QStringView(ruta).sliced(hecho).toUtf8();
}

QString RutaComoTexto(QByteArrayView ruta) {
  if (ruta.isValidUtf8()) return QString::fromUtf8(ruta);
  QString texto;
  while (!ruta.empty()) {
    const qsizetype largo = LargoSecuencia(ruta);
    if (largo > 0) {
      texto += QString::fromUtf8(ruta.first(largo));
    } else {
      texto += QChar(static_cast<char16_t>(ByteSuelto + static_cast<unsigned char>(ruta.front())));
    }
    ruta = ruta.sliced(qMax<qsizetype>(largo, 1));
  }
  return texto;
}
