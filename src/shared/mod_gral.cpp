#include "shared/mod_gral.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFileInfo>
#include <QStandardPaths>

#include "shared/rutas.h"

namespace {

constexpr QLatin1StringView NombreINI("Velda.INI");
constexpr QLatin1StringView NombreFavoritas("Favoritas.INI");
constexpr std::array<QLatin1StringView, 2> CarpetasDelSistema{QLatin1StringView("/usr/"),
                                                              QLatin1StringView("/opt/")};

QString SiguiendoEnlaces(const QString& carpeta) {
  const QString real = QFileInfo(carpeta).canonicalFilePath();
  return real.isEmpty() ? carpeta : real;
}

bool EsDelUsuario(const QString& carpeta) {
  const QByteArray ruta = RutaDelSistema(carpeta);
  struct stat estado {};
  return ::stat(ruta.constData(), &estado) == 0 && estado.st_uid == ::geteuid() &&
         ::faccessat(AT_FDCWD, ruta.constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool GuardaLosDatos(const QString& carpeta_con_barra) {
  if (QFileInfo::exists(carpeta_con_barra + NombreINI)) return true;
  const bool del_sistema =
      std::any_of(CarpetasDelSistema.begin(), CarpetasDelSistema.end(),
                  [&](QLatin1StringView una) { return carpeta_con_barra.startsWith(una); });
  return !del_sistema && EsDelUsuario(carpeta_con_barra);
}

}  // namespace

QString CarpetaConfiguracion() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QLatin1StringView("/velda");
}

void EstablecerRutas(ModGral& general, const QString& carpeta_programa,
                     const QString& carpeta_configuracion) {
  general.RutaPrograma = ConBarra(SiguiendoEnlaces(carpeta_programa));
  const QString datos =
      GuardaLosDatos(general.RutaPrograma) ? general.RutaPrograma : ConBarra(carpeta_configuracion);
  general.ArchivoINI = datos + NombreINI;
  general.ArchivoFavoritas = datos + NombreFavoritas;
}
