// Writing new content into an existing file, for the files that cannot be replaced by a new one.
#pragma once

#include <span>
#include <string_view>

#include "shared/archivo.h"
#include "shared/descriptor.h"

struct FalloEnSitio {
  Resultado resultado;
  bool restaurado = true;  // the file holds its old content (again)
};

// `descriptor` is open for reading and writing, at its first byte. The space is reserved first and
// a longer old content is cut off last; after an error the old bytes are put back.
FalloEnSitio EscribirEnSitio(int descriptor, std::span<const std::string_view> tramos,
                             Duracion duracion);
