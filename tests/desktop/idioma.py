"""Everything is Spanish whatever the system's language."""
from escritorio import TITULO_ABRIR, esperar, recorrer


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
    e.cerrar()


recorrer(recorrido)
