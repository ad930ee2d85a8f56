#include "shared/perfil.h"

#include <algorithm>
#include <utility>

#include "shared/numeros.h"
#include "shared/pagina_codigos.h"

namespace {

constexpr qsizetype MaximoLeido = LongitudBuffer - 1;  // a NUL stands behind it

}  // namespace

void Perfil::Leer(const QString& ruta, QStringView seccion, QStringView clave,
                  QStringView defecto) {
  (void)LeerLargo(ruta, seccion, clave, defecto);
}

QString Perfil::LeerLargo(const QString& ruta, QStringView seccion, QStringView clave,
                          QStringView defecto) {
  return Recoger(acceso_.LeerCadena(seccion, clave, PaginaCodigos::ABytes(defecto), ruta));
}

QStringList Perfil::LeerLargos(const QString& ruta, QStringView seccion,
                               std::span<const QString> claves, QStringView defecto) {
  QStringList textos;
  for (const QByteArray& valor :
       acceso_.LeerCadenas(seccion, claves, PaginaCodigos::ABytes(defecto), ruta)) {
    textos << Recoger(valor);
  }
  return textos;
}

QString Perfil::Recoger(const QByteArray& valor) {
  Longitud = static_cast<std::int16_t>(std::min(valor.size(), MaximoLeido));
  std::copy_n(valor.begin(), Longitud, Buffer.begin());
  Buffer[static_cast<std::size_t>(Longitud)] = '\0';
  return PaginaCodigos::ATexto(valor);
}

QString Perfil::Valor() const {
  return PaginaCodigos::ATexto(Leido());
}

bool Perfil::EsSi() const {
  return Leido().startsWith("Si");
}

bool Perfil::EsInicial() const {
  return Leido().startsWith("Inicial");
}

int Perfil::Entero16(int defecto) const {
  const auto numero = Numeros::Entero16(Leido());
  return numero ? *numero : defecto;
}

std::optional<std::int32_t> Perfil::Color() const {
  return Numeros::Color(Leido());
}

std::optional<double> Perfil::Puntos() const {
  return Numeros::Puntos(Leido());
}

std::int16_t Perfil::Total() const {
  return Numeros::Total(Leido());
}

void Perfil::Escribir(const QString& ruta, QStringView seccion, QStringView clave,
                      QStringView texto) {
  Entregar(ruta, seccion, clave, PaginaCodigos::ABytes(texto));
}

void Perfil::EscribirBuffer(const QString& ruta, QStringView seccion, QStringView clave,
                            QStringView texto) {
  EscribirLargo(ruta, seccion, clave, texto.left(LongitudBuffer));
}

void Perfil::EscribirLargo(const QString& ruta, QStringView seccion, QStringView clave,
                           QStringView texto) {
  const QByteArray campo = PaginaCodigos::ABytes(texto).leftJustified(LongitudBuffer, ' ');
  std::copy_n(campo.begin(), LongitudBuffer, Buffer.begin());
  Entregar(ruta, seccion, clave, campo);
}

void Perfil::Entregar(const QString& ruta, QStringView seccion, QStringView clave,
                      const QByteArray& valor) {
  if (juntos_ != nullptr && juntos_->ruta_ == ruta) {
    juntos_->ajustes_.push_back({seccion.toString(), clave.toString(), valor});
  } else {
    acceso_.EscribirCadena(seccion, clave, valor, ruta);
  }
}

Perfil::Juntos::Juntos(Perfil& perfil, QString ruta, Duracion duracion)
    : perfil_(perfil), ruta_(std::move(ruta)), duracion_(duracion) {
  perfil.juntos_ = this;
}

Perfil::Juntos::~Juntos() {
  perfil_.juntos_ = nullptr;
  perfil_.acceso_.EscribirCadenas(ajustes_, ruta_, duracion_);
}
