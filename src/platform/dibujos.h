// The program's drawings, by name ("guardar" is dibujos/guardar.svg): crisp at any scale.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QSize>

// Drawn at `tamano` logical pixels for a screen of `escala` device pixels per logical pixel.
QPixmap Dibujo(const QString& nombre, QSize tamano, qreal escala);
// The bold letters of a label, where the build has written them in this size; null where not.
QPixmap Escrito(const QString& texto, QSize tamano, qreal escala);
QIcon Icono(const QString& nombre);
// A pointer of 32 x 32 logical pixels with its hot spot at (x, y) of them.
QCursor Puntero(const QString& nombre, int x, int y);
