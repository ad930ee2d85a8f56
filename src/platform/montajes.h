// What is mounted where, without asking the mounted drives themselves: one that does not answer
// would keep the program waiting.
#pragma once

#include <vector>

#include <QByteArrayView>
#include <QString>

struct Montaje {
  QString dispositivo;  // "major:minor"
  QString punto;        // the folder where it begins
  QString tipo;         // of the file system
  QString origen;       // "/dev/sdb1", "server:/share"
};

// How a byte is written in the texts of the system that cannot have it as it is: a mark, then
// digits.
struct Escape {
  QByteArrayView marca;
  qsizetype cifras;
  int base;
};
QString SinEscapes(QByteArrayView texto, const Escape& escape);

// The lines of proc_pid_mountinfo(5), in their order: a later one covers an earlier one.
std::vector<Montaje> LeerMontajes(QByteArrayView contenido);
std::vector<Montaje> MontajesActuales();

// Does the system know this kind of file system only through another machine or program?
bool EsDeRed(const Montaje& montaje);
// Does the path lie in the folder, or is it the folder?
bool EstaEn(const QString& ruta, const QString& carpeta);
// The mount on which the path lies by its letters; null when there is none.
const Montaje* MontajeDe(const std::vector<Montaje>& montajes, const QString& ruta);
// The first network drive on the way to the path, symbolic links followed; null when the way is
// local.
const Montaje* MontajeDeRed(const std::vector<Montaje>& montajes, const QString& ruta);
