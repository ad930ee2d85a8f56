#include "platform/unidades.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include "shared/constantes.h"
#include "shared/orden.h"
#include "shared/rutas.h"

namespace {

const std::array BasesDeUsuario{QStringLiteral("/media"), QStringLiteral("/run/media")};
const QString BaseComun = QStringLiteral("/mnt");

bool EsVolumen(const Montaje& montaje) {
  return EstaEn(montaje.punto, BaseComun) ||
         std::any_of(BasesDeUsuario.begin(), BasesDeUsuario.end(),
                     [&](const QString& base) { return EstaEn(montaje.punto, base); });
}

// "\x20" stands for a blank in the names of /dev/disk/by-label.
constexpr Escape EscapeHexadecimal{"\\x", 2, 16};

// What its owner called the volume; empty when it has no label.
QString Etiqueta(const Montaje& montaje) {
  if (!montaje.origen.startsWith(QLatin1StringView("/dev/"))) return {};
  const QString aparato = QFileInfo(montaje.origen).canonicalFilePath();
  const auto etiquetas =
      QDir(QStringLiteral("/dev/disk/by-label")).entryInfoList(QDir::System | QDir::Files);
  const auto suya = std::find_if(etiquetas.begin(), etiquetas.end(), [&](const QFileInfo& una) {
    return una.canonicalFilePath() == aparato;
  });
  return suya == etiquetas.end() ? QString()
                                 : SinEscapes(RutaDelSistema(suya->fileName()), EscapeHexadecimal);
}

// The folder in which volumes come and go, on the way to this folder: /mnt, /media/USER.
QString BaseDe(const QString& carpeta) {
  for (const QString& base : BasesDeUsuario) {
    if (carpeta.startsWith(base + SeparadorRuta)) {
      return carpeta.left(carpeta.indexOf(SeparadorRuta, base.size() + 1));
    }
  }
  return BaseComun;
}

Resultado Explicado(const Resultado& fallo, const QString& carpeta,
                    const std::vector<Montaje>& montajes) {
  const bool ausente =
      fallo.Codigo() == ENOENT && EnVolumenAusente(carpeta, BaseDe(carpeta), montajes);
  return ausente ? Resultado::Fallo(ENODEV) : fallo;
}

void Ordenar(QStringList& nombres) {
  const OrdenNombres orden;
  std::vector<std::pair<QCollatorSortKey, QString>> claves;
  claves.reserve(nombres.size());
  for (QString& nombre : nombres) {
    QCollatorSortKey clave = orden.Clave(nombre);
    claves.emplace_back(std::move(clave), std::move(nombre));
  }
  std::sort(claves.begin(), claves.end(), [](const auto& uno, const auto& otro) {
    const int comparados = uno.first.compare(otro.first);
    return comparados != 0 ? comparados < 0 : uno.second < otro.second;
  });
  std::transform(claves.begin(), claves.end(), nombres.begin(),
                 [](auto& uno) { return std::move(uno.second); });
}

}  // namespace

std::vector<Unidad> Volumenes(const std::vector<Montaje>& montajes) {
  std::vector<Unidad> volumenes;
  QSet<QString> vistos;
  for (const Montaje& montaje : montajes) {
    if (!EsVolumen(montaje) || MontajeDe(montajes, montaje.punto) != &montaje ||
        vistos.contains(montaje.dispositivo)) {
      continue;
    }
    vistos.insert(montaje.dispositivo);
    const QString etiqueta = Etiqueta(montaje);
    volumenes.push_back(
        {etiqueta.isEmpty() ? montaje.punto.section(SeparadorRuta, -1) : etiqueta, montaje.punto});
  }
  return volumenes;
}

std::vector<Unidad> UnidadesReales::Listar() {
  std::vector<Unidad> unidades{{QStringLiteral("Personal"), QDir::homePath()},
                               {QStringLiteral("Sistema"), QDir::rootPath()}};
  const std::vector<Unidad> volumenes = Volumenes(MontajesActuales());
  unidades.insert(unidades.end(), volumenes.begin(), volumenes.end());
  return unidades;
}

// Nothing here asks a network drive but the patient reader.
ResultadoCon<CarpetaLeida> UnidadesReales::Leer(const QString& carpeta, Busca que) {
  if (!QDir::isAbsolutePath(carpeta)) return Resultado::Fallo(ENOENT);
  const QString limpia = QDir::cleanPath(carpeta);
  const std::vector<Montaje> montajes = MontajesActuales();
  const Montaje* red = MontajeDeRed(montajes, limpia);
  auto leida = red != nullptr ? lector_(red->punto, limpia, que) : LeerCarpeta(limpia, que);
  if (!leida.Bien()) return Explicado(leida.Fallo(), limpia, montajes);
  Ordenar(leida.Valor().nombres);
  return leida;
}
