# The view: what is painted, and what keys and mouse do.
set(VISTA_TEXTO
  accesible_caja.cpp aspecto_caja.cpp barra_larga.cpp caja_arrastre.cpp caja_edicion.cpp
  caja_entrada.cpp caja_menu.cpp caja_pintura.cpp caja_raton.cpp caja_teclas.cpp caja_texto.cpp
  caja_texto.h composicion.cpp encuadre.cpp movimiento.cpp pintor_texto.cpp tabla_glifos.cpp
  teclas.cpp texto_externo.cpp texto_externo.h)
