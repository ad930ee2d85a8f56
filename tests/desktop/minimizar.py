"""What minimising, restoring and closing the windows does to the other one."""
from escritorio import esperar, esperar_valor, recorrer


def minimizar(e, ventana):
    e.orden("xdotool", "windowminimize", ventana)
    esperar("the window minimised", lambda: e.minimizada(ventana))


def restaurar(e, ventana):
    e.orden("wmctrl", "-i", "-a", ventana)
    esperar("the window restored", lambda: not e.minimizada(ventana))


def recorrido(e):
    archivo = e.crear("nota.txt", b"nota")
    e.iniciar()
    e.abrir(archivo)

    texto = e.texto()
    minimizar(e, texto)
    minimizar(e, e.principal)
    restaurar(e, e.principal)
    esperar("the text window back with the main window", lambda: not e.minimizada(texto))
    assert e.titulo(e.principal) == "Velda..."

    e.cerrar_ventana(e.texto())
    esperar("the text window gone", lambda: not e.texto())
    minimizar(e, e.principal)
    restaurar(e, e.principal)
    try:
        esperar("a text window", e.texto, plazo=1)
    except AssertionError:
        pass
    else:
        raise AssertionError("restoring the main window opened a closed text window")

    e.pulsar_entrada(0)  # the only entry, selected already
    e.esperar_texto(archivo)
    esperar_valor("the text", e.texto_mostrado, "nota")

    minimizar(e, e.texto())
    e.cerrar()
    assert e.ajuste("PosTam", "TextoEdo") == "1"


recorrer(recorrido)
