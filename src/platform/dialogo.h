// Running one of the toolkit's dialogs over a window of the program.
#pragma once

class QDialog;
class Ventana;
class Activacion;

// Shows `dialogo` modally over `duena`, in the same layer, and returns whether it was accepted.
bool Ejecutar(Activacion& activacion, Ventana& duena, QDialog& dialogo);
