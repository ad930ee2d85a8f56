# Helpers of the install rules.

# Installs the relative link `ruta` that leads to `destino`.
function(velda_instala_enlace ruta destino)
  get_filename_component(carpeta ${ruta} DIRECTORY)
  set(enlace ${CMAKE_CURRENT_BINARY_DIR}/enlaces/${ruta})
  file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/enlaces/${carpeta})
  file(CREATE_LINK ${destino} ${enlace} SYMBOLIC)
  install(FILES ${enlace} DESTINATION ${carpeta})
endfunction()

# Makes `comprimido` in the folder of generated files, without a name or a date in it, so that the
# same source gives the same bytes.
function(velda_comprime archivo comprimido)
  get_filename_component(entero ${archivo} ABSOLUTE)
  add_custom_command(OUTPUT ${generado}/${comprimido}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${generado}
    COMMAND gzip -9nc ${entero} > ${generado}/${comprimido}
    DEPENDS ${entero} VERBATIM)
endfunction()
