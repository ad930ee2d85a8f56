#include "shared/opciones.h"

#include "shared/perfil.h"

namespace {

constexpr QStringView Seccion = u"Opciones";

QStringView SiNo(bool valor) {
  return valor ? u"Si" : u"No";
}

}  // namespace

void Opciones::Leer(Perfil& perfil, const QString& ruta, std::span<const Opcion> cuales) {
  constexpr Opciones nuevas;
  for (const auto& [clave, valor] : cuales) {
    perfil.Leer(ruta, Seccion, clave, SiNo(nuevas.*valor));
    this->*valor = perfil.EsSi();
  }
}

void Opciones::Escribir(Perfil& perfil, const QString& ruta, std::span<const Opcion> cuales) const {
  for (const auto& [clave, valor] : cuales) {
    perfil.EscribirBuffer(ruta, Seccion, clave, SiNo(this->*valor));
  }
}
