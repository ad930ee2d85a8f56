"""A folder is made a favourite by keyboard; its texts are listed, also at the next start."""
from escritorio import esperar, esperar_valor, recorrer


def esperar_estado(e, linea):
    esperar(f"the line {linea}", lambda: linea in e.nombres())


def agregar_primera(e):
    """Opens the first folder of the user's home in the manager and adds it."""
    e.pulsar_icono("Favoritas")
    esperar_estado(e, "> Listo...")
    e.esperar_foco(e.texto())
    e.teclas("Tab", "Down", "Return", "Tab", "space")
    esperar_estado(e, "> Carpeta añadida (1)")


def recorrido(e):
    carpeta = e.raiz / "casa" / "Años ñ"
    carpeta.mkdir()
    for nombre in ("b.TXT", "á.txt", "nota.md"):
        (carpeta / nombre).write_text(nombre)
    e.iniciar()
    agregar_primera(e)
    e.pulsar_icono("Favoritas")  # leaving the text window stores the list
    esperar_valor("the list", e.entradas, ["á.txt", "b.TXT"])
    assert "Añadir carpeta" not in e.nombres(), "the manager is still there"
    e.teclas("Down")
    e.esperar_texto(carpeta / "á.txt")
    e.cerrar()

    ini = e.bin / "Velda.INI"
    ini.write_bytes(ini.read_bytes().replace(b"[Opciones]", b"[Opciones]\r\nFavoritas=Si"))
    e.iniciar()
    esperar_valor("the list", e.entradas, ["á.txt", "b.TXT"])
    e.cerrar()


recorrer(recorrido)
