#include "shared/en_sitio.h"

#include <cerrno>
#include <fcntl.h>

namespace {

std::size_t Suma(std::span<const std::string_view> tramos) {
  std::size_t suma = 0;
  for (const std::string_view tramo : tramos) suma += tramo.size();
  return suma;
}

Resultado Reservar(int descriptor, std::size_t tamano) {
  if (tamano == 0) return {};
  const int devuelto = Repetir(
      [&] { return ::fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(tamano)); });
  const bool no_hay = errno == EOPNOTSUPP || errno == ENOSYS || errno == EINVAL;
  return devuelto == 0 || no_hay ? Resultado() : Resultado::Fallo(errno);
}

Resultado Escribir(int descriptor, std::span<const std::string_view> tramos, Duracion duracion) {
  const Resultado escrito = EscribirTodo(descriptor, tramos);
  if (!escrito.Bien()) return escrito;
  const Resultado truncado = Truncar(descriptor, Suma(tramos));
  if (!truncado.Bien() || duracion == Duracion::SinSincronizar) return truncado;
  return Sincronizar(descriptor);
}

}  // namespace

FalloEnSitio EscribirEnSitio(int descriptor, std::span<const std::string_view> tramos,
                             Duracion duracion) {
  const auto estado = EstadoDeArchivo(descriptor);
  if (!estado.Bien()) return {estado.Fallo()};
  const auto antes = LeerTodo(descriptor, static_cast<std::size_t>(estado.Valor().st_size));
  if (!antes.Bien()) return {antes.Fallo()};
  const std::string_view viejo(antes.Valor().constData(),
                               static_cast<std::size_t>(antes.Valor().size()));

  const Resultado reservado = Reservar(descriptor, Suma(tramos));
  if (!reservado.Bien()) {
    // Nothing is written yet; this only gives back what was reserved of the space.
    (void)Truncar(descriptor, viejo.size());
    return {reservado};
  }
  const Resultado escrito = Escribir(descriptor, tramos, duracion);
  if (escrito.Bien()) return {};
  return {escrito, Escribir(descriptor, std::span(&viejo, 1), duracion).Bien()};
}
