"""Runs a test program on a screen of its own: SCRIPT BINARIES PROGRAM [--sin-gestor]."""
import os
import subprocess
import sys

from escritorio import PLAZO, Escritorio

binarios, programa, *opciones = sys.argv[1:]
with Escritorio(binarios, con_gestor="--sin-gestor" not in opciones):
    hecho = subprocess.run([programa], env={**os.environ, "QT_QPA_PLATFORM": "xcb"},
                           stdin=subprocess.DEVNULL, timeout=2 * PLAZO, check=False)
sys.exit(hecho.returncode)
