// Fonts by the names that the program stores.
#pragma once

#include <QFont>

// The font of a text, as the settings hold it.
struct FuenteTexto {
  QString nombre;  // of a family that need not be installed
  double puntos = 0;
  bool negrita = false;
  bool cursiva = false;
  bool subrayada = false;
  bool tachada = false;

  bool operator==(const FuenteTexto&) const = default;
};

// A font of `puntos` points, 20 twips each: 3/4 of a pixel whatever the screen reports. A name
// that is no installed font is drawn with a like one; "Courier" always with an outline font.
QFont FuenteDe(const QString& nombre, qreal puntos);
QFont FuenteDe(const FuenteTexto& texto);

// The font with narrower letters where `texto` would be wider than `ancho` pixels.
QFont Estrechada(QFont fuente, const QString& texto, int ancho);

// Has the toolkit read what fonts the system has, as it does with the first text that is measured
// or drawn. May run in a thread of its own, which others that need a font wait for, while nothing
// changes the environment or the locale.
void LeerCatalogoFuentes();

inline const QString FuenteControles = QStringLiteral("MS Sans Serif");
