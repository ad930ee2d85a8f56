// Steps through a text: by character (CRLF counts as one), by word, by line end. What a
// character and a letter is, the code page of the text says.
#pragma once

#include "text_box/documento.h"

// Every position here is an offset in bytes; the steps stop at the ends of the text.
Posicion PasoDerecha(const Documento& documento, Posicion pos);
Posicion PasoIzquierda(const Documento& documento, Posicion pos);

// `pos`, or the position behind the line feed when `pos` lies between CR and LF.
Posicion FueraDeFinDeLinea(const Documento& documento, Posicion pos);

// The next start of a word, and the start of the word before. A line end is a stop of its own.
Posicion PalabraDerecha(const Documento& documento, Posicion pos);
Posicion PalabraIzquierda(const Documento& documento, Posicion pos);

// The run of letters, of blanks or of signs around `pos`: what a double click selects.
Rango PalabraEn(const Documento& documento, Posicion pos);
