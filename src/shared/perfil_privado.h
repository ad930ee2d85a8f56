// The private-profile format: "[section]" lines, each followed by "key=value" lines.
//
// Bytes in, bytes out; every byte that is not part of the one value stays as it is. Section and key
// are compared without regard to case, in the program's code page. The first section of the name
// counts, and in it the first line with the key. A line that begins with ";" is skipped.
#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

namespace PerfilPrivado {

// The value without the blanks around it and without one pair of matching quotes around the rest.
std::optional<QByteArray> Buscar(QByteArrayView contenido, QByteArrayView seccion,
                                 QByteArrayView clave);

// The name of a key in the form in which case does not matter.
QByteArray SinCaja(QByteArrayView clave);
// All values of a section, as Buscar() finds them, by SinCaja() of their keys.
QHash<QByteArray, QByteArray> Seccion(QByteArrayView contenido, QByteArrayView seccion);

// The content with that value, as it stands, behind the "=". A missing key goes behind the last
// line of its section, a missing section to the end. New lines end as their neighbours do; in a
// content without any line, with CR LF. A line end within the value becomes '?', since no value can
// hold one. `clave` and `seccion` are trimmed, not empty, and have none of "[]=;" or a line end.
QByteArray Poner(QByteArrayView contenido, QByteArrayView seccion, QByteArrayView clave,
                 QByteArrayView valor);

}  // namespace PerfilPrivado
