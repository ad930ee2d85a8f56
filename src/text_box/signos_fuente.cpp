#include "text_box/signos_fuente.h"

#include <algorithm>
#include <cmath>

#include <QTextBoundaryFinder>

#include "text_box/codificacion.h"
#include "text_box/renglones.h"

namespace {

using Clase = Signos::Clase;

constexpr std::size_t MaximoTramos = 20000;  // measured stretches that are remembered
constexpr char32_t Bom = 0xfeff;

bool Entre(char32_t codigo, char32_t primero, char32_t ultimo) {
  return codigo >= primero && codigo <= ultimo;
}

// Letters of these stand side by side, whatever their neighbours are.
bool DeLetrasSueltas(QChar::Script escritura) {
  switch (escritura) {
    case QChar::Script_Unknown:
    case QChar::Script_Inherited:
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
    case QChar::Script_Armenian:
    case QChar::Script_Hebrew:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Georgian:
    case QChar::Script_Hangul:
    case QChar::Script_Ethiopic:
    case QChar::Script_Cherokee:
    case QChar::Script_CanadianAboriginal:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
    case QChar::Script_Han:
    case QChar::Script_Yi:
    case QChar::Script_Braille:
    case QChar::Script_Coptic:
      return true;
    default:
      return false;
  }
}

bool EsJamo(char32_t codigo) {
  return Entre(codigo, 0x1100, 0x11ff) || Entre(codigo, 0xa960, 0xa97f) ||
         Entre(codigo, 0xd7b0, 0xd7ff);
}

// As UAX 29 has it: marks, the joiners, an emoji's colour and tags, some vowels that are letters.
bool Cuelga(char32_t codigo) {
  return QChar::isMark(codigo) || codigo == 0x200c || Entre(codigo, 0x1f3fb, 0x1f3ff) ||
         Entre(codigo, 0xe0020, 0xe007f) || codigo == 0x0e33 || codigo == 0x0eb3 ||
         Entre(codigo, 0xff9e, 0xff9f);
}

Clase ClaseDe(char32_t codigo) {
  if (codigo == 0x200d) return Clase::Une;
  if (Cuelga(codigo)) return Clase::Sigue;
  switch (QChar::category(codigo)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return Clase::Control;
    default:
      break;
  }
  if (codigo == QChar::ObjectReplacementCharacter) return Clase::Control;
  const bool bandera = Entre(codigo, 0x1f1e6, 0x1f1ff);
  const bool suelta = DeLetrasSueltas(QChar::script(codigo)) && !EsJamo(codigo) && !bandera;
  return suelta ? Clase::Simple : Clase::Complejo;
}

bool EsAsignable(char32_t codigo) {
  return codigo <= QChar::LastValidCodePoint && !QChar::isSurrogate(codigo);
}

void Anadir(QString& texto, char32_t codigo) {
  if (QChar::requiresSurrogates(codigo)) {
    texto += QChar(QChar::highSurrogate(codigo));
    texto += QChar(QChar::lowSurrogate(codigo));
  } else {
    texto += QChar(static_cast<char16_t>(codigo));
  }
}

// Where a row may be broken beside each of these 256: asked of the toolkit with an ideograph and
// with a letter on both sides.
void PonerCortes(char32_t primero, Signos::Pagina& pagina) {
  constexpr char16_t ideograma = 0x4e2d;
  const auto preguntar = [&](char16_t vecino, auto&& apuntar) {
    QString texto;
    std::vector<qsizetype> sitios;
    for (char32_t i = 0; i < 256; ++i) {
      const char32_t codigo = primero + i;
      texto += QChar(vecino);
      sitios.push_back(texto.size());
      Anadir(texto, EsAsignable(codigo) && codigo > ' ' ? codigo : U'x');
      sitios.push_back(texto.size());
      texto += QChar(vecino);
      texto += u'\n';
    }
    QTextBoundaryFinder cortes(QTextBoundaryFinder::Line, texto);
    for (std::size_t i = 0; i < 256; ++i) {
      cortes.setPosition(sitios[2 * i]);
      const bool antes = cortes.isAtBoundary();
      cortes.setPosition(sitios[2 * i + 1]);
      apuntar(pagina[i], antes, cortes.isAtBoundary());
    }
  };
  preguntar(ideograma, [](Signos::Signo& signo, bool antes, bool detras) {
    signo.cortes = static_cast<std::uint8_t>((antes ? Signos::TrasIdeograma : 0) |
                                             (detras ? Signos::AnteIdeograma : 0));
  });
  preguntar(u'a', [](Signos::Signo& signo, bool antes, bool detras) {
    if (antes && detras) signo.cortes |= Signos::Ideograma;
  });
}

}  // namespace

// Characters that are laid out in one go to learn their widths.
struct SignosFuente::Lote {
  QString texto;
  std::vector<std::size_t> indices;  // in their page
  QChar::Script escritura = QChar::Script_Unknown;
  QChar::Direction direccion = QChar::DirL;
};

std::int32_t EnPuntos(qreal pixeles) {
  return static_cast<std::int32_t>(std::max<Punto>(Pixel, qRound(pixeles * Pixel)));
}

