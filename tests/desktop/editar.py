"""A file is opened through the dialog, edited by keys and saved with the panel's button."""
from escritorio import CANCELAR, GUARDAR, esperar, esperar_valor, recorrer

ANTES = b"uno\r\ndos \xe1\x81\n"


def recorrido(e):
    archivo = e.crear("carta.txt", ANTES)
    e.iniciar()
    e.abrir(archivo)
    assert e.entradas() == ["carta.txt"]
    assert not e.panel_visible()

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
    assert archivo.read_bytes() == ANTES + b"tres"

    if e.gestor:
        e.cerrar()
        e.iniciar()
        e.abrir(archivo)
        esperar_valor("the text, with the line ends of a clipboard", e.texto_mostrado,
                      (ANTES + b"tres").decode("latin-1").replace("\r\n", "\n"))
        assert not e.panel_visible()
        e.cerrar()


recorrer(recorrido)
