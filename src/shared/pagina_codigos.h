// The single-byte code page of text files and settings: Windows-1252. Its five unassigned bytes
// (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, so that all 256 bytes
// come back as they were.
#pragma once

#include <array>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace PaginaCodigos {

// The character of every byte.
const std::array<char16_t, 256>& Tabla();

char16_t ATexto(unsigned char byte);
QString ATexto(QByteArrayView bytes);

// What the code page lacks becomes '?': one for a surrogate pair, too.
QByteArray ABytes(QStringView texto);

// Does every character of the text have a byte?
bool Representable(QStringView texto);

// The upper-case letter's byte; the byte itself where the page holds no upper case of it.
unsigned char AMayuscula(unsigned char byte);

}  // namespace PaginaCodigos
