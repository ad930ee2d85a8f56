"""Where the windows are and which one has the keyboard, whatever the window manager does of its
own accord: restoring, closing and reopening, many starts."""
import time

from escritorio import GUARDAR, esperar, esperar_valor, recorrer

CLAVES = ("PrinIzda", "PrinArriba", "TextoEdo", "TextoIzda", "TextoArriba", "TextoAncho",
          "TextoAlto")
QUIETO = 0.3  # seconds in which a keyboard that is given back too late shows itself


def esperar_quieto(e, ventana):
    e.esperar_foco(ventana)
    time.sleep(QUIETO)
    e.esperar_foco(ventana)


def abrir_tres(e):
    archivos = [e.crear(f"{letra}.txt", letra.encode()) for letra in "abc"]
    for archivo in archivos:
        e.abrir(archivo)
    return archivos


def elegir_con_texto_minimizado(e, archivos):
    """The text comes back, the keyboard stays in the list: Delete is the list's at once."""
    for elegir, indice in ((lambda: e.pulsar_entrada(0), 0), (lambda: e.teclas("Down"), 1),
                           (lambda: e.pulsar_icono("Siguiente"), 2)):
        texto = e.texto()
        e.minimizar(texto)
        e.traer(e.principal)
        elegir()
        esperar("the text window restored", lambda: not e.minimizada(texto))
        e.esperar_texto(archivos[indice])
        esperar_quieto(e, e.principal)
    e.minimizar(e.texto())
    e.traer(e.principal)
    e.pulsar_entrada(1)
    e.teclas("Delete")
    esperar_valor("the list", e.entradas, ["a.txt", "c.txt"])
    e.abrir(archivos[1])


def minimizar_las_dos(e, archivos):
    texto = e.texto()
    e.minimizar(texto)
    e.minimizar(e.principal)
    e.traer(e.principal)
    esperar("both windows back", lambda: not e.minimizada(texto) and not e.minimizada(e.principal))
    esperar_quieto(e, e.principal)
    assert e.titulo(e.principal) == "Velda..."
    e.minimizar(e.principal)
    e.traer(texto)
    e.escribir_en_texto("x")
    e.pulsar_panel(GUARDAR)
    esperar("the main window back", lambda: not e.minimizada(e.principal))
    esperar_quieto(e, e.principal)
    esperar_valor("the file", archivos[1].read_bytes, b"bx")


def cerrar_el_texto(e, archivos):
    """By its frame, the keyboard in it: then it is the list's, also when the window is back."""
    for entrada in (0, 1):
        e.escribir_en_texto("")
        e.cerrar_por_marco(e.texto())
        esperar("the text window gone", lambda: not e.texto())
        esperar_quieto(e, e.principal)
        e.pulsar_entrada(entrada)
        e.esperar_texto(archivos[entrada])
        esperar_quieto(e, e.principal)
        e.pulsar(e.texto(), 300, 200)  # and the text's as soon as it is clicked
        esperar_quieto(e, e.texto())


def cerrar_maximizado(e, archivos):
    texto = e.texto()
    antes = e.rectangulo_exterior(texto)
    e.maximizar(texto, True)
    e.pulsar(texto, 600, 500)
    e.cerrar_ventana(texto)
    esperar("the text window gone", lambda: not e.texto())
    e.pulsar_entrada(0)
    e.esperar_texto(archivos[0])
    esperar_quieto(e, e.principal)
    e.esperar_maximizada(e.texto(), True)
    e.maximizar(e.texto(), False)
    esperar_valor("the last normal rectangle", lambda: e.rectangulo_exterior(e.texto()), antes)


def vistas(e):
    return [medir(ventana) for ventana in (e.principal, e.texto())
            for medir in (e.rectangulo, e.rectangulo_exterior)]


def guardadas(e):
    return [e.ajuste("PosTam", clave) for clave in CLAVES]


def cerrar_y_empezar(e):
    """Position and size stay the same to the pixel."""
    e.orden("wmctrl", "-i", "-r", e.texto(), "-e", "0,307,149,611,403")
    esperar_valor("the text window's size", lambda: e.rectangulo(e.texto())[2:], (611, 403))
    primeras = vistas(e)
    e.cerrar()
    fuera_principal, fuera_texto = ([str(v * 15) for v in primeras[i]] for i in (1, 3))
    esperadas = fuera_principal[:2] + ["0"] + fuera_texto
    if not e.mide_marcos:
        esperadas = guardadas(e)
    assert guardadas(e) == esperadas, (guardadas(e), esperadas)
    for _ in range(5):
        e.iniciar()
        esperar_valor("the windows", lambda: vistas(e), primeras)
        e.cerrar()
        assert guardadas(e) == esperadas, (guardadas(e), esperadas)
    return esperadas


def empezar_minimizado(e, esperadas):
    """A minimised text window comes back with the main one; minimised windows keep their places."""
    e.iniciar()
    e.minimizar(e.texto())
    e.minimizar(e.principal)
    e.cerrar()
    assert guardadas(e) == esperadas[:2] + ["1"] + esperadas[3:], guardadas(e)
    e.iniciar()
    esperar("the text window restored", lambda: not e.minimizada(e.texto()))
    e.cerrar()
    assert guardadas(e) == esperadas, (guardadas(e), esperadas)


def recorrido(e):
    e.iniciar()
    archivos = abrir_tres(e)
    if e.minimiza:
        elegir_con_texto_minimizado(e, archivos)
        minimizar_las_dos(e, archivos)
    cerrar_el_texto(e, archivos)
    if e.minimiza:
        cerrar_maximizado(e, archivos)
    esperadas = cerrar_y_empezar(e)
    if e.minimiza:
        empezar_minimizado(e, esperadas)


recorrer(recorrido)
