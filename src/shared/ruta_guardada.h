// Paths as values of the settings, whose code page lacks most characters that a path may have.
//
// A path that a value can hold stands there as it is. Any other one becomes "/dev/null/", its bytes
// as the system takes them, and "??". To who does not know of that it is a path that leads nowhere,
// for a device holds no folders; so is every beginning of it, where a value is cut. A '?' and a
// line end within it are '?' and two hexadecimal digits.
#pragma once

#include <QString>

// Every path comes back from RutaGuardada(), if it is not cut.
QString RutaAGuardar(const QString& ruta);
// What is no such form, or only the beginning of one, comes back as it is.
QString RutaGuardada(const QString& valor);
