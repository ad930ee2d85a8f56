// A text window over a recording desktop, with settings of its own on the disk.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include "dobles/escritorio_falso.h"
#include "shared/carpeta_de_prueba.h"
#include "text_window/frm_texto.h"

class MesaTexto : public testing::Test {
 protected:
  // Shown, and then left for the main window.
  void Mostrar() {
    texto = std::make_unique<FrmTexto>(gral, escritorio.Servicios(), principal);
    texto->Mostrar();
    principal.Mostrar();
  }

  CarpetaDePrueba carpeta;
  EscritorioFalso escritorio;
  AccesoPerfilArchivo acceso;
  ModGral gral{acceso};
  Ventana principal{escritorio.activacion, Ventana::Marco::Fijo};
  std::unique_ptr<FrmTexto> texto;
};
