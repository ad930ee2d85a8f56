// A text box with a text in it, on the screen, as the benchmarks use it.
#pragma once

#include <QApplication>
#include <QKeyEvent>

#include "bench/textos.h"
#include "text_box/caja_texto.h"

struct CajaLlena {
  CajaLlena(Forma forma, std::int64_t bytes, bool ajustada, const QSize& tamano)
      : caja(documento, ajustada ? CajaTexto::Ajuste::AlAncho : CajaTexto::Ajuste::SinAjustar) {
    documento.Poner(Texto(forma, bytes));
    caja.PonerFuente(QFont(QStringLiteral("Liberation Mono"), 10));
    caja.resize(tamano);
    caja.show();
    caja.setFocus();
    Reposar();
  }

  void Reposar() const {
    do QApplication::processEvents();
    while (!caja.Vista().Completo());
    QApplication::processEvents();
  }
  void Pulsar(int tecla, Qt::KeyboardModifiers modificadores = {}, const QString& texto = {}) {
    QKeyEvent evento(QEvent::KeyPress, tecla, modificadores, texto);
    QApplication::sendEvent(&caja, &evento);
  }

  Documento documento;
  CajaTexto caja;
};
