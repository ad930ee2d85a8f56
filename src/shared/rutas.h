// Paths: as texts, and as the system takes them.
#pragma once

#include <QByteArray>
#include <QString>

inline constexpr int MaximoEnlaces = 40;  // links that a path may lead over, as in the kernel

// The folder with a separator at its end.
QString ConBarra(const QString& carpeta);
// Empty when it cannot be a path (it holds a NUL).
QByteArray RutaDelSistema(const QString& ruta);
