// Velda: a desktop utility for reading and editing plain text files.
#include "main_window/frm_main.h"
#include "platform/aplicacion.h"
#include "platform/escritorio.h"
#include "shared/mod_gral.h"

int main(int /*argc*/, char** argv) {
  Aplicacion aplicacion(argv[0]);
  EscritorioReal escritorio;
  AccesoPerfilArchivo ajustes(CarpetaConfiguracion());
  ModGral gral(ajustes);
  gral.SistemaUtf8 = aplicacion.SistemaUtf8();
  FrmMain principal(gral, escritorio.Servicios());
  aplicacion.PonerAviso([&](const QString& motivo) {
    escritorio.Servicios().mensajes.Critico(principal, motivo, QStringLiteral("ERROR"));
  });
  principal.MostrarSinActivar();
  return aplicacion.Ejecutar();
}
