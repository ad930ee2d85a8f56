// Reading a file into a document.
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <span>
#include <utility>

#include "text_box/documento.h"

Resultado Documento::Cargar(LectorArchivo& lector) {
  constexpr std::size_t Bocado = std::size_t{1} << 20;  // counted while it is in the cache
  Bytes nuevos;
  ContadorLineas contador;
  std::size_t previstos = lector.Tamano();
  while (true) {
    const std::span<char> sitio = nuevos.ReservarFinal(std::max(previstos, Bocado));
    if (sitio.empty()) return Resultado::Fallo(ENOMEM);
    const ResultadoCon<std::size_t> leidos = lector.Leer(sitio.data(), Bocado);
    if (!leidos.Bien()) return leidos.Fallo();
    if (leidos.Valor() == 0) break;
    nuevos.ConfirmarFinal(leidos.Valor());
    contador.Agregar({sitio.data(), leidos.Valor()});
    previstos -= std::min(previstos, leidos.Valor());
  }
  Sustituir(std::move(nuevos), contador.Terminar());
  return {};
}
