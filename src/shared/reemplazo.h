// How a file gets its new content. The content is complete at every moment, under the file's name
// or in a copy beside it:
//
//   * one name, and a folder that can be written: a temporary file beside it, renamed over it;
//   * several hard links, or an owner, attributes or folder that stand against it: the bytes are
//     written into the file itself, where possible while a complete copy lies beside it;
//   * a full disk is reported, and never leads to writing into the file itself.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shared/archivo.h"

inline constexpr int MaximoIntentos = 5;  // against another program that replaces the same file

struct Reemplazo {
  std::span<const std::string_view> tramos;  // the new content, in its order
  Duracion duracion;
};

// Both follow symbolic links where the system itself lets this user follow them: it is asked by the
// path as it is. `ruta` is in the system's form. ESTALE: the file was exchanged for another
// meanwhile; trying again is safe.
Resultado ReemplazarExistente(const char* ruta, const Reemplazo& reemplazo);
// The copies beside a file that interrupted saves have left, with their paths: each holds a whole
// text that the file does not hold.
std::vector<std::string> CopiasDe(const char* ruta);
// EEXIST when there is such a file by now. The target of a dangling link is made.
Resultado CrearNuevo(const char* ruta, const Reemplazo& reemplazo);
