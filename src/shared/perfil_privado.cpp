#include "shared/perfil_privado.h"

#include <algorithm>

#include "shared/pagina_codigos.h"

namespace {

constexpr QByteArrayView FinDeLineaNuevo = "\r\n";
constexpr QByteArrayView MarcaUtf8 = "\xEF\xBB\xBF";  // some editors put it before the first line

bool EsBlanco(char caracter) {
  return caracter == ' ' || caracter == '\t' || caracter == '\r' || caracter == '\v' ||
         caracter == '\f';
}

QByteArrayView Recortar(QByteArrayView texto) {
  while (!texto.empty() && EsBlanco(texto.front())) texto = texto.sliced(1);
  while (!texto.empty() && EsBlanco(texto.back())) texto.chop(1);
  return texto;
}

QByteArrayView SinComillas(QByteArrayView texto) {
  const bool entre_comillas = texto.size() >= 2 && texto.front() == texto.back() &&
                              (texto.front() == '"' || texto.front() == '\'');
  return entre_comillas ? texto.sliced(1, texto.size() - 2) : texto;
}

bool IgualSinCaja(QByteArrayView uno, QByteArrayView otro) {
  return std::equal(uno.begin(), uno.end(), otro.begin(), otro.end(), [](char a, char b) {
    return PaginaCodigos::AMayuscula(static_cast<unsigned char>(a)) ==
           PaginaCodigos::AMayuscula(static_cast<unsigned char>(b));
  });
}

// One line of the content, by positions in it.
struct Linea {
  qsizetype inicio = 0;
  qsizetype fin_texto = 0;  // behind the text, before the line end
  qsizetype fin = 0;        // behind the line end
};

class Lineas {
 public:
  explicit Lineas(QByteArrayView contenido) : contenido_(contenido) {}

  bool Siguiente(Linea& linea) {
    if (posicion_ >= contenido_.size()) return false;
    linea.inicio = posicion_;
    if (posicion_ == 0 && contenido_.startsWith(MarcaUtf8)) linea.inicio = MarcaUtf8.size();
    const qsizetype salto = contenido_.indexOf('\n', linea.inicio);
    linea.fin = salto < 0 ? contenido_.size() : salto + 1;
    linea.fin_texto = salto < 0 ? contenido_.size() : salto;
    const bool con_retorno = salto > linea.inicio && contenido_[linea.fin_texto - 1] == '\r';
    if (con_retorno) --linea.fin_texto;
    posicion_ = linea.fin;
    return true;
  }

  QByteArrayView Texto(const Linea& linea) const {
    return contenido_.sliced(linea.inicio, linea.fin_texto - linea.inicio);
  }

  QByteArrayView FinDeLinea(const Linea& linea) const {
    return contenido_.sliced(linea.fin_texto, linea.fin - linea.fin_texto);
  }

 private:
  QByteArrayView contenido_;
  qsizetype posicion_ = 0;
};

// The name in a section's line; null in any other line.
QByteArrayView NombreDeSeccion(QByteArrayView linea) {
  const QByteArrayView texto = Recortar(linea);
  const qsizetype cierre = texto.startsWith('[') ? texto.indexOf(']') : -1;
  return cierre < 0 ? QByteArrayView() : Recortar(texto.sliced(1, cierre - 1));
}

// Where the value begins in a line with this key, behind the "="; -1 in any other line.
qsizetype InicioDelValor(QByteArrayView linea, QByteArrayView clave) {
  const qsizetype igual = linea.indexOf('=');
  if (igual < 0) return -1;
  const QByteArrayView nombre = Recortar(linea.first(igual));
  return !nombre.startsWith(';') && IgualSinCaja(nombre, clave) ? igual + 1 : -1;
}

// What was found on the way to a key, and what is needed to add it.
struct Hallazgo {
  bool hay_seccion = false;
  bool hay_clave = false;
  qsizetype inicio_valor = 0;  // only with a key, like the next
  qsizetype fin_valor = 0;
  Linea ultima;                 // the last line before a new one
  QByteArrayView fin_de_linea;  // of a new line
};

Hallazgo Recorrer(QByteArrayView contenido, QByteArrayView seccion, QByteArrayView clave) {
  Hallazgo hallazgo;
  Lineas lineas(contenido);
  for (Linea linea; lineas.Siguiente(linea);) {
    const QByteArrayView texto = lineas.Texto(linea);
    const QByteArrayView nombre = NombreDeSeccion(texto);
    if (!nombre.isNull() && hallazgo.hay_seccion) break;
    if (!nombre.isNull() && IgualSinCaja(nombre, seccion)) hallazgo.hay_seccion = true;
    const qsizetype valor =
        hallazgo.hay_seccion && nombre.isNull() ? InicioDelValor(texto, clave) : -1;
    if (valor >= 0) {
      hallazgo.hay_clave = true;
      hallazgo.inicio_valor = linea.inicio + valor;
      hallazgo.fin_valor = linea.fin_texto;
      break;
    }
    if (hallazgo.hay_seccion && Recortar(texto).empty()) continue;
    hallazgo.ultima = linea;
    const QByteArrayView fin = lineas.FinDeLinea(linea);
    if (!fin.empty()) hallazgo.fin_de_linea = fin;
  }
  return hallazgo;
}

QByteArray EnUnaLinea(QByteArrayView valor) {
  QByteArray linea = valor.toByteArray();
  return linea.replace('\r', '?').replace('\n', '?');
}

QByteArray Sustituir(QByteArrayView contenido, qsizetype inicio, qsizetype fin,
                     QByteArrayView nuevo) {
  QByteArray resultado;
  resultado.reserve(contenido.size() - (fin - inicio) + nuevo.size());
  resultado.append(contenido.first(inicio)).append(nuevo).append(contenido.sliced(fin));
  return resultado;
}

}  // namespace

