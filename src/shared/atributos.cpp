#include "shared/atributos.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr mode_t Permisos = 07777;

bool EsDelDisco(int codigo) {
  return codigo == ENOSPC || codigo == EDQUOT || codigo == EIO;
}

// Calls a reader of extended attributes, first for the size, until both calls agree.
template <typename Lector>
ResultadoCon<std::string> LeerEntero(Lector lector) {
  while (true) {
    const ssize_t tamano = lector(nullptr, 0);
    if (tamano < 0) return Resultado::Fallo(errno);
    std::string leido(static_cast<std::size_t>(tamano), '\0');
    const ssize_t leidos = lector(leido.data(), leido.size());
    if (leidos < 0 && errno == ERANGE) continue;
    if (leidos < 0) return Resultado::Fallo(errno);
    leido.resize(static_cast<std::size_t>(leidos));
    return leido;
  }
}

ResultadoCon<std::string> LeerUno(int descriptor, const std::string& nombre) {
  return LeerEntero([&](char* destino, std::size_t maximo) {
    return ::fgetxattr(descriptor, nombre.c_str(), destino, maximo);
  });
}

ResultadoCon<std::vector<std::string>> Nombres(int descriptor) {
  auto lista = LeerEntero(
      [&](char* destino, std::size_t maximo) { return ::flistxattr(descriptor, destino, maximo); });
  std::vector<std::string> nombres;
  if (!lista.Bien() && lista.Fallo().Codigo() == EOPNOTSUPP) return nombres;
  if (!lista.Bien()) return lista.Fallo();
  for (std::size_t inicio = 0; inicio < lista.Valor().size();) {
    nombres.emplace_back(lista.Valor().c_str() + inicio);
    inicio += nombres.back().size() + 1;
  }
  return nombres;
}

Resultado PonerUno(int origen, int destino, const std::string& nombre) {
  const auto valor = LeerUno(origen, nombre);
  if (!valor.Bien()) return valor.Fallo();
  const auto presente = LeerUno(destino, nombre);
  if (presente.Bien() && presente.Valor() == valor.Valor()) return {};
  const int devuelto =
      ::fsetxattr(destino, nombre.c_str(), valor.Valor().data(), valor.Valor().size(), 0);
  return devuelto < 0 ? Resultado::Fallo(errno) : Resultado();
}

Resultado CopiarExtendidos(int origen, int destino) {
  const auto queridos = Nombres(origen);
  if (!queridos.Bien()) return queridos.Fallo();
  const auto presentes = Nombres(destino);
  if (!presentes.Bien()) return presentes.Fallo();
  for (const std::string& nombre : presentes.Valor()) {
    const auto& todos = queridos.Valor();
    if (std::find(todos.begin(), todos.end(), nombre) != todos.end()) continue;
    if (::fremovexattr(destino, nombre.c_str()) < 0) return Resultado::Fallo(errno);
  }
  for (const std::string& nombre : queridos.Valor()) {
    const Resultado puesto = PonerUno(origen, destino, nombre);
    if (!puesto.Bien()) return puesto;
  }
  return {};
}

bool MismoDueno(const struct stat& uno, const struct stat& otro) {
  return uno.st_uid == otro.st_uid && uno.st_gid == otro.st_gid;
}

Resultado CopiarTodo(int origen, int destino) {
  const auto querido = EstadoDeArchivo(origen);
  if (!querido.Bien()) return querido.Fallo();
  const auto presente = EstadoDeArchivo(destino);
  if (!presente.Bien()) return presente.Fallo();
  const struct stat& estado = querido.Valor();
  // A change of owner clears permission bits, so the permissions come last.
  if (!MismoDueno(estado, presente.Valor()) &&
      ::fchown(destino, estado.st_uid, estado.st_gid) < 0) {
    return Resultado::Fallo(errno);
  }
  const Resultado extendidos = CopiarExtendidos(origen, destino);
  if (!extendidos.Bien()) return extendidos;
  if (::fchmod(destino, estado.st_mode & Permisos) < 0) return Resultado::Fallo(errno);
  const auto final = EstadoDeArchivo(destino);
  if (!final.Bien()) return final.Fallo();
  const bool igual = MismoDueno(estado, final.Valor()) && estado.st_mode == final.Valor().st_mode;
  return igual ? Resultado() : Resultado::Fallo(EPERM);
}

}  // namespace

ResultadoCon<Copia> CopiarAtributos(int origen, int destino) {
  const Resultado resultado = CopiarTodo(origen, destino);
  if (EsDelDisco(resultado.Codigo())) return resultado;
  return resultado.Bien() ? Copia::Completa : Copia::Imposible;
}
