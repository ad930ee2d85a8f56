// The open files: names in sorted order, each with its path. One list, so that the two cannot
// fall out of step.
#pragma once

#include <deque>
#include <vector>

#include <QAbstractListModel>
#include <QHash>

#include "shared/orden.h"

class ListaArchivos : public QAbstractListModel {
  Q_OBJECT

 public:
  explicit ListaArchivos(QObject* padre = nullptr);

  int Total() const { return static_cast<int>(orden_.size()); }
  bool Llena() const;                       // no further file is taken
  const QString& Rutas(int indice) const;   // full path of entry `indice`
  const QString& Nombre(int indice) const;  // what the list shows: the path's last part

  // The entry of the same file, -1 when it is not listed.
  int Buscar(const QString& ruta) const;
  // Inserts a file that is not listed at its sorted place and returns that index.
  int Agregar(const QString& ruta);
  // Inserts those of the files that are not listed, told to the view in one go; what is selected
  // stays selected. Returns how many the full list could not take.
  int AgregarVarios(const QStringList& rutas);
  void Quitar(int indice);

  int rowCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int papel) const override;

 private:
  struct Entrada {
    QString ruta;
    QString nombre;
    QCollatorSortKey clave;  // of the name: collated once, compared often
  };
  static bool VaAntes(const Entrada& una, const Entrada& otra);
  int IndicePara(const Entrada& entrada) const;
  int Numero(const QString& ruta, const QString& mayusculas) const;  // -1: not listed
  Entrada Nueva(const QString& ruta) const;
  void Anotar(Entrada entrada, const QString& mayusculas);
  void OlvidarUltima();  // that was noted
  void Intercalar(int primera_nueva);

  OrdenNombres orden_nombres_;
  std::deque<Entrada> entradas_;       // in the order of their coming; never moved
  std::vector<int> orden_;             // index in the list -> entry
  QMultiHash<QString, int> por_ruta_;  // path in upper case -> entries
};
