// Fonts by the names that the program stores.
#pragma once

#include <QFont>

// A font of `puntos` points, 20 twips each: 3/4 of a pixel whatever the screen reports. A name
// that is no installed font is drawn with a like one; "Courier" always with an outline font.
QFont FuenteDe(const QString& nombre, qreal puntos);

inline const QString FuenteControles = QStringLiteral("MS Sans Serif");
