#include "text_box/codificacion.h"

#include "shared/pagina_codigos.h"

Codificacion::Codificacion() : caracteres_(&PaginaCodigos::Tabla()) {}

QString Codificacion::ATexto(QByteArrayView bytes) const {
  return PaginaCodigos::ATexto(bytes);
}

QByteArray Codificacion::ABytes(QStringView texto) const {
  return PaginaCodigos::ABytes(texto);
}
