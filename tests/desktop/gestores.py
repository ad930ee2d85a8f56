"""The journeys that a window manager has a say in, under each one that is installed and without one:
SCRIPT BINARIES FOLDER_FOR_PICTURES."""
import pathlib
import shutil
import subprocess
import sys

from escritorio import GESTORES

CON_GESTOR = ("ventanas",)
RECORRIDOS = ("editar", "borrar", "opciones")

fallos = []
for gestor, orden in [*GESTORES.items(), ("ninguno", None)]:
    if orden and not shutil.which(orden[0]):
        print(f"{gestor}: not installed")
        continue
    for nombre in RECORRIDOS + (CON_GESTOR if orden else ()):
        guion = pathlib.Path(__file__).with_name(f"{nombre}.py")
        hecho = subprocess.run([sys.executable, guion, *sys.argv[1:], gestor], check=False,
                               capture_output=True, text=True)
        print(f"{gestor} {nombre}: {'ok' if hecho.returncode == 0 else 'FAILED'}", flush=True)
        if hecho.returncode != 0:
            fallos.append(f"{gestor} {nombre}:\n{hecho.stdout}{hecho.stderr}")
print("\n".join(fallos))
sys.exit(bool(fallos))
