// The code page that a text is in: what its bytes mean. One byte is one character.
//
// The document has the one of its text and hands it to what steps, measures or converts; nobody
// else asks for a page.
#pragma once

#include <array>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

class Codificacion {
 public:
  Codificacion();  // Windows-1252

  char16_t Caracter(unsigned char byte) const { return (*caracteres_)[byte]; }
  QString ATexto(QByteArrayView bytes) const;
  QByteArray ABytes(QStringView texto) const;  // '?' for what the page lacks

 private:
  const std::array<char16_t, 256>* caracteres_;
};
