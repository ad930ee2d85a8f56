#include "platform/dialogo_fuente.h"

#include <array>
#include <utility>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringListModel>

#include "platform/dialogo_color.h"

namespace {

// The toolkit's lists and the fields over them, in its own order.
enum Columna { Familia, Estilo, Tamano, Columnas };

// The toolkit's Spanish gives Alt+T to three controls.
const std::array<std::pair<Columna, QString>, Columnas> Nombres{
    {{Familia, QStringLiteral("&Tipo de letra")},
     {Estilo, QStringLiteral("&Estilo del tipo de letra")},
     {Tamano, QStringLiteral("Ta&maño")}}};
const QString Tachado = QStringLiteral("Tac&hado");

constexpr QSize TamanoMuestra(24, 12);
constexpr int GrisMuyClaro = 200;  // of 255: not to be read on white any more

// The names that fonts give their styles are English: "Bold Italic".
QString EstiloEnEspanol(const QString& estilo) {
  static const QHash<QString, QString> palabras{
      {QStringLiteral("regular"), QStringLiteral("normal")},
      {QStringLiteral("roman"), QStringLiteral("normal")},
      {QStringLiteral("book"), QStringLiteral("normal")},
      {QStringLiteral("medium"), QStringLiteral("media")},
      {QStringLiteral("bold"), QStringLiteral("negrita")},
      {QStringLiteral("demibold"), QStringLiteral("seminegrita")},
      {QStringLiteral("semibold"), QStringLiteral("seminegrita")},
      {QStringLiteral("extrabold"), QStringLiteral("extranegrita")},
      {QStringLiteral("black"), QStringLiteral("superior")},
      {QStringLiteral("italic"), QStringLiteral("cursiva")},
      {QStringLiteral("oblique"), QStringLiteral("oblicua")},
      {QStringLiteral("light"), QStringLiteral("fina")},
      {QStringLiteral("extralight"), QStringLiteral("extrafina")},
      {QStringLiteral("thin"), QStringLiteral("ultrafina")},
      {QStringLiteral("condensed"), QStringLiteral("estrecha")}};
  QStringList traducidas;
  for (const QString& palabra : estilo.split(u' ')) {
    traducidas << palabras.value(palabra.toLower(), palabra);
  }
  QString nombre = traducidas.join(u' ');
  nombre.replace(0, 1, nombre.left(1).toUpper());
  return nombre;
}

// What is shown and read aloud of the list of styles. The dialog itself takes the fonts' own names,
// from stringList().
class Estilos : public QStringListModel {
 public:
  using QStringListModel::QStringListModel;
  QVariant data(const QModelIndex& sitio, int papel) const override {
    const QVariant valor = QStringListModel::data(sitio, papel);
    return papel == Qt::DisplayRole ? EstiloEnEspanol(valor.toString()) : valor;
  }
};

// The plainest of the family's styles with that weight and slant; empty when it has none. The
// dialog finds a style by the font's own name for it only, which is never a translated one.
QString EstiloDe(const QString& familia, bool negrita, bool cursiva) {
  const int peso = negrita ? QFont::Bold : QFont::Normal;
  QString hallado;
  for (const QString& estilo : QFontDatabase::styles(familia)) {
    const bool sirve = QFontDatabase::weight(familia, estilo) == peso &&
                       QFontDatabase::italic(familia, estilo) == cursiva;
    if (sirve && (hallado.isEmpty() || estilo.size() < hallado.size())) hallado = estilo;
  }
  return hallado;
}

// What is drawn now: of an installed family.
QFont FuenteMostrada(const FuenteTexto& fuente) {
  QFont mostrada = FuenteDe(fuente);
  const QString familia = QFontInfo(mostrada).family();
  mostrada.setFamily(familia);
  mostrada.setStyleName(EstiloDe(familia, fuente.negrita, fuente.cursiva));
  mostrada.setPointSizeF(fuente.puntos);
  return mostrada;
}

}  // namespace

DialogoFuente::DialogoFuente(const EleccionFuente& actual) : actual_(actual), color_(actual.color) {
  setOption(QFontDialog::DontUseNativeDialog);
  setWindowTitle(QStringLiteral("Fuente de letra"));
  setCurrentFont(FuenteMostrada(actual.fuente));
  PrepararListas();
  PrepararColor();
  inicial_ = currentFont();
}

