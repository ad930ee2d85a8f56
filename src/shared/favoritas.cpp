#include "shared/favoritas.h"

#include <unistd.h>

#include "shared/descriptor.h"
#include "shared/ruta_guardada.h"
#include "shared/rutas.h"

namespace {

constexpr QStringView Registros = u"Registros";
constexpr QStringView Total = u"Total";
constexpr QStringView Datos = u"Datos";

QString Clave(int numero) {
  return u'F' + QString::number(numero);
}

// Blanks at the end of a value are the field's, unless quotes stand around it.
QString EnCampo(const QString& carpeta) {
  const QString valor = RutaAGuardar(carpeta);
  return valor == valor.trimmed() ? valor : u'"' + valor + u'"';
}

}  // namespace

std::int16_t LeerTotalFavoritas(ModGral& gral) {
  gral.perfil.Leer(gral.ArchivoFavoritas, Registros, Total, u"0");
  gral.TotalFavoritas = gral.perfil.Total();
  return gral.TotalFavoritas;
}

QStringList LeerFavoritas(ModGral& gral) {
  QStringList claves;
  const int total = LeerTotalFavoritas(gral);
  for (int i = 1; i <= total; ++i) claves << Clave(i);
  if (claves.isEmpty()) return {};
  QStringList carpetas = gral.perfil.LeerLargos(gral.ArchivoFavoritas, Datos, claves, u"");
  for (QString& carpeta : carpetas) carpeta = RutaGuardada(carpeta);
  return carpetas;
}

void GuardarFavoritas(ModGral& gral, const QStringList& carpetas) {
  gral.TotalFavoritas = static_cast<std::int16_t>(carpetas.size());
  if (carpetas.isEmpty()) {
    (void)::unlink(RutaDelSistema(gral.ArchivoFavoritas).constData());
    return;
  }
  // The list is stored whole: half of an old one and half of a new one would lose a folder. It is
  // rare and small enough to wait for the disk.
  const Perfil::Juntos juntos(gral.perfil, gral.ArchivoFavoritas, Duracion::Sincronizada);
  gral.perfil.Escribir(gral.ArchivoFavoritas, Registros, Total,
                       QString::number(gral.TotalFavoritas));
  int numero = 0;
  for (const QString& carpeta : carpetas) {
    gral.perfil.EscribirLargo(gral.ArchivoFavoritas, Datos, Clave(++numero), EnCampo(carpeta));
  }
  while (++numero <= MaximoFavoritas) {
    gral.perfil.Escribir(gral.ArchivoFavoritas, Datos, Clave(numero), u"");
  }
}
