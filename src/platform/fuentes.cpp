#include "platform/fuentes.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHash>
#include <QScreen>

namespace {

constexpr qreal PuntosPorPulgada = 96.0;

QString FamiliaQueSeDibuja(const QString& nombre) {
  static const QHash<QString, QString> sustitutas{
      {QStringLiteral("courier"), QStringLiteral("Liberation Mono")},
      {QStringLiteral("ms sans serif"), QStringLiteral("Liberation Sans")},
      {QStringLiteral("small fonts"), QStringLiteral("Liberation Sans")}};
  return sustitutas.value(nombre.toLower(), nombre);
}

}  // namespace

QFont FuenteDe(const QString& nombre, qreal puntos) {
  QFont fuente(FamiliaQueSeDibuja(nombre));
  const QScreen* pantalla = QGuiApplication::primaryScreen();
  const qreal densidad = pantalla != nullptr ? pantalla->logicalDotsPerInchY() : PuntosPorPulgada;
  fuente.setPointSizeF(puntos * PuntosPorPulgada / densidad);
  return fuente;
}

QFont FuenteDe(const FuenteTexto& texto) {
  QFont fuente = FuenteDe(texto.nombre, texto.puntos);
  fuente.setBold(texto.negrita);
  fuente.setItalic(texto.cursiva);
  fuente.setUnderline(texto.subrayada);
  fuente.setStrikeOut(texto.tachada);
  return fuente;
}

QFont Estrechada(QFont fuente, const QString& texto, int ancho) {
  fuente.setStretch(QFont::Unstretched);
  const int natural = QFontMetrics(fuente).horizontalAdvance(texto);
  if (natural > ancho) fuente.setStretch(QFont::Unstretched * ancho / natural);
  return fuente;
}

void LeerCatalogoFuentes() {
  (void)QFontDatabase::hasFamily(FamiliaQueSeDibuja(FuenteControles));
}
