"""Everything is Spanish whatever the system's language; help goes to the system's opener."""
from escritorio import TITULO_ABRIR, esperar, esperar_valor, recorrer


def recorrido(e):
    e.iniciar()
    e.pulsar_icono("Abrir")
    dialogo = e.esperar_ventana(TITULO_ABRIR)
    textos = esperar("the dialog's buttons", lambda: {
        nombre.replace("&", "") for papel, nombre, _ in e.accesibles() if papel == "push button"})
    assert "Cancelar" in textos and "Abrir" in textos, textos
    assert not textos & {"Cancel", "Open", "Back", "Parent Directory"}, textos
    nombres = " ".join(e.nombres())
    assert "Documentos de texto" in nombres, nombres
    e.esperar_foco(dialogo)
    e.teclas("Escape")
    esperar("the dialog closed", lambda: not e.ventana(TITULO_ABRIR))

    e.pulsar_icono("Ayuda")
    esperar_valor("the page opened",
                  lambda: e.direcciones.exists() and e.direcciones.read_text().split(),
                  [f"file://{e.bin}/Ayuda/Ayuda.htm"])
    e.cerrar()


recorrer(recorrido)
