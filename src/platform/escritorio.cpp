#include "platform/escritorio.h"

#include "platform/ventana.h"

EscritorioReal::EscritorioReal()
    : dialogos_(activacion_),
      mensajes_(activacion_),
      aspecto_(activacion_),
      esperas_(activacion_),
      servicios_{activacion_, encima_,  dialogos_, mensajes_, abridor_,
                 papelera_,   aspecto_, unidades_, esperas_,  fuentes_} {}
