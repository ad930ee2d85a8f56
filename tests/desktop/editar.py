"""Texts are begun, opened, edited and saved by mouse and keys, and walked through in the list, which
keeps the keyboard."""
from escritorio import CANCELAR, GUARDAR, TITULO_GUARDAR, esperar, esperar_valor, recorrer

ANTES = b"uno\r\ndos \xe1\x81\n"


def nuevo(e):
    """The dialog for its name is cancelled, then answered."""
    nombre = e.textos / "sin_extension"
    e.escribir_en_texto("hola mundo")
    e.esperar_texto("Nuevo")
    for ruta in (None, nombre):
        e.pulsar(e.texto(), 60, 60)
        e.pulsar_panel(GUARDAR)
        e.responder(TITULO_GUARDAR, ruta)
    e.esperar_texto(nombre)
    esperar_valor("the file", nombre.read_bytes, b"hola mundo")


def editar(e, archivo):
    e.abrir(archivo)
    e.escribir_en_texto("")
    e.teclas("ctrl+End")
    e.escribir("tres")
    assert archivo.read_bytes() == ANTES
    e.pulsar_panel(GUARDAR)
    esperar_valor("the file", archivo.read_bytes, ANTES + b"tres")
    e.esperar_foco(e.principal)
    esperar("the save panel gone", lambda: not e.panel_visible())
    e.escribir_en_texto("nada")
    e.pulsar_panel(CANCELAR)
    esperar("the save panel gone", lambda: not e.panel_visible())
    esperar_valor("the text, with the line ends of a clipboard", e.texto_mostrado,
                  (ANTES + b"tres").decode("latin-1").replace("\r\n", "\n"))
    assert archivo.read_bytes() == ANTES + b"tres"


def recorrer_lista(e, archivos):
    for que, destino, indice in (
            (e.pulsar_entrada, 0, 0), (e.teclas, "Down", 1), (e.teclas, "End", 2),
            (e.pulsar_icono, "Anterior", 1), (e.pulsar_icono, "Anterior", 0),
            (e.pulsar_icono, "Anterior", 0), (e.pulsar_icono, "Siguiente", 1)):
        que(destino)
        e.esperar_texto(archivos[indice])
        e.esperar_foco(e.principal)
    e.teclas("Delete")
    e.esperar_texto(archivos[0])
    esperar_valor("the list", e.entradas, ["beta.txt", "sin_extension"])


def recorrido(e):
    beta, carta = e.crear("beta.txt", b"beta"), e.crear("carta.txt", ANTES)
    e.iniciar()
    nuevo(e)
    e.abrir(beta)
    editar(e, carta)
    assert e.entradas() == ["beta.txt", "carta.txt", "sin_extension"]
    recorrer_lista(e, [beta, carta, e.textos / "sin_extension"])
    if e.gestor:
        e.cerrar()
        esperar_valor("the last folder", lambda: e.ajuste("Inicial", "Carpeta"), f"{e.textos}/")


recorrer(recorrido)
