#include "platform/montajes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <unistd.h>

#include <QStringList>

#include "shared/archivo.h"
#include "shared/constantes.h"
#include "shared/rutas.h"

namespace {

constexpr std::array<QLatin1StringView, 16> TiposDeRed{
    QLatin1StringView("9p"),       QLatin1StringView("afs"),   QLatin1StringView("autofs"),
    QLatin1StringView("ceph"),     QLatin1StringView("cifs"),  QLatin1StringView("coda"),
    QLatin1StringView("davfs"),    QLatin1StringView("fuse"),  QLatin1StringView("gfs2"),
    QLatin1StringView("lustre"),   QLatin1StringView("ncpfs"), QLatin1StringView("nfs"),
    QLatin1StringView("nfs4"),     QLatin1StringView("smb3"),  QLatin1StringView("smbfs"),
    QLatin1StringView("virtiofs"),
};

// Blanks, line ends and backslashes stand there as "\040".
constexpr Escape EscapeOctal{"\\", 3, 8};

// Where a symbolic link leads; empty when the path is none.
QString Destino(const QString& ruta) {
  std::array<char, PATH_MAX> destino{};
  const ssize_t largo =
      ::readlink(RutaDelSistema(ruta).constData(), destino.data(), destino.size());
  return largo <= 0 ? QString() : RutaComoTexto(QByteArrayView(destino.data(), largo));
}

QStringList Partes(const QString& ruta) {
  return ruta.split(SeparadorRuta, Qt::SkipEmptyParts);
}

}  // namespace

QString SinEscapes(QByteArrayView texto, const Escape& escape) {
  const auto cuantos = escape.marca.size() + escape.cifras;
  QByteArray bytes;
  while (!texto.isEmpty()) {
    unsigned numero = 0;
    const bool cabe = texto.startsWith(escape.marca) && texto.size() >= cuantos;
    const char* fin = texto.data() + (cabe ? cuantos : 0);
    const bool es =
        cabe &&
        std::from_chars(texto.data() + escape.marca.size(), fin, numero, escape.base).ptr == fin;
    bytes += es ? static_cast<char>(numero) : texto.front();
    texto = texto.sliced(es ? cuantos : 1);
  }
  return RutaComoTexto(bytes);
}

std::vector<Montaje> LeerMontajes(QByteArrayView contenido) {
  constexpr int CamposAntes = 6;  // then optional ones up to a "-", then type and source
  std::vector<Montaje> montajes;
  for (const QByteArray& linea : contenido.toByteArray().split('\n')) {
    const QList<QByteArray> campos = linea.split(' ');
    const qsizetype raya = campos.indexOf("-", CamposAntes);
    if (raya < 0 || raya + 2 >= campos.size()) continue;
    montajes.push_back({QString::fromLatin1(campos[2]), SinEscapes(campos[4], EscapeOctal),
                        SinEscapes(campos[raya + 1], EscapeOctal),
                        SinEscapes(campos[raya + 2], EscapeOctal)});
  }
  return montajes;
}

std::vector<Montaje> MontajesActuales() {
  const auto contenido = LeerArchivo(QStringLiteral("/proc/self/mountinfo"));
  return contenido.Bien() ? LeerMontajes(contenido.Valor()) : std::vector<Montaje>();
}

bool EsDeRed(const Montaje& montaje) {
  return montaje.tipo.startsWith(QLatin1StringView("fuse.")) ||
         std::find(TiposDeRed.begin(), TiposDeRed.end(), montaje.tipo) != TiposDeRed.end();
}

bool EstaEn(const QString& ruta, const QString& carpeta) {
  return ruta == carpeta || ruta.startsWith(ConBarra(carpeta));
}

const Montaje* MontajeDe(const std::vector<Montaje>& montajes, const QString& ruta) {
  const Montaje* mejor = nullptr;
  for (const Montaje& montaje : montajes) {
    if (EstaEn(ruta, montaje.punto) &&
        (mejor == nullptr || montaje.punto.size() >= mejor->punto.size())) {
      mejor = &montaje;
    }
  }
  return mejor;
}

const Montaje* MontajeDeRed(const std::vector<Montaje>& montajes, const QString& ruta) {
  QStringList pendientes = Partes(ruta);
  QString hecho;  // without the slash at its end
  int enlaces = 0;
  while (!pendientes.isEmpty() && enlaces <= MaximoEnlaces) {
    const QString parte = pendientes.takeFirst();
    if (parte == QLatin1StringView("..")) {
      hecho.truncate(std::max<qsizetype>(hecho.lastIndexOf(SeparadorRuta), 0));
    }
    if (parte == QLatin1StringView(".") || parte == QLatin1StringView("..")) continue;
    const QString siguiente = hecho + SeparadorRuta + parte;
    const Montaje* montaje = MontajeDe(montajes, siguiente);
    if (montaje != nullptr && EsDeRed(*montaje)) return montaje;
    const QString destino = Destino(siguiente);
    enlaces += destino.isEmpty() ? 0 : 1;
    if (destino.isEmpty()) {
      hecho = siguiente;
    } else if (destino.startsWith(SeparadorRuta)) {
      hecho.clear();
    }
    pendientes = Partes(destino) + pendientes;
  }
  return nullptr;
}
