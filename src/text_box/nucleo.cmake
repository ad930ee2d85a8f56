# The core of the text box: bytes, lines, rows, undo. Only the document knows of the toolkit.
set(NUCLEO_TEXTO bytes.cpp sumas.cpp)
