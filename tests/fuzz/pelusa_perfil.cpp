// An input is section, key, value and file, 1F between them.
#include <algorithm>

#include "fuzz/perfil_ingenuo.h"

namespace {

bool EsNombre(const QByteArray& texto) {
  const auto prohibido = [](char caracter) { return QByteArray("[]=;\r\n").contains(caracter); };
  return !texto.isEmpty() && texto.trimmed() == texto && std::ranges::none_of(texto, prohibido);
}

void ProbarBuffer(const QByteArray& contenido, const QByteArray& seccion, const QByteArray& clave,
                  const QByteArray& esperado) {
  PerfilEnMemoria memoria(contenido);
  Perfil perfil(memoria);
  const QString entero = perfil.LeerLargo({}, PaginaCodigos::ATexto(seccion),
                                          PaginaCodigos::ATexto(clave), u"defecto");
  Exigir(PaginaCodigos::ABytes(entero) == esperado, "the value at full length");
  Exigir(perfil.Longitud == std::min<qsizetype>(esperado.size(), 99), "Longitud");
  Exigir(QByteArray(perfil.Buffer.data(), perfil.Longitud + 1) == esperado.left(99) + '\0',
         "Buffer");
  Exigir(perfil.Puntos().value_or(1) > 0, "Puntos");
  Exigir(perfil.EsSi() == esperado.startsWith("Si"), "EsSi");
  (void)perfil.Entero16(0);
  (void)perfil.Color();
  (void)perfil.Total();
}

void ProbarPoner(const QByteArray& contenido, const QByteArray& seccion, const QByteArray& clave,
                 const QByteArray& valor) {
  const QByteArray puesto = PerfilPrivado::Poner(contenido, seccion, clave, valor);
  PerfilIngenuo ingenuo(contenido);
  ingenuo.Poner(seccion, clave, valor);
  Exigir(puesto == ingenuo.Contenido(), "the file after setting the key");
  const QByteArray limpio = PerfilIngenuo::Limpio(PerfilIngenuo::EnUnaLinea(valor));
  Exigir(PerfilPrivado::Buscar(puesto, seccion, clave) == limpio, "the key just set");
  Exigir(PerfilPrivado::Poner(puesto, seccion, clave, valor) == puesto, "set twice");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
  QByteArray contenido(reinterpret_cast<const char*>(datos), static_cast<qsizetype>(largo));
  const QByteArray seccion = Sacar(contenido);
  const QByteArray clave = Sacar(contenido);
  const QByteArray valor = Sacar(contenido);
  const auto esperado = PerfilIngenuo(contenido).Valor(seccion, clave);
  Exigir(PerfilPrivado::Buscar(contenido, seccion, clave) == esperado, "the value found");
  ProbarBuffer(contenido, seccion, clave, esperado.value_or("defecto"));
  if (EsNombre(seccion) && EsNombre(clave)) ProbarPoner(contenido, seccion, clave, valor);
  return 0;
}
