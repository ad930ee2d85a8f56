# The view of the text box.
velda_prueba(prueba_caja_texto
  FUENTES
    azar_vista.cpp prueba_azar_vista.cpp prueba_caja_accesible.cpp prueba_caja_entrada.cpp
    prueba_caja_pintura.cpp prueba_caja_raton.cpp prueba_caja_teclas.cpp
  ENLAZA text_box Qt6::Test)
# On screens where a pixel of ours is several of theirs, or one and a part.
foreach(escala 1.25 1.5 2)
  add_test(NAME azar_vista_${escala} COMMAND prueba_caja_texto --gtest_filter=AzarVista.*)
  set_tests_properties(azar_vista_${escala} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${escala}")
endforeach()
