# The view of the text box, and its random walk without an end: azar_vista [seed] [how many].
velda_prueba(prueba_caja_texto
  FUENTES
    azar_vista.cpp prueba_azar_vista.cpp prueba_caja_accesible.cpp prueba_caja_entrada.cpp
    prueba_caja_pintura.cpp prueba_caja_raton.cpp prueba_caja_teclas.cpp
  ENLAZA text_box Qt6::Test)

add_executable(azar_vista azar_vista.cpp azar_vista_principal.cpp)
target_include_directories(azar_vista PRIVATE ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(azar_vista PRIVATE text_box Qt6::Test)
# On screens where a pixel of ours is several of theirs, or one and a part.
foreach(escala 1.25 1.5 2)
  add_test(NAME azar_vista_${escala} COMMAND azar_vista 101 4)
  set_tests_properties(azar_vista_${escala} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${escala}")
endforeach()
