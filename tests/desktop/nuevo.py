"""A new text begun in the empty window: the dialog for its name cancelled, then answered."""
from escritorio import GUARDAR, TITULO_GUARDAR, esperar_valor, recorrer


def recorrido(e):
    e.iniciar()
    e.escribir_en_texto("hola mundo")
    e.esperar_texto("Nuevo")
    e.pulsar_panel(GUARDAR)
    e.responder(TITULO_GUARDAR, None)
    e.pulsar(e.texto(), 60, 60)
    e.pulsar_panel(GUARDAR)
    nombre = e.textos / "sin_extension"
    e.responder(TITULO_GUARDAR, nombre)
    e.esperar_texto(nombre)
    esperar_valor("the file", nombre.read_bytes, b"hola mundo")
    esperar_valor("the list", e.entradas, ["sin_extension"])
    e.cerrar()
    esperar_valor("the last folder", lambda: e.ajuste("Inicial", "Carpeta"), f"{e.textos}/")


recorrer(recorrido)
