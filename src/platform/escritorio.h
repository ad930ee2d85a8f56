// All that the windows ask of the desktop, in one hand.
#pragma once

#include <memory>

#include "platform/abridor.h"
#include "platform/activacion.h"
#include "platform/catalogo_fuentes.h"
#include "platform/dialogos_archivo.h"
#include "platform/dialogos_aspecto.h"
#include "platform/encima.h"
#include "platform/espera_larga.h"
#include "platform/mensajes.h"
#include "platform/papelera.h"
#include "platform/unidades.h"

struct Escritorio {
  Activacion& activacion;
  Encima& encima;
  DialogosArchivo& dialogos;
  Mensajes& mensajes;
  Abridor& abridor;
  Papelera& papelera;
  DialogosAspecto& aspecto;
  Unidades& unidades;
  Esperas& esperas;
  CatalogoFuentes& fuentes;
};

// The real desktop.
class EscritorioReal {
 public:
  EscritorioReal();
  Escritorio& Servicios() { return servicios_; }

 private:
  CatalogoFuentes fuentes_;
  Activacion activacion_;
  EncimaReal encima_;
  DialogosArchivoReales dialogos_;
  MensajesReales mensajes_;
  AbridorReal abridor_;
  PapeleraReal papelera_;
  DialogosAspectoReales aspecto_;
  UnidadesReales unidades_;
  EsperasReales esperas_;
  Escritorio servicios_;
};
