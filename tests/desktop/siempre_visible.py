"""The main window above all others, as the window manager sees it, and from run to run."""
from escritorio import esperar_valor, recorrer


def recorrido(e):
    esta_encima = lambda: e.encima(e.principal)
    encima = True  # without settings
    for _ in range(3):
        e.iniciar()
        esperar_valor("kept above at the start", esta_encima, encima)
        sitio = e.rectangulo(e.principal)
        for _ in range(3):
            e.pulsar_icono("S.Visible")
            encima = not encima
            esperar_valor("kept above", esta_encima, encima)
        assert e.rectangulo(e.principal) == sitio
        e.cerrar()
        assert e.ajuste("Opciones", "Visible") == ("Si" if encima else "No")


recorrer(recorrido)
