// The order of lists, upper case, and when two paths are the same file.
#pragma once

#include <QCollator>
#include <QString>

// Spanish order without regard to case, whatever the system's language; texts that differ only in
// case (or in nothing that the order knows) stand in the order of their characters.
class OrdenNombres {
 public:
  OrdenNombres();

  int Comparar(const QString& uno, const QString& otro) const;  // < 0, 0, > 0
  bool Menor(const QString& uno, const QString& otro) const { return Comparar(uno, otro) < 0; }
  // For sorting much: comparing two keys is quick, but knows no exact comparison behind it.
  QCollatorSortKey Clave(const QString& texto) const { return colador_.sortKey(texto); }

 private:
  QCollator colador_;
};

// Unicode upper case: the letters with accents and the Ñ, too.
QString AMayusculas(const QString& texto);

// Equal in upper case, and not two different files on the disk.
bool MismoArchivo(const QString& una, const QString& otra);
