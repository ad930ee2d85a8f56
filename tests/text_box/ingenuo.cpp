#include "text_box/ingenuo.h"

#include <algorithm>
#include <array>
#include <bit>

namespace ingenuo {
namespace {

// The length of the line end at `i`; 0 when there is none.
std::size_t FinDeLinea(const std::string& texto, std::size_t i) {
  if (texto.compare(i, 2, "\r\n") == 0) return 2;
  return i < texto.size() && (texto[i] == '\n' || texto[i] == '\r') ? 1 : 0;
}

// What the caret steps over, with its first character; line ends aside.
struct Racimo {
  std::size_t desde = 0;
  std::size_t hasta = 0;
  Punto ancho = 0;
  const Signos::Signo* signo = nullptr;
};

// The clusters from `i` to the end of the line, but none that starts at `tope` or behind.
std::vector<Racimo> Racimos(const std::string& texto, const Avances& avances, std::size_t i,
                            std::size_t tope) {
  std::vector<Racimo> racimos;
  Signos* signos = avances.signos.get();
  while (i < std::min(tope, texto.size()) && FinDeLinea(texto, i) == 0) {
    const auto byte = static_cast<unsigned char>(texto[i]);
    if (signos == nullptr) {
      racimos.push_back({i, i + 1, avances.ancho[byte]});
      ++i;
      continue;
    }
    // As many characters as belong together.
    std::size_t fin = i;
    std::size_t cuantos = 0;
    const Signos::Signo* antes = nullptr;
    for (; fin < texto.size() && cuantos < Signos::MaximoTramo; ++cuantos) {
      const Utf8::Caracter caracter = Leer(texto, fin);
      const Signos::Signo& signo = signos->De(caracter.codigo);
      if (antes && (caracter.codigo < 0x80 || !Signos::Pegado(*antes, signo))) break;
      antes = &signo;
      fin += caracter.largo;
    }
    if (cuantos == 1) {
      racimos.push_back({i, fin, byte < 0x80 ? avances.ancho[byte] : antes->ancho, antes});
    } else {
      std::size_t pos = i;
      for (const Signos::Racimo& racimo : signos->Medir(texto.substr(i, fin - i))) {
        racimos.push_back(
            {pos, pos + racimo.bytes, racimo.ancho, &signos->De(Leer(texto, pos).codigo)});
        pos += racimo.bytes;
      }
    }
    i = fin;
  }
  return racimos;
}

Punto Mover(const std::string& texto, const Avances& avances, const Racimo& racimo, Punto x) {
  if (texto[racimo.desde] == '\t') return (x / avances.tabulador + 1) * avances.tabulador;
  return x + racimo.ancho;
}

// Where the row that starts at `inicio` is over; past its line end, if it has one.
std::size_t Romper(const std::string& texto, const Avances& avances, Punto ancho,
                   std::size_t maximo, std::size_t inicio) {
  Punto x = 0;
  std::size_t corte = inicio;  // behind the last blank or tab, beside the last ideograph
  std::size_t i = inicio;
  const Racimo* antes = nullptr;
  const std::vector<Racimo> racimos = Racimos(texto, avances, inicio, inicio + maximo + 1);
  for (const Racimo& racimo : racimos) {
    i = racimo.desde;
    if (i - inicio >= maximo) return i;
    if (antes && antes->signo && Signos::Rompible(*antes->signo, *racimo.signo)) corte = i;
    x = Mover(texto, avances, racimo, x);
    const bool fuera = x > ancho && i > inicio;
    const bool blanco = texto[i] == ' ' && racimo.hasta == i + 1;
    if (fuera && texto[i] == '\t') return i;
    if (fuera && !blanco) return corte > inicio ? corte : i;
    if (racimo.hasta - inicio > maximo && i > inicio) return i;
    i = racimo.hasta;
    if (blanco || texto[racimo.desde] == '\t') corte = i;
    antes = &racimo;
  }
  return i + FinDeLinea(texto, i);
}

}  // namespace

Inicios Lineas(const std::string& texto) {
  Inicios inicios{0};
  for (std::size_t i = 0; i < texto.size();) {
    const std::size_t fin = FinDeLinea(texto, i);
    i += std::max<std::size_t>(fin, 1);
    if (fin > 0) inicios.push_back(static_cast<Posicion>(i));
  }
  return inicios;
}

Inicios Filas(const std::string& texto, const Avances& avances, Punto ancho, Posicion maximo) {
  Inicios inicios{0};
  if (texto.empty()) return inicios;
  std::size_t i = 0;
  while (true) {
    i = Romper(texto, avances, ancho, static_cast<std::size_t>(maximo), i);
    if (i == texto.size()) break;
    inicios.push_back(static_cast<Posicion>(i));
  }
  if (texto.back() == '\n' || texto.back() == '\r') inicios.push_back(static_cast<Posicion>(i));
  return inicios;
}

Posicion Fin(const std::string& texto, const Inicios& inicios, std::size_t i) {
  const Posicion fin =
      i + 1 < inicios.size() ? inicios[i + 1] : static_cast<Posicion>(texto.size());
  for (Posicion pos = inicios[i]; pos < fin; ++pos) {
    if (FinDeLinea(texto, static_cast<std::size_t>(pos)) > 0) return pos;
  }
  return fin;
}

std::size_t Indice(const Inicios& inicios, Posicion pos) {
  return static_cast<std::size_t>(std::upper_bound(inicios.begin(), inicios.end(), pos) -
                                  inicios.begin() - 1);
}

std::vector<Punto> Equis(const std::string& texto, const Avances& avances, Posicion inicio,
                         Posicion fin) {
  std::vector<Punto> equis{0};
  for (const Racimo& racimo :
       Racimos(texto, avances, static_cast<std::size_t>(inicio), static_cast<std::size_t>(fin))) {
    if (static_cast<Posicion>(racimo.desde) >= fin) break;
    equis.resize(equis.size() + racimo.hasta - racimo.desde,
                 Mover(texto, avances, racimo, equis.back()));
  }
  equis.resize(static_cast<std::size_t>(fin - inicio) + 1);
  return equis;
}

Inicios Lugares(const std::string& texto, const Avances& avances, Posicion inicio, Posicion fin) {
  Inicios lugares;
  for (const Racimo& racimo :
       Racimos(texto, avances, static_cast<std::size_t>(inicio), static_cast<std::size_t>(fin))) {
    if (static_cast<Posicion>(racimo.desde) < fin) {
      lugares.push_back(static_cast<Posicion>(racimo.desde));
    }
  }
  lugares.push_back(fin);
  return lugares;
}

Utf8::Caracter Leer(const std::string& texto, std::size_t i) {
  const auto byte = [&](std::size_t n) { return static_cast<unsigned char>(texto[i + n]); };
  const int largo = byte(0) < 0x80 ? 1 : std::countl_one(byte(0));
  char32_t codigo = largo == 1 ? byte(0) : byte(0) & (0xff >> (largo + 1));
  bool bien = largo <= 4 && i + static_cast<std::size_t>(largo) <= texto.size() &&
              (largo > 1 || byte(0) < 0x80);
  for (int n = 1; bien && n < largo; ++n) {
    bien = byte(static_cast<std::size_t>(n)) >> 6 == 2;
    codigo = codigo << 6 | (byte(static_cast<std::size_t>(n)) & 0x3f);
  }
  const std::array<char32_t, 5> menor{0, 0, 0x80, 0x800, 0x10000};
  bien = bien && codigo >= menor[static_cast<std::size_t>(largo)] && codigo <= 0x10ffff &&
         (codigo < 0xd800 || codigo > 0xdfff);
  if (!bien) return {Utf8::Suelto + byte(0), 1};
  return {codigo, static_cast<std::uint8_t>(largo)};
}

void Letras::Llenar(char32_t primero, Pagina& pagina) {
  for (char32_t i = 0; i < 256; ++i) {
    const char32_t codigo = primero + i;
    Signo& signo = pagina[i];
    signo.ancho = codigo < 0x80 ? avances_.ancho[i]
                                : static_cast<std::int32_t>((codigo * 31) % 7) * semilla_ / 3;
    if (codigo < 0x20 || (codigo > 0x7e && codigo < 0xa0) || Utf8::EsSuelto(codigo)) {
      signo.clase = Clase::Control;
    } else if (codigo >= 0x300 && codigo < 0x370) {
      signo.clase = Clase::Sigue;
    } else if (codigo == 0x200d) {
      signo.clase = Clase::Une;
    } else if (codigo >= 0x600 && codigo < 0x700) {
      signo.clase = Clase::Complejo;
    }
    if (codigo == 'a' || codigo == 'b' || codigo == 0x300c) signo.cortes |= TrasIdeograma;
    if (codigo == 'b' || codigo == 'c' || codigo == 0x3001) signo.cortes |= AnteIdeograma;
    if (codigo >= 0x4e00 && codigo < 0x9fff) {
      signo.cortes = Ideograma | TrasIdeograma | AnteIdeograma;
    }
  }
}

// What stands together is drawn otherwise than alone.
std::span<const Signos::Racimo> Letras::Medir(std::string_view tramo) {
  racimos_.clear();
  const std::string texto(tramo);
  for (std::size_t i = 0; i < texto.size();) {
    const Utf8::Caracter caracter = ingenuo::Leer(texto, i);
    const Signo& signo = De(caracter.codigo);
    if (racimos_.empty() || signo.clase == Clase::Complejo) {
      racimos_.push_back({0, static_cast<std::int32_t>(tramo.size() % 5)});
    }
    racimos_.back().bytes = static_cast<std::uint16_t>(racimos_.back().bytes + caracter.largo);
    racimos_.back().ancho += signo.ancho;
    i += caracter.largo;
  }
  return racimos_;
}

}  // namespace ingenuo
