#include "text_window/lista_carpetas.h"

#include <QDir>
#include <QStyledItemDelegate>

#include "shared/constantes.h"

namespace {

constexpr int PapelRuta = Qt::UserRole;
constexpr int PapelNivel = Qt::UserRole + 1;
constexpr int Sangria = 10;  // pixels for each step of the way

// Draws an entry as far in as its step of the way.
class EntradaSangrada : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
             const QModelIndex& indice) const override {
    QStyleOptionViewItem sangrada = opcion;
    sangrada.rect.setLeft(opcion.rect.left() + Desplazada(indice));
    QStyledItemDelegate::paint(pintor, sangrada, indice);
  }
  QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override {
    return QStyledItemDelegate::sizeHint(opcion, indice) + QSize(Desplazada(indice), 0);
  }

 private:
  static int Desplazada(const QModelIndex& indice) {
    return indice.data(PapelNivel).toInt() * Sangria;
  }
};

QString Dentro(const QString& carpeta, const QString& nombre) {
  return carpeta.endsWith(SeparadorRuta) ? carpeta + nombre : carpeta + SeparadorRuta + nombre;
}

}  // namespace

ListaCarpetas::ListaCarpetas(Unidades& unidades, QWidget* padre)
    : QListWidget(padre), unidades_(unidades) {
  setItemDelegate(new EntradaSangrada(this));
  setTextElideMode(Qt::ElideNone);
  connect(this, &QListWidget::itemActivated, this, &ListaCarpetas::AbrirEntrada);
}

Resultado ListaCarpetas::Abrir(const QString& carpeta) {
  const QString limpia = QDir::cleanPath(carpeta);
  const auto leida = unidades_.Leer(limpia, Busca::Subcarpetas);
  if (!leida.Bien()) return leida.Fallo();
  clear();
  abierta_ = QDir::rootPath();
  Poner(abierta_, abierta_, 0);
  for (const QString& parte : limpia.split(SeparadorRuta, Qt::SkipEmptyParts)) {
    abierta_ = Dentro(abierta_, parte);
    Poner(parte, abierta_, count());
  }
  const int fila = count() - 1;
  for (const QString& nombre : leida.Valor().nombres) {
    Poner(nombre, Dentro(abierta_, nombre), fila + 1);
  }
  setCurrentRow(fila);
  scrollToItem(item(fila), PositionAtCenter);
  return {};
}

void ListaCarpetas::Vaciar() {
  clear();
  abierta_.clear();
}

QString ListaCarpetas::Elegida() const {
  const QList<QListWidgetItem*> elegidas = selectedItems();
  return elegidas.isEmpty() ? abierta_ : elegidas.constFirst()->data(PapelRuta).toString();
}

void ListaCarpetas::Poner(const QString& nombre, const QString& ruta, int nivel) {
  auto* entrada = new QListWidgetItem(nombre, this);
  entrada->setData(PapelRuta, ruta);
  entrada->setData(PapelNivel, nivel);
}

// The entry is gone once its folder is open.
void ListaCarpetas::AbrirEntrada(const QListWidgetItem* entrada) {
  const QString ruta = entrada->data(PapelRuta).toString();
  const Resultado abierta = Abrir(ruta);
  if (!abierta.Bien()) emit NoAbierta(abierta);
}
