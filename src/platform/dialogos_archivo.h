// The system's dialogs that ask for a file's name.
#pragma once

#include <QString>

class Activacion;
class Ventana;

struct PeticionArchivo {
  QString titulo;
  QString carpeta;  // where it starts; one that does not exist shows the user's home folder
  QString filtro;   // "text|pattern|text|pattern"; the first is offered
};

class DialogosArchivo {
 public:
  virtual ~DialogosArchivo() = default;
  // The full path chosen, which need not exist; empty when the user cancelled.
  virtual QString Abrir(Ventana& duena, const PeticionArchivo& peticion) = 0;
  // The same; the name of an existing file is taken without a question, no extension is added.
  virtual QString Guardar(Ventana& duena, const PeticionArchivo& peticion) = 0;
};

class DialogosArchivoReales : public DialogosArchivo {
 public:
  explicit DialogosArchivoReales(Activacion& activacion) : activacion_(activacion) {}
  QString Abrir(Ventana& duena, const PeticionArchivo& peticion) override;
  QString Guardar(Ventana& duena, const PeticionArchivo& peticion) override;

 private:
  Activacion& activacion_;
};
