// Where what is read as one character ends, as Unicode has it (UAX 29): a letter with its marks, an
// emoji with what joins it, a flag. Positions are offsets in bytes; line ends are not looked at.
//
// Never does more than some thousand characters' work: longer ones end there.
#pragma once

#include "text_box/documento.h"

// `pos` is the start of one, before the end of the text.
Posicion FinDeGrafema(const Documento& documento, Posicion pos);
// The start of the one that ends at `pos`, or holds the byte before it; pos > 0.
Posicion InicioDeGrafema(const Documento& documento, Posicion pos);