namespace PerfilPrivado {

std::optional<QByteArray> Buscar(QByteArrayView contenido, QByteArrayView seccion,
                                 QByteArrayView clave) {
  const Hallazgo hallazgo = Recorrer(contenido, seccion, clave);
  if (!hallazgo.hay_clave) return std::nullopt;
  const QByteArrayView valor =
      contenido.sliced(hallazgo.inicio_valor, hallazgo.fin_valor - hallazgo.inicio_valor);
  return SinComillas(Recortar(valor)).toByteArray();
}

QByteArray SinCaja(QByteArrayView clave) {
  QByteArray mayusculas = clave.toByteArray();
  for (char& letra : mayusculas) {
    letra = static_cast<char>(PaginaCodigos::AMayuscula(static_cast<unsigned char>(letra)));
  }
  return mayusculas;
}

QHash<QByteArray, QByteArray> Seccion(QByteArrayView contenido, QByteArrayView seccion) {
  QHash<QByteArray, QByteArray> valores;
  bool dentro = false;
  Lineas lineas(contenido);
  for (Linea linea; lineas.Siguiente(linea);) {
    const QByteArrayView texto = lineas.Texto(linea);
    const QByteArrayView nombre = NombreDeSeccion(texto);
    if (!nombre.isNull() && dentro) break;
    if (!nombre.isNull()) dentro = IgualSinCaja(nombre, seccion);
    const qsizetype igual = dentro && nombre.isNull() ? texto.indexOf('=') : -1;
    const QByteArrayView clave = igual < 0 ? QByteArrayView() : Recortar(texto.first(igual));
    if (igual < 0 || clave.startsWith(';')) continue;
    const QByteArray en_hash = SinCaja(clave);
    if (valores.contains(en_hash)) continue;
    valores.insert(en_hash, SinComillas(Recortar(texto.sliced(igual + 1))).toByteArray());
  }
  return valores;
}

QByteArray Poner(QByteArrayView contenido, QByteArrayView seccion, QByteArrayView clave,
                 QByteArrayView valor) {
  const Hallazgo hallazgo = Recorrer(contenido, seccion, clave);
  const QByteArray en_una_linea = EnUnaLinea(valor);
  if (hallazgo.hay_clave) {
    return Sustituir(contenido, hallazgo.inicio_valor, hallazgo.fin_valor, en_una_linea);
  }
  const QByteArrayView fin =
      hallazgo.fin_de_linea.empty() ? FinDeLineaNuevo : hallazgo.fin_de_linea;
  const Linea& ultima = hallazgo.ultima;
  const qsizetype donde = hallazgo.hay_seccion ? ultima.fin : contenido.size();
  QByteArray nuevo;
  if (donde > 0 && contenido[donde - 1] != '\n') nuevo.append(fin);
  if (!hallazgo.hay_seccion) nuevo.append('[').append(seccion).append(']').append(fin);
  nuevo.append(clave).append('=').append(en_una_linea).append(fin);
  return Sustituir(contenido, donde, donde, nuevo);
}

}  // namespace PerfilPrivado
