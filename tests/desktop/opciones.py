"""The options panel: font and colours through the real dialogs, in Spanish, and from run to run."""
from escritorio import esperar, esperar_valor, recorrer

FUENTE, FONDO = "Fuente de letra", "Color del fondo"
BOTON_FUENTE, BOTON_FONDO, AJUSTAR = (60, 55), (160, 55), (20, 210)
LEJOS = (400, 300)  # a place in the text box that no panel covers
INGLES = {"Font", "Font style", "Size", "Effects", "Sample", "Underline", "Strikeout", "Any",
          "Writing System", "Bold", "Regular", "OK", "Cancel", "Basic colors", "Custom colors",
          "Add to Custom Colors", "Pick Screen Color", "Hue:", "Sat:", "Val:", "Red:", "Green:"}


def abrir_dialogo(e, boton, titulo):
    e.pulsar(e.texto(), *boton)
    dialogo = e.esperar_ventana(f"^{titulo}$")
    e.esperar_foco(dialogo)
    nombres = {nombre.replace("&", "") for papel, nombre, _ in e.accesibles()
               if papel != "list item"}  # families and styles are the fonts' own names
    assert not nombres & INGLES, nombres & INGLES
    return dialogo


def responder(e, dialogo, teclas):
    e.teclas(*teclas)
    esperar("the dialog closed", lambda: dialogo not in e.orden(
        "xdotool", "search", "--onlyvisible", "--name", "^(Fuente|Color) del? "))


def elegir_color(e, dialogo, numero):
    e.teclas("alt+h", "ctrl+a")
    e.escribir(numero)
    responder(e, dialogo, ["Return"])


def color_de(e, x, y):
    izquierda, arriba = e.rectangulo(e.texto())[:2]
    e.captura(e.raiz / "pantalla.png")
    return e.orden("convert", str(e.raiz / "pantalla.png"), "-format",
                   f"%[hex:u.p{{{izquierda + x},{arriba + y}}}]", "info:")[:6]


def recorrido(e):
    archivo = e.crear("nota.txt", "Una línea larga. ".encode("cp1252") * 40)
    e.iniciar()
    e.abrir(archivo)
    e.pulsar_icono("Opciones")
    esperar("the options panel", lambda: "Opciones:" in e.nombres())
    e.esperar_foco(e.texto())

    fuente = abrir_dialogo(e, BOTON_FUENTE, FUENTE)
    e.teclas("alt+u", "alt+c")
    color = e.esperar_ventana("^Color del texto$")
    e.esperar_foco(color)
    elegir_color(e, color, "#ff0000")
    e.esperar_foco(fuente)
    responder(e, fuente, ["Return"])
    e.esperar_foco(e.texto())
    elegir_color(e, abrir_dialogo(e, BOTON_FONDO, FONDO), "#ffff00")
    esperar_valor("the background", lambda: color_de(e, *LEJOS), "FFFF00")
    responder(e, abrir_dialogo(e, BOTON_FONDO, FONDO), ["Escape"])
    e.pulsar(e.texto(), *AJUSTAR)
    assert e.ajuste("Fondo", "Color") is None, "stored before the panel closed"

    e.pulsar_entrada(5)  # below the entries: only the window changes
    esperar("the panel closed", lambda: "Opciones:" not in e.nombres())
    esperado = {"Nombre": "Courier", "Tamaño": "9,75", "Negrita": "No", "Subrayada": "Si",
                "Color": "255"}
    assert {c: e.ajuste("Fuente", c) for c in esperado} == esperado
    assert e.ajuste("Fondo", "Color") == "65535"
    assert e.ajuste("Opciones", "Ajustar") == "No"
    e.cerrar()

    e.iniciar()
    e.abrir(archivo)
    esperar_valor("the background", lambda: color_de(e, *LEJOS), "FFFF00")
    e.cerrar()


recorrer(recorrido)