void DialogoFuente::PrepararListas() {
  const auto listas = findChildren<QAbstractItemView*>(Qt::FindDirectChildrenOnly);
  const auto campos = findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly);
  const auto rotulos = findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
  if (listas.size() != Columnas || campos.size() != Columnas || rotulos.size() < Columnas) return;
  for (const auto& [columna, nombre] : Nombres) {
    rotulos[columna]->setText(nombre);
    listas[columna]->setAccessibleName(QString(nombre).remove(u'&'));
    campos[columna]->setAccessibleName(QString(nombre).remove(u'&'));
  }
  connect(listas[Familia], &QAbstractItemView::clicked, this, [this] { familia_elegida_ = true; });
  connect(listas[Tamano], &QAbstractItemView::clicked, this, [this] { tamano_elegido_ = true; });
  connect(campos[Tamano], &QLineEdit::textEdited, this, [this] { tamano_elegido_ = true; });
  TraducirEstilos(*listas[Estilo]);
  estilo_ = campos[Estilo];
  tamano_ = campos[Tamano];
  connect(estilo_, &QLineEdit::textChanged, this, &DialogoFuente::Traducir);
  connect(this, &QFontDialog::currentFontChanged, this, &DialogoFuente::Traducir);
  Traducir();
}

void DialogoFuente::TraducirEstilos(QAbstractItemView& lista) {
  if (const auto* hay = qobject_cast<QStringListModel*>(lista.model())) {
    const int actual = lista.currentIndex().row();
    auto* estilos = new Estilos(hay->stringList(), &lista);
    lista.setModel(estilos);
    lista.setCurrentIndex(estilos->index(actual));
  }
}

// The field only shows the style; the dialog reads it from the list.
void DialogoFuente::Traducir() {
  const QSignalBlocker sin_avisos(estilo_);
  estilo_->setText(EstiloEnEspanol(estilo_->text()));
}

void DialogoFuente::PrepararColor() {
  boton_color_ = new QPushButton(QStringLiteral("&Color del texto..."), this);
  boton_color_->setObjectName(QStringLiteral("BotonColor"));
  boton_color_->setAutoDefault(false);
  boton_color_->setIconSize(TamanoMuestra);
  connect(boton_color_, &QPushButton::clicked, this, &DialogoFuente::PedirColor);
  const auto grupos = findChildren<QGroupBox*>(Qt::FindDirectChildrenOnly);
  QLayout* sitio = grupos.isEmpty() ? layout() : grupos.constFirst()->layout();
  sitio->addWidget(boton_color_);
  const auto efectos = findChildren<QCheckBox*>();
  if (!efectos.isEmpty()) {
    efectos.constFirst()->setText(Tachado);
    setTabOrder(efectos.constLast(), boton_color_);
  }
  PintarColor();
}

void DialogoFuente::PedirColor() {
  DialogoColor dialogo(QStringLiteral("Color del texto"), color_, this);
  if (dialogo.exec() == QDialog::Accepted) {
    color_ = dialogo.selectedColor();
    PintarColor();
  }
  activateWindow();  // where no window manager does it
}

void DialogoFuente::PintarColor() {
  QPixmap muestra(TamanoMuestra);
  muestra.fill(color_);
  boton_color_->setIcon(muestra);
  if (auto* texto = findChild<QLineEdit*>(QStringLiteral("qt_fontDialog_sampleEdit"))) {
    QPalette paleta = texto->palette();
    paleta.setColor(QPalette::Text, color_);
    paleta.setColor(QPalette::Base, qGray(color_.rgb()) > GrisMuyClaro ? Qt::black : Qt::white);
    texto->setPalette(paleta);
  }
}

EleccionFuente DialogoFuente::Elegida() const {
  const QFont fuente = currentFont();
  EleccionFuente elegida = actual_;
  elegida.color = color_;
  if (familia_elegida_ || fuente.family() != inicial_.family()) {
    elegida.fuente.nombre = fuente.family();
  }
  const int puntos = tamano_ != nullptr ? tamano_->text().toInt() : fuente.pointSize();
  if (puntos > 0 && (tamano_elegido_ || puntos != inicial_.pointSize())) {
    elegida.fuente.puntos = puntos;
  }
  if (fuente.bold() != inicial_.bold() || fuente.italic() != inicial_.italic()) {
    elegida.fuente.negrita = fuente.bold();
    elegida.fuente.cursiva = fuente.italic();
  }
  elegida.fuente.subrayada = fuente.underline();
  elegida.fuente.tachada = fuente.strikeOut();
  return elegida;
}
