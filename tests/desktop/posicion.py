"""Position and size stay the same to the pixel over many starts."""
from escritorio import esperar_valor, recorrer

CLAVES = ("PrinIzda", "PrinArriba", "TextoEdo", "TextoIzda", "TextoArriba", "TextoAncho",
          "TextoAlto")


def vistas(e):
    return [medir(ventana) for ventana in (e.principal, e.texto())
            for medir in (e.rectangulo, e.rectangulo_exterior)]


def recorrido(e):
    e.iniciar()
    e.orden("wmctrl", "-i", "-r", e.principal, "-e", "0,101,83,-1,-1")
    e.orden("wmctrl", "-i", "-r", e.texto(), "-e", "0,307,149,611,403")
    esperar_valor("the text window's size", lambda: e.rectangulo(e.texto())[2:], (611, 403))
    esperar_valor("the main window's size", lambda: e.rectangulo(e.principal)[2:], (150, 327))
    primeras = vistas(e)
    e.cerrar()
    guardadas = [e.ajuste("PosTam", clave) for clave in CLAVES]
    fuera_principal, fuera_texto = ([str(v * 15) for v in primeras[i]] for i in (1, 3))
    assert guardadas == fuera_principal[:2] + ["0"] + fuera_texto, guardadas

    for _ in range(10):
        e.iniciar()
        esperar_valor("the windows", lambda: vistas(e), primeras)
        e.cerrar()
        assert [e.ajuste("PosTam", clave) for clave in CLAVES] == guardadas


recorrer(recorrido)
