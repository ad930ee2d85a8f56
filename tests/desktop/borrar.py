"""The delete confirmation: alone in answering, in front of a main window that is kept above all
others; its help; the recycle bin; a file that no bin takes."""
import os
import pathlib
import tempfile

from escritorio import esperar, esperar_valor, recorrer

CONFIRMACION, PREGUNTA = "^Eliminar: ", "^ELIMINAR ARCHIVO$"
PAPELERA, AYUDA = (267, 49), (252, 123)  # its buttons, pixels


def borrar(e):
    e.pulsar_icono("Borrar")
    ventana = e.esperar_ventana(CONFIRMACION)
    e.esperar_foco(ventana)
    return ventana


def solo_ella_responde(e, ventana, ruta):
    e.pulsar(e.principal, 60, 200)
    e.teclas("Return", "Escape", "Delete")
    for otra in (e.principal, e.texto()) if e.gestor else ():
        e.cerrar_ventana(otra)
        e.orden("xdotool", "windowraise", otra)
    e.pulsar(ventana, *AYUDA)
    esperar("the help", lambda: "ESC" in e.titulo(ventana))
    e.teclas("Tab", "space", "Return", "Escape")
    esperar_valor("the caption", lambda: e.titulo(ventana), f"Eliminar: {ruta}")
    assert e.texto() and ruta.exists()
    if e.gestor:
        orden = e.orden("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split("#")[1]
        abajo_arriba = [str(int(n, 16)) for n in orden.split(",")]
        assert e.encima(e.principal)
        if e.gestor not in ("fluxbox", "jwm"):  # what belongs to a window has no layer of its own
            assert not e.encima(ventana)
            assert abajo_arriba.index(e.principal) < abajo_arriba.index(ventana)


def sin_papelera(e, suelto):
    for teclas, queda in (("Return", True), ("alt+s", False)):
        suelto.write_bytes(b"x")
        e.abrir(suelto)
        e.pulsar(borrar(e), *PAPELERA)
        e.esperar_foco(e.esperar_ventana(PREGUNTA))
        e.teclas(teclas)
        e.esperar_texto("?")
        assert suelto.exists() == queda


def recorrido(e):
    e.iniciar()
    archivo = e.crear("a b%.txt", b"a")
    e.abrir(archivo)
    ventana = borrar(e)
    solo_ella_responde(e, ventana, archivo)
    e.pulsar(ventana, *PAPELERA)
    e.esperar_texto("?")
    papelera = e.raiz / "casa/.local/share/Trash"
    assert not archivo.exists() and (papelera / "files" / archivo.name).read_bytes() == b"a"
    assert str(archivo.parent / "a%20b%25.txt") in (papelera / "info/a b%.txt.trashinfo").read_text()
    if os.path.ismount("/dev/shm"):
        with tempfile.TemporaryDirectory(prefix="velda-", dir="/dev/shm") as memoria:
            sin_papelera(e, pathlib.Path(memoria) / "suelto.txt")
    else:
        print("/dev/shm is no volume of its own: a file that no bin takes is not tried")
    if e.gestor:
        e.cerrar()


recorrer(recorrido)
