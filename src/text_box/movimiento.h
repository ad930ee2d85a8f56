// Steps through a text: by what is read as one character (a letter with its marks, a joined emoji,
// CR LF), by word, by line end. What the bytes mean, the code page of the text says.
#pragma once

#include "text_box/documento.h"

// Every position here is an offset in bytes; the steps stop at the ends of the text.
Posicion PasoDerecha(const Documento& documento, Posicion pos);
Posicion PasoIzquierda(const Documento& documento, Posicion pos);

// What Backspace takes back: a code point, of a letter with marks the last mark.
Posicion RetrocesoIzquierda(const Documento& documento, Posicion pos);

// `pos`, or the position behind the line feed when `pos` lies between CR and LF, or the start of
// the code point that it lies in.
Posicion FueraDeCaracter(const Documento& documento, Posicion pos);

// The next start of a word, and the start of the word before. A line end is a stop of its own.
Posicion PalabraDerecha(const Documento& documento, Posicion pos);
Posicion PalabraIzquierda(const Documento& documento, Posicion pos);

// The run of letters of any script, of blanks or of signs around `pos`: what a double click
// selects.
Rango PalabraEn(const Documento& documento, Posicion pos);
