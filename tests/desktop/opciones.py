"""What is chosen through the toolkit's own dialogs, all of them in Spanish, and by keyboard in the
panels; and what of it the next run knows."""
from escritorio import TITULO_ABRIR, esperar, esperar_valor, recorrer

FUENTE, FONDO = "Fuente de letra", "Color del fondo"
BOTON_FUENTE, BOTON_FONDO, AJUSTAR = (60, 55), (160, 55), (20, 210)
LEJOS = (400, 300)  # a place in the text box that no panel covers
INGLES = {"Font", "Font style", "Size", "Effects", "Sample", "Underline", "Strikeout", "Any",
          "Writing System", "Bold", "Regular", "OK", "Cancel", "Basic colors", "Custom colors",
          "Add to Custom Colors", "Pick Screen Color", "Hue:", "Sat:", "Val:", "Red:", "Green:",
          "Open", "Back", "Parent Directory", "Look in:", "Directory:", "File name:"}


def en_dialogo(e, titulo, *teclas):
    """Once it is there and in Spanish; `teclas` leave it."""
    dialogo = e.esperar_ventana(f"^{titulo}$")
    e.esperar_foco(dialogo)
    nombres = esperar("the dialog's controls", lambda: {
        nombre.replace("&", "") for papel, nombre, _ in e.accesibles()
        if papel not in ("list item", "table cell")})  # the fonts' and the files' own names
    assert "Cancelar" in nombres and not nombres & INGLES, nombres
    e.teclas(*teclas)
    return dialogo


def elegir_color(e, titulo, numero):
    dialogo = en_dialogo(e, titulo, "alt+h", "ctrl+a")
    e.escribir(numero)
    e.teclas("Return")
    esperar("the dialog closed", lambda: dialogo != e.ventana(f"^{titulo}$"))


def color_lejos(e):
    izquierda, arriba = e.rectangulo(e.texto())[:2]
    e.captura(e.raiz / "pantalla.png")
    return e.orden("convert", str(e.raiz / "pantalla.png"), "-format",
                   f"%[hex:u.p{{{izquierda + LEJOS[0]},{arriba + LEJOS[1]}}}]", "info:")[:6]


def aspecto(e):
    e.pulsar_icono("Opciones")
    esperar("the options panel", lambda: "Opciones:" in e.nombres())
    e.esperar_foco(e.texto())
    e.pulsar(e.texto(), *BOTON_FUENTE)
    fuente = en_dialogo(e, FUENTE, "alt+u", "alt+c")
    elegir_color(e, "Color del texto", "#ff0000")
    e.esperar_foco(fuente)
    e.teclas("Return")
    e.esperar_foco(e.texto())
    e.pulsar(e.texto(), *BOTON_FONDO)
    elegir_color(e, FONDO, "#ffff00")
    esperar_valor("the background", lambda: color_lejos(e), "FFFF00")
    e.pulsar(e.texto(), *AJUSTAR)
    assert e.ajuste("Fondo", "Color") is None, "stored before the panel closed"
    e.pulsar_entrada(5)  # below the entries: only the window changes
    esperar("the panel closed", lambda: "Opciones:" not in e.nombres())
    esperado = {"Nombre": "Courier", "Tamaño": "9,75", "Negrita": "No", "Subrayada": "Si",
                "Color": "255"}
    assert {c: e.ajuste("Fuente", c) for c in esperado} == esperado
    assert (e.ajuste("Fondo", "Color"), e.ajuste("Opciones", "Ajustar")) == ("65535", "No")


def favoritas(e):
    """The first folder of the user's home is added in the manager; leaving it stores the list."""
    e.pulsar_icono("Favoritas")
    esperar("the manager", lambda: "> Listo..." in e.nombres())
    e.esperar_foco(e.texto())
    e.teclas("Tab", "Down", "Return", "Tab", "space")
    esperar("the folder added", lambda: "> Carpeta añadida (1)" in e.nombres())
    e.pulsar_icono("Favoritas")
    esperar_valor("the list", e.entradas, ["á.txt", "b.TXT", "nota.txt"])


def siempre_visible(e, encima):
    esperar_valor("kept above at the start", lambda: e.encima(e.principal), encima)
    sitio = e.rectangulo(e.principal)
    for _ in range(3):
        e.pulsar_icono("S.Visible")
        encima = not encima
        esperar_valor("kept above", lambda: e.encima(e.principal), encima)
    assert e.rectangulo(e.principal) == sitio


def recorrido(e):
    archivo = e.crear("nota.txt", "Una línea larga. ".encode("cp1252") * 40)
    carpeta = e.raiz / "casa" / "Años ñ"
    carpeta.mkdir()
    for nombre in ("b.TXT", "á.txt", "nota.md"):
        (carpeta / nombre).write_text(nombre)
    e.iniciar()
    e.pulsar_icono("Abrir")
    en_dialogo(e, TITULO_ABRIR, "Escape")
    e.abrir(archivo)
    aspecto(e)
    favoritas(e)
    if e.gestor is None:
        return  # nobody closes a window
    if e.tiene_capas:
        siempre_visible(e, True)
    e.cerrar()
    e.iniciar()
    e.abrir(archivo)
    esperar_valor("the background", lambda: color_lejos(e), "FFFF00")
    if e.tiene_capas:
        siempre_visible(e, False)
    e.cerrar()


recorrer(recorrido)
