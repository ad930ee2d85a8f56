// DirCarpeta, the folder list: the way from the root to the open folder, one step further in for
// each, and below it the folders inside. One click highlights an entry, a double click or Enter
// opens it.
#pragma once

#include <QListWidget>

#include "platform/unidades.h"

class ListaCarpetas : public QListWidget {
  Q_OBJECT

 public:
  ListaCarpetas(Unidades& unidades, QWidget* padre);

  // A folder that cannot be read is not opened: what is shown stays.
  Resultado Abrir(const QString& carpeta);
  void Vaciar();
  // Full path of the highlighted entry, else of the open folder; empty when none is open.
  QString Elegida() const;

 signals:
  void NoAbierta(const Resultado& fallo);  // a folder that the user wanted to open

 private:
  void Poner(const QString& nombre, const QString& ruta, int nivel);
  void AbrirEntrada(const QListWidgetItem* entrada);

  Unidades& unidades_;
  QString abierta_;
};
