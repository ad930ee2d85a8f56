// An input is the folders to save, one to a line and without their first "/", 1F, and the file.
#include <algorithm>

#include "fuzz/perfil_ingenuo.h"
#include "shared/favoritas.h"

namespace {

constexpr qsizetype MaximoCarpetas = 33;  // some more than the manager lets in

QByteArray Clave(int numero) {
  return "F" + QByteArray::number(numero);
}

// The number before the comma; 0 for what is none, negative or beyond 16 bits.
int TotalIngenuo(const PerfilIngenuo& archivo) {
  QByteArray texto = archivo.Valor("Registros", "Total").value_or("0").left(99).trimmed();
  if (texto.startsWith('+')) texto.remove(0, 1);
  qsizetype cifras = 0;
  while (cifras < texto.size() && QByteArray("0123456789").contains(texto[cifras])) ++cifras;
  const qlonglong total = texto.left(cifras).toLongLong();
  return total <= 32767 ? static_cast<int>(total) : 0;
}

void ProbarLectura(const QByteArray& contenido) {
  PerfilEnMemoria memoria(contenido);
  ModGral gral(memoria);
  const PerfilIngenuo ingenuo(contenido);
  const int total = TotalIngenuo(ingenuo);
  Exigir(std::max<int>(LeerTotalFavoritas(gral), 0) == total, "Total");
  if (total > 3 * MaximoFavoritas) return;
  const QStringList leidas = LeerFavoritas(gral);
  Exigir(leidas.size() == total, "as many folders as Total says");
  for (int i = 1; i <= total; ++i) {
    const QByteArray esperada = ingenuo.Valor("Datos", Clave(i)).value_or("");
    Exigir(PaginaCodigos::ABytes(leidas[i - 1]) == esperada, "a folder read");
  }
}

void ProbarGuardado(const QByteArray& contenido, const QStringList& carpetas) {
  PerfilEnMemoria memoria(contenido);
  ModGral gral(memoria);
  GuardarFavoritas(gral, carpetas);
  const QByteArray guardado = memoria.contenido;
  Exigir(LeerFavoritas(gral) == carpetas, "the folders just saved");
  GuardarFavoritas(gral, carpetas);
  Exigir(memoria.contenido == guardado, "saved twice");

  PerfilIngenuo ingenuo(contenido);
  ingenuo.Poner("Registros", "Total", QByteArray::number(carpetas.size()));
  for (int i = 1; i <= MaximoFavoritas || i <= carpetas.size(); ++i) {
    const QString carpeta = carpetas.value(i - 1);
    const bool con_comillas = carpeta != carpeta.trimmed();
    const QByteArray campo =
        PaginaCodigos::ABytes(con_comillas ? '"' + carpeta + '"' : carpeta).leftJustified(100);
    ingenuo.Poner("Datos", Clave(i), i <= carpetas.size() ? campo : QByteArray());
  }
  Exigir(guardado == ingenuo.Contenido(), "the file after saving");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  QByteArray contenido(reinterpret_cast<const char*>(datos), static_cast<qsizetype>(largo));
  QStringList carpetas;
  for (const QByteArray& nombre : Sacar(contenido).split('\n')) {
    const QString carpeta = '/' + PaginaCodigos::ATexto(nombre);
    if (CabeEnFavoritas(carpeta) && carpetas.size() < MaximoCarpetas) carpetas << carpeta;
  }
  ProbarLectura(contenido);
  if (!carpetas.isEmpty()) ProbarGuardado(contenido, carpetas);
  return 0;
}
