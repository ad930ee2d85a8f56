// Owner, permissions, access list and extended attributes of a file.
#pragma once

#include "shared/descriptor.h"

enum class Copia { Completa, Imposible };

// Gives `destino` everything that `origen` carries beside its content, and takes away what it had
// by itself. The access list is one of the extended attributes. Imposible: some of it cannot be
// reproduced; fails only when the disk is full or broken.
ResultadoCon<Copia> CopiarAtributos(int origen, int destino);
