#include "text_box/tabla_glifos.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>
#include <QtEndian>
#include <QtMath>

namespace {

constexpr int BlancosPorTabulador = 8;

constexpr std::size_t MaximoMaquetas = 256;

bool EsControl(char16_t caracter) {
  return caracter < 0x20 || (caracter >= 0x7f && caracter < 0xa0);
}

// How far any glyph of the font reaches above the base line and below it, in pixels: the box around
// all of them that an OpenType font has in its table "head". Nothing where it has none.
std::optional<std::pair<qreal, qreal>> Alcance(const QRawFont& fuente) {
  constexpr qsizetype YMinima = 38;
  constexpr qsizetype YMaxima = 42;
  const QByteArray cabecera = fuente.fontTable("head");
  if (cabecera.size() < YMaxima + 2 || fuente.unitsPerEm() <= 0) return std::nullopt;
  const auto pixeles = [&](qsizetype donde) {
    return qFromBigEndian<qint16>(cabecera.constData() + donde) * fuente.pixelSize() /
           fuente.unitsPerEm();
  };
  return std::pair(pixeles(YMaxima), -pixeles(YMinima));
}

}  // namespace

TablaGlifos::TablaGlifos(const QFont& fuente, const Codificacion& codificacion) {
  QFont llana = fuente;
  llana.setKerning(false);
  fuentes_.push_back(QRawFont::fromFont(llana));
  Medir(fuente);
  QString caracteres(256, u'\0');
  for (int byte = 0; byte < 256; ++byte) {
    caracteres[byte] = codificacion.Caracter(static_cast<unsigned char>(byte));
  }
  const QList<quint32> glifos = fuentes_[0].glyphIndexesForString(caracteres);
  const QList<QPointF> avances = fuentes_[0].advancesForGlyphIndexes(glifos);
  for (int byte = 0; byte < 256; ++byte) {
    if (EsControl(caracteres[byte].unicode()) || (byte >= 0x80 && codificacion.DeVarios())) {
      entradas_[byte].fuente = Marca;
    } else if (glifos.value(byte) == 0) {
      Sustituir(static_cast<unsigned char>(byte), caracteres[byte].unicode(), llana);
    } else {
      entradas_[byte].glifo = glifos[byte];
      avances_.ancho[byte] = EnPuntos(avances.value(byte).x());
    }
  }
  const auto blanco = std::max(static_cast<std::int32_t>(Pixel), avances_.ancho[' ']);
  for (int byte = 0; byte < 256; ++byte) {
    if (entradas_[byte].fuente == Marca) avances_.ancho[byte] = blanco;
  }
  avances_.tabulador = BlancosPorTabulador * blanco;
  ancho_mayor_ = std::max(*std::ranges::max_element(avances_.ancho), avances_.tabulador);
  MedirRebase();
  if (!codificacion.DeVarios()) return;
  llana.setLetterSpacing(QFont::PercentageSpacing, 100);  // as wide as ever, but without ligatures
  signos_ = std::make_shared<SignosFuente>(llana, fuentes_[0], avances_);
  avances_.signos = signos_;
}

void TablaGlifos::Medir(const QFont& fuente) {
  QTextLayout maqueta(QStringLiteral("x"), fuente);
  Maquetar(maqueta);
  const QTextLine linea = maqueta.lineAt(0);
  alto_fila_ = std::max(1, qCeil(linea.height()));
  base_ = linea.ascent();  // the leading lies below
  subrayada_ = fuente.underline();
  tachada_ = fuente.strikeOut();
  grosor_raya_ = fuentes_[0].isValid() ? fuentes_[0].lineThickness() : 1;
  const qreal subrayado = fuentes_[0].isValid() ? fuentes_[0].underlinePosition() : 1;
  // The middle of the line, and never below the row.
  subrayado_ = std::min(qCeil(subrayado) + 0.5, alto_fila_ - base_ - grosor_raya_ / 2);
  tachado_ = linea.ascent() / 3;
}

void TablaGlifos::Sustituir(unsigned char byte, char16_t caracter, const QFont& fuente) {
  QTextLayout maqueta(QString(QChar(caracter)), fuente);
  Maquetar(maqueta);
  const QList<QGlyphRun> trazos = maqueta.glyphRuns();
  if (trazos.isEmpty() || trazos[0].glyphIndexes().size() != 1) {
    entradas_[byte].fuente = Marca;
    return;
  }
  const std::uint8_t indice = IndiceFuente(trazos[0].rawFont());
  entradas_[byte] = {trazos[0].glyphIndexes().first(), indice};
  avances_.ancho[byte] = EnPuntos(maqueta.lineAt(0).naturalTextWidth());
}

std::uint8_t TablaGlifos::IndiceFuente(const QRawFont& cruda) {
  auto sitio = std::ranges::find(fuentes_, cruda);
  if (sitio == fuentes_.end()) sitio = fuentes_.insert(fuentes_.end(), cruda);
  return static_cast<std::uint8_t>(sitio - fuentes_.begin());
}

// One pixel more: hinting, and a bold or slanted face that the toolkit makes itself.
void TablaGlifos::MedirRebase() {
  qreal rebase = 0;
  for (const QRawFont& fuente : fuentes_) {
    const auto alcance = Alcance(fuente).value_or(std::pair<qreal, qreal>(alto_fila_, alto_fila_));
    rebase = std::max({rebase, alcance.first - base_, alcance.second + base_ - alto_fila_});
  }
  rebase_ = qCeil(rebase) + 1;
}

const Maqueta& TablaGlifos::Maquetada(const std::string& fila) const {
  const auto hallada = maquetas_.find(fila);
  if (hallada != maquetas_.end()) return *hallada->second;
  if (maquetas_.size() >= MaximoMaquetas) maquetas_.clear();
  return *(maquetas_[fila] = std::make_unique<Maqueta>(*this, fila, 0));
}

// A little above the base line, and free of its neighbours.
QRect TablaGlifos::SitioDeMarca(qreal x, int y, qreal ancho) const {
  const int alto = qRound(base_ / 2);
  const int abajo = y + qRound(base_);
  return {QPoint(qRound(x) + 1, abajo - alto), QPoint(qRound(x + ancho) - 2, abajo)};
}

// Its sides are filled: where a part of a line is drawn, its pixels depend on the part.
void TablaGlifos::PintarMarca(QPainter& pintor, qreal x, int y, qreal ancho) const {
  const QRect caja = SitioDeMarca(x, y, ancho);
  const QRect hueco = caja.adjusted(1, 1, -1, -1);
  for (const QRect& lado : QRegion(caja) - hueco) pintor.fillRect(lado, pintor.pen().color());
}

void TablaGlifos::PintarSuelto(QPainter& pintor, qreal x, int y, qreal ancho) const {
  pintor.fillRect(SitioDeMarca(x, y, ancho), pintor.pen().color());
}
