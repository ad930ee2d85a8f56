// What the floors of bench/tabla are made of, and the files and pictures that all of it works on.
#pragma once

#include <cstdint>

#include <QByteArray>
#include <QImage>
#include <QStringList>
#include <QWidget>

inline constexpr int LargoLinea = 80;  // bytes, the line end among them

// Writes a file of such lines, and waits for the disk.
void EscribirArchivo(const QString& ruta, std::int64_t bytes);

// The file's bytes, read in one go. The file is `bytes` long.
QByteArray LeerSolo(const QString& ruta, std::int64_t bytes);
double SegundosLeerSolo(const QString& ruta, std::int64_t bytes);
// The same as text, as a program has it that keeps its texts as strings.
struct Leido {
  QByteArray bytes;
  QString texto;
};
Leido LeerYConvertir(const QString& ruta, std::int64_t bytes);

// A picture of a widget and everything in it.
class Foto {
 public:
  explicit Foto(const QSize& tamano) : imagen_(tamano, QImage::Format_RGB32) {}
  void Pintar(QWidget& widget) { widget.render(&imagen_); }
  bool TieneLetras() const;  // its upper left quarter does
  QSize Tamano() const { return imagen_.size(); }

 private:
  QImage imagen_;
};

// A widget with nothing in it, and its picture.
class Vacia {
 public:
  explicit Vacia(const QSize& tamano, QWidget* padre = nullptr);
  QWidget& Widget() { return widget_; }
  void Pintar() { foto_.Pintar(widget_); }

 private:
  QWidget widget_;
  Foto foto_;
};

// A white widget full of such lines, each drawn by the toolkit in one go.
class Letras : public QWidget {
 public:
  Letras(const QSize& tamano, const QFont& fuente);
  void Pintar() { foto_.Pintar(*this); }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  QStringList lineas_;
  Foto foto_;
};
