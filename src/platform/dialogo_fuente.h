// The toolkit's font dialog with one more button, for the colour of the text.
#pragma once

#include <QFontDialog>

#include "platform/dialogos_aspecto.h"

class QAbstractItemView;
class QLineEdit;
class QPushButton;

class DialogoFuente : public QFontDialog {
  Q_OBJECT

 public:
  explicit DialogoFuente(const EleccionFuente& actual);
  // What the user chose; what was not touched is as it was given.
  EleccionFuente Elegida() const;

 private:
  void PrepararListas();
  void TraducirEstilos(QAbstractItemView& lista);
  void PrepararColor();
  void PedirColor();
  void PintarColor();
  void Traducir();

  EleccionFuente actual_;
  QFont inicial_;  // as the dialog shows `actual_`: an installed family, a whole size
  bool familia_elegida_ = false;
  bool tamano_elegido_ = false;
  QColor color_;
  QLineEdit* estilo_ = nullptr;
  QLineEdit* tamano_ = nullptr;
  QPushButton* boton_color_ = nullptr;
};
