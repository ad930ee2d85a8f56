// A save without windows, to be run under faults:
//
//   velda_guardar RUTA ARCHIVO_CON_EL_CONTENIDO            the text that is shown
//   velda_guardar --nuevo RUTA ARCHIVO_CON_EL_CONTENIDO    a text whose name may be new
//   velda_guardar --perfil RUTA SECCION CLAVE VALOR        one setting
//
// Ends with the system's error number; 0 is success. A setting always ends with 0.
#include <array>
#include <csignal>
#include <cstdio>
#include <span>
#include <string_view>
#include <unistd.h>

#include <QFileInfo>
#include <QStringList>

#include "shared/archivo.h"
#include "shared/perfil.h"

namespace {

// Tells whoever traces the calls that the program's own begin here.
void Marcar() {
  (void)::access("/velda-empieza", F_OK);
}

using Guardado = decltype(&ReemplazarArchivo);

int Guardar(Guardado guardar, const QString& ruta, const QString& origen) {
  const auto contenido = LeerArchivo(origen);
  if (!contenido.Bien()) return contenido.Fallo().Codigo();
  const std::string_view todo(contenido.Valor().constData(),
                              static_cast<std::size_t>(contenido.Valor().size()));
  const std::size_t corte = todo.size() / 3;
  const std::array tramos{todo.substr(0, corte), todo.substr(corte)};
  Marcar();
  const Resultado resultado = guardar(ruta, tramos, Duracion::Sincronizada);
  if (!resultado.Bien()) std::fprintf(stderr, "%s\n", qPrintable(resultado.Motivo()));
  return resultado.Codigo();
}

int GuardarValor(const QStringList& argumentos) {
  AccesoPerfilArchivo acceso(QFileInfo(argumentos[2]).path());
  Marcar();
  acceso.EscribirCadena(argumentos[3], argumentos[4], argumentos[5].toLatin1(), argumentos[2]);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // as the program does
  QStringList argumentos;
  for (char* argumento : std::span(argv, static_cast<std::size_t>(argc))) {
    argumentos << QString::fromLocal8Bit(argumento);
  }
  if (argc == 6 && argumentos[1] == u"--perfil") return GuardarValor(argumentos);
  if (argc == 4 && argumentos[1] == u"--nuevo") {
    return Guardar(CrearOReemplazarArchivo, argumentos[2], argumentos[3]);
  }
  if (argc == 3) return Guardar(ReemplazarArchivo, argumentos[1], argumentos[2]);
  std::fputs("velda_guardar [--nuevo] RUTA ARCHIVO | --perfil RUTA SECCION CLAVE VALOR\n", stderr);
  return 255;
}
