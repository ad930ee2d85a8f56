"""Memory runs out with a large new text in the window: what does not fit is told, nothing ends the
program, and the text is saved."""
import pathlib
import resource
import subprocess
import sys

from escritorio import (CANCELAR, GUARDAR, PLAZO, TITULO_GUARDAR, esperar, esperar_valor,
                        recorrer)

TEXTO = b"una linea de texto\n" * (1 << 22)
SOBRA = 24 << 20  # bytes: dialogs and messages fit, a copy of the text does not


def limitar(programa):
    estado = pathlib.Path(f"/proc/{programa.pid}/status").read_text()
    usados = int(estado.split("VmSize:")[1].split()[0]) << 10
    resource.prlimit(programa.pid, resource.RLIMIT_AS, (usados + SOBRA, resource.RLIM_INFINITY))


def recorrido(e):
    archivo, nuevo = e.crear("a", TEXTO), e.textos / "b"
    e.iniciar()
    e.abrir(archivo)
    e.escribir_en_texto("")
    e.teclas("ctrl+a", "ctrl+c")
    e.pulsar_panel(CANCELAR)
    e.pulsar_icono("Nuevo")
    e.esperar_texto("Nuevo")
    e.pulsar(e.texto(), 60, 60)
    e.teclas("ctrl+v", "ctrl+Home")
    limitar(e.programa)
    esperar_valor("nothing for another program", lambda: e.orden("xclip", "-o", "-sel", "c"), "")
    subprocess.run(["xclip", "-i", "-sel", "c"], input=TEXTO, timeout=PLAZO, check=True,
                   stderr=subprocess.DEVNULL)
    e.teclas("ctrl+v")
    aviso = e.esperar_ventana("ERROR AL CAMBIAR EL TEXTO")
    e.esperar_foco(aviso)
    e.teclas("Return")
    esperar("the message closed", lambda: not e.ventana("ERROR AL CAMBIAR EL TEXTO"))
    e.pulsar_panel(GUARDAR)
    e.responder(TITULO_GUARDAR, nuevo)
    esperar("the file", lambda: nuevo.exists() and nuevo.stat().st_size == len(TEXTO))
    assert nuevo.read_bytes() == TEXTO
    assert e.programa.poll() is None


if b"__asan_init" in (pathlib.Path(sys.argv[1]) / "velda").read_bytes():
    print("Skipped: the sanitizer needs the address space that is taken away here.")
    sys.exit(77)
recorrer(recorrido)
