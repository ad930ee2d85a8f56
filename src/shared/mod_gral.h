// What all windows share: the program-wide variables, and where the data files lie.
#pragma once

#include <cstdint>

#include <QString>

#include "shared/opciones.h"
#include "shared/perfil.h"
#include "shared/texto_entero.h"

// What ArchivoActual holds after the list has become empty.
inline const QString ArchivoNinguno = QStringLiteral("Ninguno");

// One instance for the whole run, made in main() and handed on by reference. Between the windows
// the flags are requests: one window sets them, another serves them when it becomes active.
struct ModGral {
  explicit ModGral(AccesoPerfil& acceso) : perfil(acceso) {}

  QString RutaPrograma;      // the executable's folder, ends in "/"; the base of the help files
  QString ArchivoINI;        // full path of Velda.INI
  QString ArchivoFavoritas;  // full path of Favoritas.INI
  Perfil perfil;             // Buffer and Longitud
  bool SistemaUtf8 = false;  // the system's locale is in UTF-8: so are texts that give no hint

  QString ArchivoActual;      // full path of the current file; "Ninguno" once the list became empty
  QString ArchivoCargado;     // full path of the file that the text window holds; empty: load again
  bool ArchivoNuevo = false;  // a new, unsaved text is under way
  bool GuardarComo = false;   // the main window is to run its save dialog when next active
  bool VerOpciones = false;   // the text window is to open its options panel when next active
  bool VerFavoritas = false;  // ... or its favourites manager
  Opciones opciones;

  std::int16_t TotalFavoritas = 0;  // favourite folders last read or saved
  std::int16_t AccionBorrar = 0;    // 0: to the recycle bin, 1: only off the list, 2: nothing
  TextoEntero Contenido;            // the text on its way from the text window to its new file
};

// The program's folder in the user's configuration; it need not exist yet.
QString CarpetaConfiguracion();

// Sets the three paths. `carpeta_programa` is the executable's folder; links in it are followed.
// The data files lie there when a Velda.INI is there already, or when the folder is the user's own,
// can be written and is none of the system's (/usr, /opt); otherwise in `carpeta_configuracion`.
void EstablecerRutas(ModGral& general, const QString& carpeta_programa,
                     const QString& carpeta_configuracion = CarpetaConfiguracion());
