// LstFav, the list of the favourite folders.
#pragma once

#include <QListWidget>

class ListaFavoritas : public QListWidget {
  Q_OBJECT

 public:
  using QListWidget::QListWidget;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
};
