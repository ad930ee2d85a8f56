// Where the program and its author are found.
#pragma once

#include <QString>

inline const QString PaginaWeb = QStringLiteral("https://www.velda.example/");
inline const QString CorreoAutor = QStringLiteral("autor@velda.example");
