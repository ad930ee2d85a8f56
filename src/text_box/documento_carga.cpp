// Reading a file into a document.
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <span>
#include <utility>

#include "text_box/documento.h"

Resultado Documento::Cargar(LectorArchivo& lector, const Seguir& seguir) {
  // Counted while it is in the cache, and there soon also from a slow disk.
  constexpr std::size_t Bocado = std::size_t{256} << 10;
  Bytes nuevos;
  ContadorLineas contador;
  Utf8::Recuento recuento;
  std::size_t previstos = lector.Tamano();
  while (true) {
    const std::span<char> sitio = nuevos.ReservarFinal(std::max(previstos, Bocado));
    if (sitio.empty()) return Resultado::Fallo(ENOMEM);
    // The memory is new, so it is zero: a hole is neither read nor does it take any.
    const std::size_t hueco = lector.SaltarHueco(Bocado);
    const ResultadoCon<std::size_t> leidos = hueco > 0 ? hueco : lector.Leer(sitio.data(), Bocado);
    if (!leidos.Bien()) return leidos.Fallo();
    if (leidos.Valor() == 0) break;
    nuevos.ConfirmarFinal(leidos.Valor());
    contador.Agregar({sitio.data(), leidos.Valor()});
    recuento.Agregar({sitio.data(), leidos.Valor()});
    previstos -= std::min(previstos, leidos.Valor());
    if (seguir && !seguir(static_cast<std::size_t>(nuevos.Tamano()))) {
      return Resultado::Fallo(ECANCELED);
    }
  }
  recuento.Terminar();
  Sustituir(std::move(nuevos), contador.Terminar(), recuento);
  return {};
}
