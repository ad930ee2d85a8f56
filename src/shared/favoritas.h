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
// All of them in the file's order, of any length, the empty and the missing ones, too. Sets
// TotalFavoritas.
QStringList LeerFavoritas(ModGral& gral);

// Writes the folders and empties the keys behind them up to F30; deletes the file when there are
// none. Sets TotalFavoritas. Other keys stay; failures are not reported.
void GuardarFavoritas(ModGral& gral, const QStringList& carpetas);
