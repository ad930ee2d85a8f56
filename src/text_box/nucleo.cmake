# The core of the text box: bytes, lines, rows, undo. Only the document and
# what its bytes mean know of the toolkit.
set(NUCLEO_TEXTO
  almacen.cpp bytes.cpp caracteres.cpp codificacion.cpp curvas.cpp documento.cpp documento_carga.cpp extracto.cpp
  filas.cpp filas_cambios.cpp historial.cpp lineas.cpp partidor.cpp pluma.cpp rastreo.cpp
  renglones_lineas.cpp renglones_lineas_anchos.cpp signos.cpp sumas.cpp utf8.cpp)
