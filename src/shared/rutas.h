// Paths: as texts, and as the system takes them.
//
// The system takes any bytes. Those that are not UTF-8 stand in the text as half characters, U+DC80
// to U+DCFF, which no other text holds, so that every path comes back as it was.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

inline constexpr int MaximoEnlaces = 40;  // links that a path may lead over, as in the kernel

// The folder with a separator at its end.
QString ConBarra(const QString& carpeta);
// Empty when it cannot be a path (it holds a NUL).
QByteArray RutaDelSistema(const QString& ruta);
QString RutaComoTexto(QByteArrayView ruta);
