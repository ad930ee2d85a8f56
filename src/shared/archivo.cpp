#include "shared/archivo.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <utility>

#include "shared/reemplazo.h"
#include "shared/rutas.h"

namespace {

constexpr int SoloLectura = O_RDONLY | O_NONBLOCK | O_NOCTTY;
constexpr unsigned PermisosNuevos = 0666;
constexpr std::size_t MaximoSinTamano = std::size_t{1} << 24;
constexpr off_t BytesBloque = 512;  // of st_blocks

// What is no regular file is not even opened: opening alone can block or act on a device.
Resultado ExigirRegularSiExiste(const char* ruta) {
  struct stat estado {};
  return ::stat(ruta, &estado) == 0 ? ExigirRegular(estado) : Resultado();
}

Resultado Reemplazar(const QString& ruta, const Reemplazo& reemplazo, bool puede_ser_nuevo) {
  const QByteArray del_sistema = RutaDelSistema(ruta);
  Resultado resultado;
  for (int intento = 0; intento < MaximoIntentos; ++intento) {
    resultado = ReemplazarExistente(del_sistema.constData(), reemplazo);
    if (resultado.Codigo() == ENOENT && puede_ser_nuevo) {
      resultado = CrearNuevo(del_sistema.constData(), reemplazo);
    }
    if (resultado.Codigo() != ESTALE && resultado.Codigo() != EEXIST) break;
  }
  return resultado;
}

}  // namespace

ResultadoCon<LectorArchivo> LectorArchivo::Abrir(const QString& ruta, SiFalta si_falta) {
  const QByteArray del_sistema = RutaDelSistema(ruta);
  const Resultado regular = ExigirRegularSiExiste(del_sistema.constData());
  if (!regular.Bien()) return regular;
  auto abierto = AbrirDescriptor(AT_FDCWD, del_sistema.constData(), SoloLectura);
  if (!abierto.Bien() && abierto.Fallo().Codigo() == ENOENT && si_falta == SiFalta::Crear) {
    abierto =
        AbrirDescriptor(AT_FDCWD, del_sistema.constData(), SoloLectura | O_CREAT, PermisosNuevos);
  }
  if (!abierto.Bien()) return abierto.Fallo();
  const auto estado = EstadoDeArchivo(abierto.Valor().Numero());
  if (!estado.Bien()) return estado.Fallo();
  const Resultado sigue = ExigirRegular(estado.Valor());
  if (!sigue.Bien()) return sigue;
  LectorArchivo lector;
  lector.descriptor_ = std::move(abierto.Valor());
  lector.tamano_ = static_cast<std::size_t>(estado.Valor().st_size);
  lector.quedan_ = lector.tamano_ == 0 ? MaximoSinTamano : lector.tamano_;
  lector.tiene_huecos_ = estado.Valor().st_blocks * BytesBloque < estado.Valor().st_size;
  return lector;
}

ResultadoCon<std::size_t> LectorArchivo::Leer(char* destino, std::size_t maximo) {
  const auto leidos = LeerEn(descriptor_.Numero(), destino, std::min(maximo, quedan_));
  if (!leidos.Bien()) return leidos;
  const Resultado cabe = Descontar(leidos.Valor());
  if (!cabe.Bien()) return cabe;
  return leidos;
}

std::size_t LectorArchivo::SaltarHueco(std::size_t maximo) {
  const off_t aqui = tiene_huecos_ ? ::lseek(descriptor_.Numero(), 0, SEEK_CUR) : -1;
  if (aqui < 0) return 0;
  const off_t datos = ::lseek(descriptor_.Numero(), aqui, SEEK_DATA);
  const bool hasta_el_final = datos < 0 && errno == ENXIO;
  const off_t fin = hasta_el_final ? static_cast<off_t>(tamano_) : datos;
  if (fin <= aqui) return 0;
  const off_t tope = std::min(fin, aqui + static_cast<off_t>(std::min(maximo, quedan_)));
  ::lseek(descriptor_.Numero(), tope, SEEK_SET);
  const auto saltados = static_cast<std::size_t>(tope - aqui);
  quedan_ -= saltados;
  return saltados;
}

ResultadoCon<QByteArray> LectorArchivo::LeerResto() {
  auto leido = LeerTodo(descriptor_.Numero(), quedan_);
  if (!leido.Bien()) return leido;
  const Resultado cabe = Descontar(static_cast<std::size_t>(leido.Valor().size()));
  if (!cabe.Bien()) return cabe;
  return leido;
}

Resultado LectorArchivo::Descontar(std::size_t leidos) {
  quedan_ -= leidos;
  return tamano_ == 0 && quedan_ == 0 ? Resultado::Fallo(EFBIG) : Resultado();
}

ResultadoCon<QByteArray> LeerArchivo(const QString& ruta) {
  auto lector = LectorArchivo::Abrir(ruta, LectorArchivo::SiFalta::Fallar);
  if (!lector.Bien()) return lector.Fallo();
  return lector.Valor().LeerResto();
}

QStringList CopiasDeGuardado(const QString& ruta) {
  QStringList copias;
  for (const std::string& una : CopiasDe(RutaDelSistema(ruta).constData())) {
    copias << RutaComoTexto(una);
  }
  return copias;
}

Resultado ReemplazarArchivo(const QString& ruta, std::span<const std::string_view> tramos,
                            Duracion duracion) {
  return Reemplazar(ruta, {tramos, duracion}, false);
}

Resultado CrearOReemplazarArchivo(const QString& ruta, std::span<const std::string_view> tramos,
                                  Duracion duracion) {
  return Reemplazar(ruta, {tramos, duracion}, true);
}
