#include "shared/resultado.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace {

struct Frase {
  int codigo;
  const char16_t* texto;
};

constexpr std::array Frases{
    Frase{ENOENT, u"No existe el archivo o la carpeta."},
    Frase{EACCES, u"Permiso denegado: el archivo o la carpeta está protegido."},
    Frase{EPERM, u"El sistema no permite hacerlo."},
    Frase{EROFS, u"El disco es de solo lectura."},
    Frase{ENOSPC, u"No queda espacio en el disco."},
    Frase{EDQUOT, u"No queda espacio: se ha agotado la cuota de disco del usuario."},
    Frase{EIO, u"Error del disco al leer o escribir."},
    Frase{EISDIR, u"Es una carpeta."},
    Frase{ENOTDIR, u"Una parte de la ruta no es una carpeta."},
    Frase{EMEDIUMTYPE, u"No es un archivo normal."},
    Frase{EINVAL, u"El disco no admite ese nombre o esa operación."},
    Frase{ELOOP, u"Demasiados enlaces simbólicos en la ruta."},
    Frase{ENAMETOOLONG, u"El nombre o la ruta es demasiado largo."},
    Frase{ENOMEM, u"No hay memoria suficiente."},
    Frase{EFBIG, u"El archivo es demasiado grande."},
    Frase{EOVERFLOW, u"El archivo es demasiado grande."},
    Frase{EBUSY, u"Otro programa está usando el archivo."},
    Frase{ETXTBSY, u"El archivo es un programa que se está ejecutando."},
    Frase{EEXIST, u"El archivo ya existe."},
    Frase{ESTALE, u"El archivo ya no está donde estaba."},
    Frase{ENODEV, u"La unidad no está disponible."},
    Frase{ENXIO, u"La unidad no está disponible."},
    Frase{ENOMEDIUM, u"No hay ningún disco en la unidad."},
    Frase{ENOTCONN, u"Se ha perdido la conexión con la unidad."},
    Frase{ETIMEDOUT, u"La unidad no responde."},
    Frase{EMFILE, u"Hay demasiados archivos abiertos."},
    Frase{ENFILE, u"Hay demasiados archivos abiertos."},
    Frase{EMLINK, u"El archivo tiene demasiados enlaces."},
    Frase{EXDEV, u"El archivo está en otro disco."},
    Frase{EAGAIN, u"El sistema no puede atenderlo ahora; inténtelo de nuevo."},
    Frase{EINTR, u"El sistema ha interrumpido la operación; inténtelo de nuevo."},
    Frase{ENOSYS, u"El disco no admite esa operación."},
    Frase{EOPNOTSUPP, u"El disco no admite esa operación."},
    Frase{EILSEQ, u"El disco no admite los caracteres del nombre."},
    Frase{EUCLEAN, u"El sistema de archivos del disco está dañado."},
    Frase{EBADMSG, u"Los datos del disco están dañados."},
    Frase{EREMOTEIO, u"Error de la unidad remota al leer o escribir."},
    Frase{EHOSTDOWN, u"El equipo de la unidad de red está apagado."},
    Frase{EHOSTUNREACH, u"No se llega al equipo de la unidad de red."},
    Frase{ENETDOWN, u"La red no está disponible."},
    Frase{ENETUNREACH, u"La red no está disponible."},
    Frase{ECONNREFUSED, u"La unidad de red rechaza la conexión."},
    Frase{ECONNRESET, u"Se ha perdido la conexión con la unidad."},
    Frase{ECONNABORTED, u"Se ha perdido la conexión con la unidad."},
    Frase{ESHUTDOWN, u"Se ha perdido la conexión con la unidad."},
    Frase{ENOLCK, u"No quedan bloqueos de archivo en el sistema."},
    Frase{ENOKEY, u"El archivo está cifrado y falta su clave."},
    Frase{EKEYEXPIRED, u"La clave de acceso a la unidad ha caducado."},
    Frase{EKEYREVOKED, u"La clave de acceso a la unidad ya no vale."},
};

}  // namespace

QString Resultado::Motivo() const {
  if (Bien()) return {};
  const auto* frase = std::find_if(Frases.begin(), Frases.end(),
                                   [this](const Frase& una) { return una.codigo == codigo_; });
  if (frase != Frases.end()) return QString::fromUtf16(frase->texto);
  return QStringLiteral("El sistema da el error número %1.").arg(codigo_);
}
