// The code page that a text is in: what its bytes mean. There are two of them, Windows-1252, where
// a byte is a character, and UTF-8.
//
// The document chooses the one of its text and hands it to what steps, measures or converts; nobody
// else asks for a page.
#pragma once

#include <array>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include "text_box/lector_texto.h"
#include "text_box/utf8.h"

class Codificacion {
 public:
  static const Codificacion& Windows1252();
  static const Codificacion& DeUtf8();
  // The one that bytes like these are in; `del_sistema` where there is none from 80 on.
  static const Codificacion& De(const Utf8::Recuento& recuento, const Codificacion& del_sistema);

  Codificacion(const Codificacion&) = delete;
  Codificacion& operator=(const Codificacion&) = delete;
  virtual ~Codificacion() = default;

  // The character that starts at `pos`, before the end of the text.
  virtual Utf8::Caracter En(const LectorTexto& texto, Posicion pos) const = 0;
  // The start of the character that holds the byte at `pos`; `pos` at the end of the text.
  virtual Posicion Inicio(const LectorTexto& texto, Posicion pos) const = 0;

  virtual QString ATexto(QByteArrayView bytes) const = 0;  // U+FFFD for a byte that is no character
  virtual QByteArray ABytes(QStringView texto) const = 0;  // '?' for what the page lacks
  virtual bool Tiene(QStringView texto) const = 0;         // does it have all of that?

  // The character of each byte; of bytes that are a part of one, U+FFFD.
  virtual char16_t Caracter(unsigned char byte) const = 0;
  bool DeVarios() const { return Caracter(0xff) == Utf8::Reemplazo; }  // several bytes a character

 protected:
  Codificacion() = default;
};
