# The view: what is painted, and what keys and mouse do.
set(VISTA_TEXTO
  a_la_vista.cpp accesible_caja.cpp aspecto_caja.cpp avisos_accesibles.cpp barra_larga.cpp
  caja_arrastre.cpp caja_entrada.cpp caja_menu.cpp caja_pintura.cpp caja_raton.cpp caja_teclas.cpp
  caja_texto.cpp caja_texto.h composicion.cpp cursor_texto.cpp edicion_texto.cpp encuadre.cpp
  gestos_raton.cpp gestos_raton.h grafemas.cpp maqueta.cpp movimiento.cpp pintor_texto.cpp
  retrato.cpp rueda_raton.cpp signos_fuente.cpp tabla_glifos.cpp teclas.cpp texto_externo.cpp
  texto_externo.h)
