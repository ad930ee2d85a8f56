// A text window over a recording desktop, with settings of its own on the disk.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QTest>

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
  // The controls that Tab meets, from the one that has the focus.
  QString Vuelta(int pasos) const {
    QStringList nombres;
    for (; pasos > 0; --pasos) {
      nombres << texto->focusWidget()->objectName();
      QTest::keyClick(texto->focusWidget(), Qt::Key_Tab);
    }
    return nombres.join(u' ');
  }

  CarpetaDePrueba carpeta;
  EscritorioFalso escritorio;
  AccesoPerfilArchivo acceso;
  ModGral gral{acceso};
  Ventana principal{escritorio.activacion, Ventana::Marco::Fijo};
  std::unique_ptr<FrmTexto> texto;
};
