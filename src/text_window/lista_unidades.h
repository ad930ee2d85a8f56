// DrvUnidad, the drive list: what is mounted at the moment it is opened.
#pragma once

#include <QComboBox>

#include "platform/unidades.h"

class ListaUnidades : public QComboBox {
  Q_OBJECT

 public:
  ListaUnidades(Unidades& unidades, QWidget* padre);

  Unidad Actual() const;
  // Neither of the two tells of a change. A drive that has gone stays in the list while it is the
  // current one.
  void PonerActual(const Unidad& unidad);
  void Refrescar();

  void showPopup() override;

 signals:
  void Cambiada();  // by the user, or by setCurrentIndex

 private:
  void Llenar(const Unidad& actual);

  Unidades& unidades_;
};
