#include "platform/dialogo_archivo.h"

#include <climits>
#include <pwd.h>

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>

#include "shared/rutas.h"

namespace {

constexpr QSize Tamano(640, 440);  // pixels
constexpr int AnchoLugares = 140;  // of the list of places, so that no name is cut

// One drawing for folders and one for files. The toolkit's own provider opens every file to tell
// its kind, also while a path is typed, and for some under /proc that never ends.
class Iconos : public QFileIconProvider {
 public:
  QIcon icon(const QFileInfo& de) const override { return de.isDir() ? carpeta_ : archivo_; }
  QString type(const QFileInfo& de) const override {
    return de.isDir() ? QStringLiteral("Carpeta") : QStringLiteral("Archivo");
  }

 private:
  // Made here: they are asked for in the thread that reads the folder.
  QIcon carpeta_ = QFileIconProvider::icon(Folder);
  QIcon archivo_ = QFileIconProvider::icon(File);
};

// "~" and "~name" at the start of a path, as a shell reads them.
QString ConCasa(const QString& ruta) {
  const QString usuario = ruta.section(u'/', 0, 0);
  if (!usuario.startsWith(u'~')) return ruta;
  if (usuario.size() == 1) return QDir::homePath() + ruta.mid(1);
  const passwd* datos = getpwnam(QFile::encodeName(usuario.mid(1)).constData());
  return datos != nullptr ? QFile::decodeName(datos->pw_dir) + ruta.mid(usuario.size()) : ruta;
}

bool Cabe(const QString& ruta) {
  return RutaDelSistema(ruta.section(u'/', -1)).size() <= NAME_MAX;
}

}  // namespace

DialogoArchivo::DialogoArchivo(const QString& titulo, const QString& carpeta,
                               const QStringList& filtros, AcceptMode modo)
    : QFileDialog(nullptr, titulo, carpeta) {
  static Iconos iconos;  // longer there than the toolkit's thread that asks for them
  setIconProvider(&iconos);
  setOptions(DontUseNativeDialog | DontConfirmOverwrite | HideNameFilterDetails);
  setAcceptMode(modo);
  setFileMode(AnyFile);
  setViewMode(List);
  setNameFilters(filtros);
  resize(Tamano);
  if (auto* partes = findChild<QSplitter*>(QStringLiteral("splitter"))) {
    partes->setSizes({AnchoLugares, Tamano.width() - AnchoLugares});
  }
  // The toolkit's Spanish lacks the first letter of what a screen reader says here.
  if (auto* arriba = findChild<QToolButton*>(QStringLiteral("toParentButton"))) {
    arriba->setAccessibleDescription(QStringLiteral("Ir al directorio superior"));
  }
  PrepararCampo();
}

void DialogoArchivo::PrepararCampo() {
  campo_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  lista_ = findChild<QAbstractItemView*>(QStringLiteral("listView"));
  if (campo_ != nullptr && lista_ != nullptr) {
    // The toolkit would select what it takes for the names in it, and look each up on the disk.
    disconnect(campo_, &QLineEdit::textChanged, this, nullptr);
    connect(campo_, &QLineEdit::textChanged, this, &DialogoArchivo::CampoCambiado);
  }
}

// A click in the list has written the name that is selected there: anything else was typed, and
// counts in its place.
void DialogoArchivo::CampoCambiado(const QString& texto) {
  if (Fila().data() != texto) lista_->selectionModel()->clear();
  auto* botones = findChild<QDialogButtonBox*>();
  if (auto* aceptar = botones->button(acceptMode() == AcceptOpen ? QDialogButtonBox::Open
                                                                 : QDialogButtonBox::Save)) {
    aceptar->setEnabled(!texto.isEmpty() && Cabe(texto));
  }
}

// The entry that is selected in the folder shown.
QModelIndex DialogoArchivo::Fila() const {
  const QModelIndex fila = lista_->selectionModel()->selectedRows().value(0);
  return fila.parent() == lista_->rootIndex() ? fila : QModelIndex();
}

// Its path, as long as the field does not say something else: it never names a selected folder.
QString DialogoArchivo::Senalado() const {
  const QModelIndex fila = Fila();
  const QString ruta = fila.data(QFileSystemModel::FilePathRole).toString();
  const QString texto = campo_->text();
  const bool vale = texto.isEmpty() || fila.data() == texto || QFileInfo(ruta).isDir();
  return vale ? ruta : QString();
}

QString DialogoArchivo::Nombrado(const QString& texto) const {
  const QString carpeta = directory().isRelative() ? QString() : directory().path();
  const QString aqui = carpeta + u'/' + texto;
  const QString ruta = QFileInfo::exists(aqui) ? texto : ConCasa(texto);
  return ruta.startsWith(u'/') ? ruta : aqui;
}

void DialogoArchivo::accept() {
  if (campo_ == nullptr || lista_ == nullptr) {  // another toolkit's dialog: as it takes it
    elegido_ = QDir::cleanPath(selectedFiles().value(0));
    QFileDialog::accept();
    return;
  }
  const QString texto = campo_->text();
  const QString senalado = Senalado();
  const QString ruta = senalado.isEmpty() ? Nombrado(texto) : senalado;
  if (QFileInfo(ruta).isDir()) {
    setDirectory(QDir::cleanPath(ruta));
    if (senalado.isEmpty()) {  // what was typed is done; the name of a file can follow
      campo_->clear();
    }
  } else if (texto.endsWith(u'/') || !Cabe(ruta)) {
    campo_->selectAll();
  } else {
    elegido_ = QDir::cleanPath(ruta);
    done(Accepted);  // not the base's: it would read the field in its own way
  }
}
