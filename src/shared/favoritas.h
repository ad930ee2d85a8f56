// The favourite folders and their file: "Registros" / "Total", then "Datos" / "F1", "F2" ...
#pragma once

#include <cstdint>

#include <QString>
#include <QStringList>

#include "shared/mod_gral.h"

inline constexpr int MaximoFavoritas = 30;

// Sets TotalFavoritas to the number of folders that the file names, which it gives back. A missing
// file, and a "Total" that is no number of 16 bits, is 0.
std::int16_t LeerTotalFavoritas(ModGral& gral);
// Folder `numero`, counted from 1; empty when its key is missing. Of any length.
QString LeerFavorita(ModGral& gral, int numero);
// All of them in the file's order, the empty ones, too. Sets TotalFavoritas.
QStringList LeerFavoritas(ModGral& gral);

// Can the file give this folder back as it is? Not one with a character that the code page lacks,
// or with a line end.
bool CabeEnFavoritas(const QString& carpeta);
// Writes the folders and empties the keys behind them up to F30; deletes the file when there are
// none. Sets TotalFavoritas. Other keys stay; failures are not reported.
void GuardarFavoritas(ModGral& gral, const QStringList& carpetas);
