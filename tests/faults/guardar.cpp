// A save without windows, to be run under faults:
//
//   velda_guardar RUTA ARCHIVO_CON_EL_CONTENIDO
//   velda_guardar --perfil RUTA SECCION CLAVE VALOR
//
// Ends with the system's error number; 0 is success. A setting always ends with 0.
#include <array>
#include <cstdio>
#include <span>
#include <string_view>
#include <unistd.h>

#include <QStringList>

#include "shared/archivo.h"
#include "shared/perfil.h"

namespace {

// Tells whoever traces the calls that the program's own begin here.
void Marcar() {
  (void)::access("/velda-empieza", F_OK);
}

int Guardar(const QString& ruta, const QString& origen) {
  const auto contenido = LeerArchivo(origen);
  if (!contenido.Bien()) return contenido.Fallo().Codigo();
  const std::string_view todo(contenido.Valor().constData(),
                              static_cast<std::size_t>(contenido.Valor().size()));
  const std::size_t corte = todo.size() / 3;
  const std::array tramos{todo.substr(0, corte), todo.substr(corte)};
  Marcar();
  const Resultado resultado = CrearOReemplazarArchivo(ruta, tramos, Duracion::Sincronizada);
  if (!resultado.Bien()) std::fprintf(stderr, "%s\n", qPrintable(resultado.Motivo()));
  return resultado.Codigo();
}

int GuardarValor(const QStringList& argumentos) {
  AccesoPerfilArchivo acceso;
  Marcar();
  acceso.EscribirCadena(argumentos[3], argumentos[4], argumentos[5].toLatin1(), argumentos[2]);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  QStringList argumentos;
  for (char* argumento : std::span(argv, static_cast<std::size_t>(argc))) {
    argumentos << QString::fromLocal8Bit(argumento);
  }
  if (argc == 6 && argumentos[1] == u"--perfil") return GuardarValor(argumentos);
  if (argc == 3) return Guardar(argumentos[1], argumentos[2]);
  std::fputs("velda_guardar RUTA ARCHIVO | --perfil RUTA SECCION CLAVE VALOR\n", stderr);
  return 255;
}
