#include "text_window/lista_favoritas.h"

#include <QKeyEvent>

#include "platform/tecla_inicial.h"

void ListaFavoritas::keyPressEvent(QKeyEvent* evento) {
  if (!SeleccionarPorTecla(*this, *evento)) QListWidget::keyPressEvent(evento);
}
