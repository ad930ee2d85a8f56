"""Opens a text in the program on a virtual screen and leaves a picture: BINARIES PICTURE."""
import sys

from escritorio import Escritorio

MUESTRA = """Velda

Lee y edita archivos de texto.
Un clic en "Abrir" muestra un archivo; al escribir en él aparecen los botones
para guardar los cambios o cancelarlos.
"""

with Escritorio(sys.argv[1]) as escritorio:
    muestra = escritorio.crear("muestra.txt", MUESTRA.encode("cp1252"))
    escritorio.iniciar()
    escritorio.abrir(muestra)
    escritorio.captura(sys.argv[2])
    escritorio.cerrar()
