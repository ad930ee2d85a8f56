// Running one of the toolkit's dialogs over a window of the program.
#pragma once

class QDialog;
class Ventana;
class Activacion;

// A dialog that is run otherwise: a child of `duena` from now on, in the same layer.
void PonerDelante(Ventana& duena, QDialog& dialogo);

// Shows `dialogo` modally over `duena`, in the same layer, and returns whether it was accepted.
bool Ejecutar(Activacion& activacion, Ventana& duena, QDialog& dialogo);
