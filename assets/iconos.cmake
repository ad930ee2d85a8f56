# The icons of the main window lie in its background, each where its highlight appears. Its drawing is
# the group "dibujo" of the highlight's, its place the fifth and sixth number of its row in the table,
# in twips. From these the background is put together: an icon is one row and one drawing.
set(tabla ${PROJECT_SOURCE_DIR}/src/main_window/iconos.inc)
file(STRINGS ${tabla} filas REGEX "^ICONO" ENCODING UTF-8)
file(READ fondo_principal.svg fondo)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${tabla} fondo_principal.svg)
set(VELDA_ICONOS "    <file>fondo_principal.svg</file>\n")

set(indice 0)
foreach(fila IN LISTS filas)
  set(icono seleccion_${indice}.svg)
  file(READ ${icono} seleccion)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${icono})
  string(REGEX MATCHALL "<linearGradient [^<]*(<stop [^<]*)*</linearGradient>" colores "${seleccion}")
  foreach(color IN LISTS colores)
    string(FIND "${fondo}" "${color}" sitio)
    if(sitio EQUAL -1)
      string(REPLACE "</defs>" "  ${color}\n  </defs>" fondo "${fondo}")
    endif()
  endforeach()
  if(NOT seleccion MATCHES "<g id=\"dibujo\".*</g>")
    message(FATAL_ERROR "${icono}: no group \"dibujo\"")
  endif()
  set(dibujo "${CMAKE_MATCH_0}")
  string(REPLACE "id=\"dibujo\"" "id=\"icono_${indice}\"" dibujo "${dibujo}")
  string(REGEX MATCHALL "[0-9]+" twips "${fila}")
  list(GET twips 4 izquierda)
  list(GET twips 5 arriba)
  math(EXPR izquierda "(${izquierda} + 7) / 15")  # to the nearest pixel
  math(EXPR arriba "(${arriba} + 7) / 15")
  string(REPLACE "</svg>" "  <g transform=\"translate(${izquierda} ${arriba})\">${dibujo}</g>\n</svg>"
    fondo "${fondo}")
  string(APPEND VELDA_ICONOS
    "    <file alias=\"${icono}\">${CMAKE_CURRENT_SOURCE_DIR}/${icono}</file>\n")
  math(EXPR indice "${indice} + 1")
endforeach()
file(CONFIGURE OUTPUT fondo_principal.svg CONTENT "${fondo}" @ONLY)
