#include "text_box/azar.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

std::vector<std::string> Alfabeto(const std::string& bytes) {
  std::vector<std::string> alfabeto;
  for (const char byte : bytes) alfabeto.emplace_back(1, byte);
  return alfabeto;
}

// Of every length and class: letters, marks, a joiner, joining letters, ideographs, their signs.
const std::vector<std::string> Escrituras = {
    "a",      " ",      "\n",     "\u00f1", "\u0301",     "\u0416", "\u200d", "\u0628", "\u0645",
    "\u4e2d", "\u6587", "\u3001", "\u300c", "\U0001f600", "b",      "\t",     "\u0301"};

}  // namespace

Azar::Azar(std::uint64_t semilla) : azar_(semilla) {
  const std::array<std::string, 8> alfabetos = {
      "ab",    "abcd ",         "\n",           "\r\n",
      "ab \t", "abcdefgh   \n", "ab\t \r\nWi.", std::string("a\0\xff \r\n\t", 7)};
  alfabeto_ = Alfabeto(alfabetos[static_cast<std::size_t>(Hasta(7))] +
                       alfabetos[static_cast<std::size_t>(Hasta(7))]);
  utf8_ = semilla % 3 != 0;
  for (std::int64_t n = utf8_ ? 1 + Hasta(15) : 0; n > 0; --n) {
    alfabeto_.push_back(Escrituras[static_cast<std::size_t>(Hasta(std::ssize(Escrituras) - 1))]);
  }
  if (semilla % 3 == 2) {  // with faults
    for (const char byte : std::string("\xc3\xe4\xb8\xed\xa0\xf0\x9f\xc0\x80\xff")) {
      alfabeto_.emplace_back(1, byte);
    }
  }
  tamano_ = 20 << Hasta(7);
  const int bloque = 4 << Hasta(5);
  medidas_ = {bloque, 8 << Hasta(4), 4 << Hasta(5), 8 << Hasta(5), 4 << Hasta(6)};
  if (Hasta(7) == 0) medidas_ = {};
  lineas_ = std::make_unique<Lineas>(texto_, bloque);
  for (int i = 0; i < 2; ++i) {
    parejas_.push_back({std::make_unique<Filas>(texto_, *lineas_, medidas_), {}, 1});
  }
  parejas_.push_back({std::make_unique<RenglonesLineas>(texto_, *lineas_, Hasta(3) * 8), {}, 0});
  for (Pareja& pareja : parejas_) Reconfigurar(pareja);
}

std::int64_t Azar::Hasta(std::int64_t maximo) {
  return static_cast<std::int64_t>(azar_() % static_cast<std::uint64_t>(maximo + 1));
}

Avances Azar::UnosAvances() {
  Avances avances;
  const std::int64_t clase = Hasta(3);  // all alike, of any width, mostly without width, few odd
  const auto unico = static_cast<std::int32_t>(1 + Hasta(700));
  for (std::int32_t& ancho : avances.ancho) {
    ancho = unico;
    if (clase == 1) ancho = static_cast<std::int32_t>(Hasta(700));
    if (clase == 2 && Hasta(3) > 0) ancho = 0;
    if (clase == 3 && Hasta(9) == 0) ancho = static_cast<std::int32_t>(Hasta(3000));
  }
  avances.tabulador = static_cast<std::int32_t>(1 + Hasta(5000));
  if (utf8_) avances.signos = std::make_shared<ingenuo::Letras>(avances, unico);
  return avances;
}

std::string Azar::UnTexto() {
  std::string texto;
  const std::int64_t n = Hasta(2) > 0 ? Hasta(3) : Hasta(tamano_ / 4);
  while (std::ssize(texto) < n) {
    const std::string& letra =
        alfabeto_[static_cast<std::size_t>(Hasta(std::ssize(alfabeto_) - 1))];
    for (std::int64_t i = Hasta(9) == 0 ? 1 + Hasta(40) : 1; i > 0; --i) texto += letra;
  }
  return texto;
}

