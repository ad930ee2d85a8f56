#include "text_window/aviso_copias.h"

#include "platform/mensajes.h"
#include "shared/archivo.h"

void AvisarDeCopias(Mensajes& mensajes, Ventana& duena, const QString& archivo) {
  const QStringList copias = CopiasDeGuardado(archivo);
  if (copias.isEmpty()) return;
  mensajes.Critico(duena,
                   QStringLiteral("Se interrumpió un guardado de este archivo, que puede no estar "
                                  "completo. El texto que se guardaba está entero en:\n\n") +
                       copias.join(u'\n') +
                       QStringLiteral("\n\nÁbralo escribiendo ese nombre en «Abrir». No se borrará "
                                      "mientras el archivo tenga otro texto."),
                   QStringLiteral("HAY UNA COPIA DEL TEXTO"));
}
