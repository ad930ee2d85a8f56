// A folder of the test's own, and its files as plain bytes.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class CarpetaDePrueba {
 public:
  QString Ruta(const QString& nombre) const { return carpeta_.filePath(nombre); }
  QByteArray EnSistema(const QString& nombre) const { return QFile::encodeName(Ruta(nombre)); }

  // Makes the folder that the file lies in, too.
  QString Escribir(const QString& nombre, const QByteArray& contenido) const {
    QFile archivo(Ruta(nombre));
    EXPECT_TRUE(QDir().mkpath(QFileInfo(archivo.fileName()).path()));
    EXPECT_TRUE(archivo.open(QIODevice::WriteOnly) && archivo.write(contenido) == contenido.size());
    return Ruta(nombre);
  }
  QByteArray Leer(const QString& nombre) const {
    QFile archivo(Ruta(nombre));
    return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray("<falta>");
  }
  struct stat Estado(const QString& nombre) const {
    struct stat estado {};
    EXPECT_EQ(::lstat(EnSistema(nombre).constData(), &estado), 0) << qPrintable(nombre);
    return estado;
  }
  QStringList Nombres() const {
    return QDir(carpeta_.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  }

 private:
  QTemporaryDir carpeta_;
};
