// The toolkit's file dialog, which answers with the name that its field shows.
#pragma once

#include <QFileDialog>

class QAbstractItemView;
class QLineEdit;

// The toolkit takes quotation marks in its field for those around several names, and reads from
// every file that it shows or completes. Here the field holds one name, and no file is opened.
class DialogoArchivo : public QFileDialog {
 public:
  DialogoArchivo(const QString& titulo, const QString& carpeta, const QStringList& filtros,
                 AcceptMode modo);
  // The full path chosen, clean; empty until the dialog was accepted.
  const QString& Elegido() const { return elegido_; }
  // A folder is entered and what cannot be a file's name is left in the field to be mended.
  void accept() override;

 private:
  void PrepararCampo();
  void CampoCambiado(const QString& texto);
  QModelIndex Fila() const;
  QString Senalado() const;
  QString Nombrado(const QString& texto) const;

  QLineEdit* campo_ = nullptr;
  QAbstractItemView* lista_ = nullptr;
  QString elegido_;
};
