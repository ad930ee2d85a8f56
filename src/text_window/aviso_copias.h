// What a save that was interrupted has left beside the file that is shown.
#pragma once

#include <QString>

class Mensajes;
class Ventana;

// Tells of the copies of a file's text that lie beside it; says nothing when there are none.
void AvisarDeCopias(Mensajes& mensajes, Ventana& duena, const QString& archivo);
