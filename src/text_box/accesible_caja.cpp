#include <QAccessible>

#include "text_box/caja_texto.h"

void CajaTexto::AvisarCambio(const Cambio& /*cambio*/) {}
