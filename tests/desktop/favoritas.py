"""A folder is made a favourite by keyboard; its texts are listed, also at the next start. A volume
that was taken away is said for a while."""
import subprocess
import tempfile

from escritorio import esperar, esperar_valor, recorrer


def nombres(e):
    return [nombre for _, nombre, _ in e.accesibles()]


def esperar_estado(e, linea):
    esperar(f"the line {linea}", lambda: linea in nombres(e))


def agregar_primera(e):
    """Opens the first folder of the user's home in the manager and adds it."""
    e.pulsar_icono("Favoritas")
    esperar_estado(e, "> Listo...")
    e.esperar_foco(e.texto())
    e.teclas("Tab", "Down", "Return", "Tab", "space")
    esperar_estado(e, "> Carpeta añadida (1)")


def volumen_quitado(e):
    """Needs root and a kernel that lets it mount."""
    with tempfile.TemporaryDirectory(prefix="velda-", dir="/mnt") as punto:
        montado = subprocess.run(["mount", "-t", "tmpfs", "velda", punto], check=False,
                                 capture_output=True)
        if montado.returncode:
            print("No volume can be mounted here: this part was not tried")
            return
        try:
            subprocess.run(["mkdir", f"{punto}/notas"], check=True)
            (e.bin / "Favoritas.INI").write_text(
                f"[Registros]\nTotal=1\n[Datos]\nF1={punto}/notas\n")
            e.pulsar_icono("Favoritas")
            assert "1 Favoritas no abiertas." not in nombres(e)
        finally:
            subprocess.run(["umount", punto], check=True)
        e.pulsar_icono("Favoritas")
        esperar_estado(e, "1 Favoritas no abiertas.")
        esperar("the notice gone", lambda: "1 Favoritas no abiertas." not in nombres(e))


def recorrido(e):
    carpeta = e.raiz / "casa" / "Años ñ"
    carpeta.mkdir()
    for nombre in ("b.TXT", "á.txt", "nota.md"):
        (carpeta / nombre).write_text(nombre)
    e.iniciar()
    agregar_primera(e)
    e.pulsar_icono("Favoritas")  # leaving the text window stores the list
    esperar_valor("the list", e.entradas, ["á.txt", "b.TXT"])
    assert "Añadir carpeta" not in nombres(e), "the manager is still there"
    e.teclas("Down")
    e.esperar_texto(carpeta / "á.txt")
    e.cerrar()

    ini = e.bin / "Velda.INI"
    ini.write_bytes(ini.read_bytes().replace(b"[Opciones]", b"[Opciones]\r\nFavoritas=Si"))
    e.iniciar()
    esperar_valor("the list", e.entradas, ["á.txt", "b.TXT"])
    volumen_quitado(e)
    e.cerrar()


recorrer(recorrido)
