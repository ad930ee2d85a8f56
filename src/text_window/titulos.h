// The captions of the text window, which are the states of its document.
#pragma once

#include <QString>

inline const QString PrefijoTitulo = QStringLiteral("Archivo: ");  // and the file's full path
inline const QString TituloSinArchivo = QStringLiteral("Archivo: ?");
inline const QString TituloNuevo = QStringLiteral("Archivo: Nuevo");
