#include "text_box/curvas.h"

#include <string_view>

#include "text_box/lector_texto.h"

namespace {

constexpr std::size_t PorGrupo = Sumas::PorGrupo;

}  // namespace

void Curvas::Reiniciar(const Avances& avances) {
  pluma_ = Pluma(avances);
  bloques_.assign(lineas_->Bloques().Bloques(), {});
  grupos_.assign(bloques_.size() / PorGrupo, {-1, SinTab});
}

void Curvas::Empalmar(const Lineas::Empalme& empalme) {
  EmpalmarVector(bloques_, empalme, {});
  const std::size_t tocados = (empalme.desde + empalme.viejos + PorGrupo - 1) / PorGrupo;
  grupos_.resize(bloques_.size() / PorGrupo, {-1, SinTab});
  // With more blocks or fewer all groups behind are others.
  const std::size_t hasta = empalme.viejos == empalme.nuevos ? tocados : grupos_.size();
  for (std::size_t i = empalme.desde / PorGrupo; i < std::min(hasta, grupos_.size()); ++i) {
    grupos_[i].antes = -1;
  }
}

// What is drawn in these blocks may be other than it was.
void Curvas::Olvidar(std::size_t desde, std::size_t hasta) {
  for (std::size_t i = desde; i < std::min(hasta, bloques_.size()); ++i) {
    bloques_[i] = {};
    if (i / PorGrupo < grupos_.size()) grupos_[i / PorGrupo].antes = -1;
  }
}

Curvas::Puesto Curvas::Pasar(const Puesto& puesto, std::size_t ultimo) const {
  if (puesto.bloque % PorGrupo != 0 || puesto.bloque + PorGrupo > ultimo) {
    return PasarBloque(puesto);
  }
  const std::size_t grupo = puesto.bloque / PorGrupo;
  return {puesto.bloque + PorGrupo, puesto.pos + lineas_->Bloques().BytesDeGrupo(grupo),
          Aplicar(DeGrupo(grupo, puesto.pos), puesto.x)};
}

Curvas::Puesto Curvas::PasarBloque(const Puesto& puesto) const {
  return {puesto.bloque + 1, puesto.pos + Largo(puesto.bloque),
          Aplicar(DeBloque(puesto.bloque, puesto.pos), puesto.x)};
}

bool Curvas::Preparar(std::size_t bloque, Posicion pos, Posicion fin, int& bloques) const {
  while (pos < fin) {
    const std::size_t grupo = bloque / PorGrupo;
    const bool entero = bloque % PorGrupo == 0 && grupo < grupos_.size() &&
                        pos + lineas_->Bloques().BytesDeGrupo(grupo) < fin;
    const std::size_t paso = entero ? PorGrupo : 1;
    const Posicion largo = entero ? lineas_->Bloques().BytesDeGrupo(grupo) : Largo(bloque);
    const bool listo = entero ? grupos_[grupo].antes >= 0
                              : bloques_[bloque].antes != SinCalcular || pos + largo >= fin;
    if (!listo) {
      if (bloques <= 0) return false;
      bloques -= static_cast<int>(paso);
      if (entero) {
        DeGrupo(grupo, pos);
      } else {
        DeBloque(bloque, pos);
      }
    }
    pos += largo;
    bloque += paso;
  }
  return true;
}

Curvas::Curva Curvas::DeBloque(std::size_t bloque, Posicion pos) const {
  Guardada& guardada = bloques_[bloque];
  if (guardada.antes == SinCalcular) {
    const Curva curva = Calcular(pos, pos + Largo(bloque));
    guardada = {static_cast<std::uint32_t>(curva.antes), static_cast<std::uint32_t>(curva.despues)};
  }
  const bool con_tab = guardada.despues != static_cast<std::uint32_t>(SinTab);
  return {guardada.antes, con_tab ? Punto{guardada.despues} : SinTab};
}

const Curvas::Curva& Curvas::DeGrupo(std::size_t grupo, Posicion pos) const {
  Curva& curva = grupos_[grupo];
  if (curva.antes >= 0) return curva;
  curva = {0, SinTab};
  for (std::size_t i = grupo * PorGrupo; i < (grupo + 1) * PorGrupo; ++i) {
    curva = Componer(curva, DeBloque(i, pos));
    pos += Largo(i);
  }
  return curva;
}

Curvas::Curva Curvas::Calcular(Posicion desde, Posicion hasta) const {
  const LectorTexto texto(*texto_);
  Posicion tab = desde;
  while (tab < hasta) {
    const std::string_view tramo = texto.Tramo(tab, hasta);
    const std::size_t donde = tramo.find('\t');
    tab += static_cast<Posicion>(std::min(donde, tramo.size()));
    if (donde != std::string_view::npos) break;
  }
  const Punto antes = pluma_.Medir(texto, desde, tab, 0, pluma_.InicioDeTramo(texto, desde));
  return {antes, tab == hasta ? SinTab : pluma_.Medir(texto, tab + 1, hasta, 0)};
}

Punto Curvas::Aplicar(const Curva& curva, Punto x) const {
  x += curva.antes;
  return curva.despues == SinTab ? x : pluma_.Tabular(x) + curva.despues;
}

Curvas::Curva Curvas::Componer(const Curva& primera, const Curva& segunda) const {
  if (primera.despues == SinTab) return {primera.antes + segunda.antes, segunda.despues};
  return {primera.antes, Aplicar(segunda, primera.despues)};
}