QTextLine Maquetar(QTextLayout& maqueta) {
  maqueta.beginLayout();
  QTextLine linea = maqueta.createLine();
  linea.setLeadingIncluded(true);
  maqueta.endLayout();
  return linea;
}

bool SignosFuente::EsMarca(char32_t codigo) {
  const QChar::Category categoria = QChar::category(codigo);
  return categoria == QChar::Other_Control || categoria == QChar::Separator_Line ||
         categoria == QChar::Separator_Paragraph || codigo == Bom ||
         codigo == QChar::ObjectReplacementCharacter || Utf8::EsSuelto(codigo);
}

std::uint32_t SignosFuente::Glifo(char32_t codigo) {
  De(codigo);
  return (*glifos_[codigo / 256])[codigo % 256];
}

void SignosFuente::Llenar(char32_t primero, Pagina& pagina) {
  PonerCortes(primero, pagina);
  for (char32_t i = 0; i < 256; ++i) {
    const char32_t codigo = primero + i;
    Signo& signo = pagina[i];
    signo.clase = EsAsignable(codigo) ? ClaseDe(codigo) : Clase::Control;
    if (EsMarca(codigo)) {
      signo.ancho = ascii_.ancho[' '];
      signo.cortes = 0;
    }
    if (codigo < 0x80) signo.ancho = ascii_.ancho[codigo];
    if (codigo <= ' ') signo.cortes = 0;
  }
  MedirEnFuente(primero, pagina);
}

// What the font has goes into the table; the others are laid out, those of one script together
// where neighbours do not matter.
void SignosFuente::MedirEnFuente(char32_t primero, Pagina& pagina) {
  auto& glifos = glifos_[primero / 256];
  glifos = std::make_unique<Glifos>();
  Lote lote;
  const auto cerrar = [&] {
    if (!lote.indices.empty()) MedirLote(lote, pagina);
    lote = {};
  };
  for (std::size_t i = 0; i < 256; ++i) {
    const auto codigo = primero + static_cast<char32_t>(i);
    if (!EsAsignable(codigo) || EsMarca(codigo)) continue;
    QString letra;
    Anadir(letra, codigo);
    const bool simple = pagina[i].clase == Clase::Simple;
    const QList<quint32> suyo = simple ? cruda_.glyphIndexesForString(letra) : QList<quint32>();
    if (suyo.size() == 1 && suyo[0] != 0) {
      (*glifos)[i] = suyo[0];
      if (codigo >= 0x80) {
        pagina[i].ancho = EnPuntos(cruda_.advancesForGlyphIndexes(suyo).value(0).x());
      }
      continue;
    }
    if (codigo < 0x80 || QChar::category(codigo) == QChar::Other_NotAssigned) continue;
    const auto escritura = QChar::script(codigo);
    const auto direccion = QChar::direction(codigo);
    if (!simple || escritura != lote.escritura || direccion != lote.direccion) cerrar();
    lote.escritura = escritura;
    lote.direccion = direccion;
    lote.texto += letra;
    lote.indices.push_back(i);
    if (!simple) cerrar();
  }
  cerrar();
}

void SignosFuente::MedirLote(const Lote& lote, Pagina& pagina) const {
  QTextLayout maqueta(lote.texto, fuente_);
  const QTextLine linea = Maquetar(maqueta);
  int sitio = 0;
  qreal x = linea.cursorToX(sitio);
  for (const std::size_t i : lote.indices) {
    sitio += lote.texto[sitio].isHighSurrogate() ? 2 : 1;
    const qreal siguiente = linea.cursorToX(sitio);
    pagina[i].ancho = static_cast<std::int32_t>(qRound(std::abs(siguiente - x) * Pixel));
    x = siguiente;
  }
}

std::span<const Signos::Racimo> SignosFuente::Medir(std::string_view tramo) {
  std::string clave(tramo);
  const auto hallado = tramos_.find(clave);
  if (hallado != tramos_.end()) return hallado->second;
  if (tramos_.size() >= MaximoTramos) tramos_.clear();
  return tramos_[std::move(clave)] = Maquetados(tramo);
}

std::vector<Signos::Racimo> SignosFuente::Maquetados(std::string_view tramo) const {
  const auto bytes = QByteArrayView(tramo.data(), static_cast<qsizetype>(tramo.size()));
  const QString texto = Codificacion::DeUtf8().ATexto(bytes);
  QTextLayout maqueta(texto, fuente_);
  const QTextLine linea = Maquetar(maqueta);
  std::vector<Racimo> racimos;
  QTextBoundaryFinder limites(QTextBoundaryFinder::Grapheme, texto);
  int sitio = 0;
  std::size_t byte = 0;
  const auto* datos = reinterpret_cast<const unsigned char*>(tramo.data());
  while (sitio < texto.size()) {
    const auto fin = static_cast<int>(limites.toNextBoundary());
    const std::size_t antes = byte;
    const qreal ancho = std::abs(linea.cursorToX(fin) - linea.cursorToX(sitio));
    for (; sitio < fin; sitio += texto[sitio].isHighSurrogate() ? 2 : 1) {
      byte += Utf8::Leer(datos + byte, tramo.size() - byte).largo;
    }
    racimos.push_back({static_cast<std::uint16_t>(byte - antes),
                       static_cast<std::int32_t>(qRound(ancho * Pixel))});
  }
  return racimos;
}