void Azar::Reconfigurar(Pareja& pareja) {
  pareja.avances = UnosAvances();
  if (auto* filas = dynamic_cast<Filas*>(pareja.renglones.get())) {
    pareja.ancho = 1 + Hasta(100 << Hasta(9));
    filas->Configurar(pareja.avances, pareja.ancho);
  } else {
    dynamic_cast<RenglonesLineas&>(*pareja.renglones).Configurar(pareja.avances);
  }
}

void Azar::Editar() {
  const std::int64_t n = std::ssize(cierto_);
  const Posicion pos = Hasta(3) == 0 ? std::min(n, Hasta(30)) : Hasta(n);
  Posicion quitados = Hasta(2) > 0 ? Hasta(2) : Hasta(n > tamano_ ? n : n / 8);
  quitados = std::min(quitados, n - pos);
  const std::string nuevos = Hasta(4) == 0 ? std::string() : UnTexto();
  Exigir(texto_.Reemplazar(pos, quitados, nuevos), "Reemplazar");
  cierto_.replace(static_cast<std::size_t>(pos), static_cast<std::size_t>(quitados), nuevos);
  const Cambio cambio{pos, quitados, std::ssize(nuevos)};
  lineas_->Reemplazado(cambio);
  for (Pareja& pareja : parejas_) pareja.renglones->Reemplazado(cambio);
}

void Azar::Paso() {
  Editar();
  if (Hasta(15) == 0) {
    std::string copia(cierto_.size(), '?');
    texto_.Copiar(0, texto_.Tamano(), copia.data());
    Exigir(texto_.Tamano() == std::ssize(cierto_) && copia == cierto_, "text");
  }
  ComprobarLineas();
  for (Pareja& pareja : parejas_) {
    if (Hasta(50) == 0) Reconfigurar(pareja);
    if (Hasta(2) == 0) pareja.renglones->Avanzar(0);
    if (Hasta(2) == 0) continue;  // most of what is unknown stays so for a while
    const ingenuo::Inicios inicios = Inicios(pareja);
    for (std::int64_t i = Hasta(2); i >= 0; --i) {
      ComprobarLugar(pareja, inicios, Hasta(std::ssize(cierto_)));
    }
  }
  if (Hasta(15) == 0) ComprobarTodo(parejas_[static_cast<std::size_t>(Hasta(2))]);
}

void Azar::Exigir(bool cierto, const char* que) const {
  if (!cierto) throw std::runtime_error(que);
}

ingenuo::Inicios Azar::Inicios(const Pareja& pareja) const {
  if (pareja.ancho == 0) return ingenuo::Lineas(cierto_);
  return ingenuo::Filas(cierto_, pareja.avances, pareja.ancho, medidas_.maximo_fila);
}

void Azar::ComprobarLineas() {
  const ingenuo::Inicios inicios = ingenuo::Lineas(cierto_);
  Exigir(lineas_->Total() == std::ssize(inicios), "Lineas::Total");
  const Posicion pos = Hasta(std::ssize(cierto_));
  const std::size_t i = ingenuo::Indice(inicios, pos);
  Exigir(lineas_->Linea(pos) == static_cast<std::int64_t>(i), "Lineas::Linea");
  Exigir(lineas_->Inicio(static_cast<std::int64_t>(i)) == inicios[i], "Lineas::Inicio");
  Exigir(lineas_->InicioDe(pos) == inicios[i], "Lineas::InicioDe");
  Exigir(lineas_->FinDe(pos) == ingenuo::Fin(cierto_, inicios, i), "Lineas::FinDe");
  Exigir(lineas_->Siguiente(pos) == (i + 1 < inicios.size() ? inicios[i + 1] : -1),
         "Lineas::Siguiente");
  Exigir(lineas_->Anterior(pos) == (i > 0 ? inicios[i - 1] : -1), "Lineas::Anterior");
}

