// The private-profile format once more, line by line and without any care for speed; and the
// program's settings in memory instead of on the disk.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>

#include <QByteArray>
#include <QList>

#include "shared/pagina_codigos.h"
#include "shared/perfil.h"
#include "shared/perfil_privado.h"

// Ends the run at once, so that the fuzzer keeps the input.
inline void Exigir(bool cierto, const char* que) {
  if (cierto) return;
  std::fprintf(stderr, "wrong: %s\n", que);
  std::abort();
}

// Takes what stands before the next separator out of an input.
inline QByteArray Sacar(QByteArray& entrada, char separador = '\x1F') {
  const qsizetype hasta = entrada.indexOf(separador);
  QByteArray parte = entrada.left(hasta);
  entrada = hasta < 0 ? QByteArray() : entrada.mid(hasta + 1);
  return parte;
}

class PerfilIngenuo {
 public:
  explicit PerfilIngenuo(const QByteArray& contenido) : lineas_(contenido.split('\n')) {}

  QByteArray Contenido() const { return lineas_.join('\n'); }

  std::optional<QByteArray> Valor(const QByteArray& seccion, const QByteArray& clave) const {
    const Sitio sitio = Buscar(seccion, clave);
    if (sitio.clave < 0) return std::nullopt;
    const QByteArray& linea = lineas_[sitio.clave];
    return Limpio(linea.mid(linea.indexOf('=') + 1));
  }

  static QByteArray Limpio(const QByteArray& bruto) {
    const QByteArray recortado = bruto.trimmed();
    const bool comillas = recortado.size() > 1 && recortado.front() == recortado.back() &&
                          QByteArray("'\"").contains(recortado.front());
    return comillas ? recortado.mid(1, recortado.size() - 2) : recortado;
  }

  static QByteArray EnUnaLinea(QByteArray valor) {
    return valor.replace('\n', '?').replace('\r', '?');
  }

  void Poner(const QByteArray& seccion, const QByteArray& clave, const QByteArray& valor) {
    const Sitio sitio = Buscar(seccion, clave);
    if (sitio.clave >= 0) {
      QByteArray& linea = lineas_[sitio.clave];
      const bool retorno = TieneFin(sitio.clave) && linea.endsWith('\r');
      linea = linea.left(linea.indexOf('=') + 1) + EnUnaLinea(valor) + (retorno ? "\r" : "");
      return;
    }
    const bool hay_seccion = sitio.seccion >= 0;
    qsizetype donde = hay_seccion ? sitio.ultima + 1 : lineas_.size();
    if (!hay_seccion && lineas_.last().isEmpty()) --donde;
    const QByteArray retorno = RetornoVecino(donde, sitio);
    if (donde == lineas_.size()) {  // the line before it gets the end that it lacks
      lineas_.last() += retorno;
      lineas_ << QByteArray();
    }
    if (!hay_seccion) lineas_.insert(donde++, '[' + seccion + ']' + retorno);
    lineas_.insert(donde, clave + '=' + EnUnaLinea(valor) + retorno);
  }

 private:
  // Numbers of lines; -1 where there is none.
  struct Sitio {
    qsizetype seccion = -1;
    qsizetype clave = -1;
    qsizetype ultima = -1;  // of the section's lines with a text
  };

  bool TieneFin(qsizetype linea) const { return linea + 1 < lineas_.size(); }

  QByteArray Texto(qsizetype linea) const {
    const bool marca = linea == 0 && lineas_[0].startsWith("\xEF\xBB\xBF");
    return lineas_[linea].mid(marca ? 3 : 0).trimmed();
  }

  // A "\r" when lines there end in CR LF, as they do in an empty file.
  QByteArray RetornoVecino(qsizetype donde, const Sitio& sitio) const {
    while (--donde >= 0) {
      const bool separa = sitio.seccion >= 0 && donde > sitio.seccion && Texto(donde).isEmpty();
      if (TieneFin(donde) && !separa) return lineas_[donde].endsWith('\r') ? "\r" : "";
    }
    return "\r";
  }

  static bool Igual(const QByteArray& uno, const QByteArray& otro) {
    if (uno.size() != otro.size()) return false;
    for (qsizetype i = 0; i < uno.size(); ++i) {
      const QChar a = PaginaCodigos::ATexto(static_cast<unsigned char>(uno[i]));
      const QChar b = PaginaCodigos::ATexto(static_cast<unsigned char>(otro[i]));
      if (a.toUpper() != b.toUpper()) return false;
    }
    return true;
  }

  Sitio Buscar(const QByteArray& seccion, const QByteArray& clave) const {
    Sitio sitio;
    for (qsizetype i = 0; i < lineas_.size(); ++i) {
      const QByteArray linea = Texto(i);
      const bool es_seccion = linea.startsWith('[') && linea.contains(']');
      if (es_seccion && sitio.seccion >= 0) return sitio;
      if (es_seccion && Igual(linea.mid(1, linea.indexOf(']') - 1).trimmed(), seccion)) {
        sitio.seccion = i;
      }
      if (sitio.seccion < 0) continue;
      if (!linea.isEmpty()) sitio.ultima = i;
      const qsizetype igual = es_seccion || linea.startsWith(';') ? -1 : linea.indexOf('=');
      if (igual < 0 || !Igual(linea.left(igual).trimmed(), clave)) continue;
      sitio.clave = i;
      return sitio;
    }
    return sitio;
  }

  QList<QByteArray> lineas_;
};

class PerfilEnMemoria : public AccesoPerfil {
 public:
  explicit PerfilEnMemoria(QByteArray inicial) : contenido(std::move(inicial)) {}

  QByteArray LeerCadena(QStringView seccion, QStringView clave, const QByteArray& defecto,
                        const QString& /*ruta*/) override {
    return PerfilPrivado::Buscar(contenido, PaginaCodigos::ABytes(seccion),
                                 PaginaCodigos::ABytes(clave))
        .value_or(defecto);
  }
  QList<QByteArray> LeerCadenas(QStringView seccion, std::span<const QString> claves,
                                const QByteArray& defecto, const QString& /*ruta*/) override {
    const auto valores = PerfilPrivado::Seccion(contenido, PaginaCodigos::ABytes(seccion));
    QList<QByteArray> leidos;
    for (const QString& una : claves) {
      leidos << valores.value(PerfilPrivado::SinCaja(PaginaCodigos::ABytes(una)), defecto);
    }
    return leidos;
  }
  void EscribirCadena(QStringView seccion, QStringView clave, const QByteArray& valor,
                      const QString& /*ruta*/) override {
    contenido = PerfilPrivado::Poner(contenido, PaginaCodigos::ABytes(seccion),
                                     PaginaCodigos::ABytes(clave), valor);
  }

  QByteArray contenido;
};