void Azar::ComprobarLugar(const Pareja& pareja, const ingenuo::Inicios& inicios, Posicion pos) {
  const Renglones& renglones = *pareja.renglones;
  const std::size_t i = ingenuo::Indice(inicios, pos);
  const Posicion inicio = inicios[i];
  const Posicion fin = ingenuo::Fin(cierto_, inicios, i);
  const std::int64_t indice = renglones.Indice(Hasta(std::ssize(cierto_)));
  Exigir(indice >= 0 && indice < renglones.Total(), "Indice in range");
  const Posicion supuesto = renglones.PosicionDe(Hasta(renglones.Total() - 1));
  Exigir(std::binary_search(inicios.begin(), inicios.end(), supuesto), "PosicionDe a start");
  Exigir(renglones.InicioDe(pos) == inicio, "InicioDe");
  Exigir(renglones.FinDe(inicio) == fin, "FinDe");
  const Posicion siguiente = i + 1 < inicios.size() ? inicios[i + 1] : -1;
  Exigir(renglones.Siguiente(inicio) == siguiente, "Siguiente");
  Exigir(renglones.Anterior(inicio) == (i > 0 ? inicios[i - 1] : -1), "Anterior");
  ComprobarEquis(pareja, inicios, i);
  if (!renglones.Completo()) return;
  Exigir(renglones.Total() == std::ssize(inicios), "Total");
  Exigir(renglones.Indice(pos) == static_cast<std::int64_t>(i), "Indice");
  Exigir(renglones.PosicionDe(static_cast<std::int64_t>(i)) == inicio, "PosicionDe");
}

void Azar::ComprobarEquis(const Pareja& pareja, const ingenuo::Inicios& inicios, std::size_t i) {
  const Renglones& renglones = *pareja.renglones;
  const Posicion inicio = inicios[i];
  const Posicion fin = ingenuo::Fin(cierto_, inicios, i);
  const std::vector<Punto> equis = ingenuo::Equis(cierto_, pareja.avances, inicio, fin);
  const Posicion pos = inicio + Hasta(fin - inicio);
  Exigir(renglones.XDe(inicio, pos) == equis[static_cast<std::size_t>(pos - inicio)], "XDe");

  const Punto x = Hasta(3) == 0 ? equis[static_cast<std::size_t>(pos - inicio)]
                                : Hasta(equis.back() + 100) - 10;
  const auto mayor = std::upper_bound(equis.begin() + 1, equis.end(), x);
  const std::int64_t cerca = mayor - equis.begin() - 1;
  const Renglones::Corte corte = renglones.CorteEnX(inicio, x);
  Exigir(corte.pos == inicio + cerca && corte.x == equis[static_cast<std::size_t>(cerca)],
         "CorteEnX");
  const ingenuo::Inicios lugares = ingenuo::Lugares(cierto_, pareja.avances, inicio, fin);
  auto lugar = std::upper_bound(lugares.begin(), lugares.end(), inicio + cerca);
  const bool sigue = mayor != equis.end() && *mayor - x <= x - *(mayor - 1);
  if (!sigue) --lugar;
  const bool rota = i + 1 < inicios.size() && inicios[i + 1] == fin && lugares.size() > 1;
  if (rota && *lugar == fin) --lugar;
  Exigir(renglones.PosicionEnX(inicio, x) == *lugar, "PosicionEnX");
}

void Azar::ComprobarTodo(const Pareja& pareja) {
  Renglones& renglones = *pareja.renglones;
  while (!renglones.Avanzar(1)) continue;
  const ingenuo::Inicios inicios = Inicios(pareja);
  Exigir(renglones.Total() == std::ssize(inicios), "Total in the end");
  Punto ancho = pareja.ancho;
  for (std::size_t i = 0; i < inicios.size(); ++i) {
    Exigir(renglones.PosicionDe(static_cast<std::int64_t>(i)) == inicios[i], "every row");
    if (pareja.ancho > 0) continue;
    const Posicion fin = ingenuo::Fin(cierto_, inicios, i);
    ancho = std::max(ancho, ingenuo::Equis(cierto_, pareja.avances, inicios[i], fin).back());
  }
  Exigir(renglones.AnchoMaximo() == ancho, "AnchoMaximo");
}
