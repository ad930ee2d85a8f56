"""How long it takes from a key to its picture, in a maximised window on X11, as seen from outside:
    python3 bench/tecla.py build/release/bin [1280x800,3840x2160] [keys of each kind]
Keys are sent through the X server's XTEST extension, and its DAMAGE extension says when something
was drawn in the window. What was drawn by a letter must look otherwise after the Backspace that
follows it. Milliseconds: median, 90th percentile.
"""
import ctypes
import os
import pathlib
import select
import statistics
import sys
import time

sys.path.append(str(pathlib.Path(__file__).parent.parent / "tests" / "desktop"))
from arranque import Pintado  # noqa: E402
from escritorio import TITULO_ABRIR, Escritorio  # noqa: E402

AJUSTES = "[PosTam]\r\nTextoEdo=0\r\n[Opciones]\r\nVisible=No\r\nAjustar={}\r\n"
LINEA = "{:08} En un lugar de la Mancha, de cuyo nombre no quiero acordarme, no ha mucho tiempo\n"
QUIETO = 0.004  # seconds without a picture after which the program has settled
PLAZO = 10
IMAGEN_ZPIXMAP = 2


class Imagen(ctypes.Structure):
    """The beginning of XImage."""
    _fields_ = [("ancho", ctypes.c_int), ("alto", ctypes.c_int), ("x", ctypes.c_int),
                ("formato", ctypes.c_int), ("datos", ctypes.c_void_p), ("orden", ctypes.c_int),
                ("unidad", ctypes.c_int), ("bits", ctypes.c_int), ("relleno", ctypes.c_int),
                ("profundidad", ctypes.c_int), ("bytes_por_linea", ctypes.c_int)]


class Teclado:
    """Sends keys and sees what is drawn in one window."""

    def __init__(self, ventana):
        self.x, self.damage, self.prueba = (
            ctypes.CDLL(f"lib{nombre}.so.{n}") for nombre, n in (("X11", 6), ("Xdamage", 1), ("Xtst", 6)))
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XGetImage.restype = ctypes.POINTER(Imagen)
        self.x.XStringToKeysym.restype = ctypes.c_ulong
        self.pantalla, self.ventana = ctypes.c_void_p(self.x.XOpenDisplay(None)), ctypes.c_ulong(ventana)
        base, error = ctypes.c_int(), ctypes.c_int()
        self.damage.XDamageQueryExtension(self.pantalla, ctypes.byref(base), ctypes.byref(error))
        self.pintado = base.value
        self.damage.XDamageCreate(self.pantalla, self.ventana, 0)  # every rectangle is told
        self.x.XSync(self.pantalla, 0)

    def pintado_en(self, plazo):
        """The next rectangle drawn and when, or None."""
        if not self.x.XPending(self.pantalla):
            if not select.select([self.x.XConnectionNumber(self.pantalla)], [], [], plazo)[0]:
                return None
            if not self.x.XPending(self.pantalla):
                return self.pintado_en(plazo)
        ahora, suceso = time.perf_counter(), Pintado()
        self.x.XNextEvent(self.pantalla, ctypes.byref(suceso))
        return (ahora, tuple(suceso.zona)) if suceso.tipo == self.pintado else self.pintado_en(plazo)

    def reposar(self, segundos=0.0):
        limite = time.perf_counter() + segundos
        while self.pintado_en(QUIETO) or time.perf_counter() < limite:
            pass

    def pulsar(self, tecla):
        """Seconds from the key until all of its picture is there, and where that was."""
        codigo = self.x.XKeysymToKeycode(
            self.pantalla, ctypes.c_ulong(self.x.XStringToKeysym(tecla.encode())))
        self.reposar()
        comienzo = time.perf_counter()
        self.prueba.XTestFakeKeyEvent(self.pantalla, codigo, 1, ctypes.c_ulong(0))
        self.x.XFlush(self.pantalla)
        hallado = self.pintado_en(PLAZO)
        self.prueba.XTestFakeKeyEvent(self.pantalla, codigo, 0, ctypes.c_ulong(0))
        self.x.XFlush(self.pantalla)
        if hallado is None:
            raise AssertionError(f"{tecla} drew nothing")
        zonas = []
        while hallado:
            ultima, zona = hallado
            zonas.append(zona)
            hallado = self.pintado_en(QUIETO)
        izquierda, arriba = (min(zona[i] for zona in zonas) for i in (0, 1))
        derecha, abajo = (max(zona[i] + zona[i + 2] for zona in zonas) for i in (0, 1))
        return ultima - comienzo, (izquierda, arriba, derecha - izquierda, abajo - arriba)

    def aspecto(self, zona):
        self.x.XSync(self.pantalla, 0)
        imagen = self.x.XGetImage(self.pantalla, self.ventana, *zona, ctypes.c_ulong(-1),
                                  IMAGEN_ZPIXMAP)
        tamano = imagen.contents.bytes_por_linea * imagen.contents.alto
        copia = ctypes.string_at(imagen.contents.datos, tamano)
        self.x.XFree(ctypes.c_void_p(imagen.contents.datos))
        self.x.XFree(imagen)
        return copia


def texto_de(tamano):
    return "".join(LINEA.format(i) for i in range(tamano // len(LINEA))).encode()


def medir(teclado, teclas, veces):
    tiempos, antes = [], None
    for vuelta in range(veces + 10):
        segundos, zona = teclado.pulsar(teclas[vuelta % len(teclas)])
        aspecto = (zona, teclado.aspecto(zona))
        if aspecto == antes:
            raise AssertionError(f"{teclas[vuelta % len(teclas)]} changed nothing")
        antes = aspecto
        if vuelta >= 10:  # the first ones bring the save panel and warm up
            tiempos.append(1000 * segundos)
    tiempos.sort()
    return f"{statistics.median(tiempos):6.2f} {tiempos[int(len(tiempos) * 0.9)]:6.2f}"


def ir_al_medio(escritorio, ventana):
    """By the bar, which goes to where the middle button is pressed; then a click into the text."""
    _, _, ancho, alto = escritorio.rectangulo(ventana)
    escritorio.orden("xdotool", "mousemove", "--window", ventana, str(ancho - 10), str(alto // 2),
                     "click", "2", "mousemove", "--window", ventana, str(ancho // 3), str(alto // 2),
                     "click", "1")


def probar(binarios, pantalla, ajustar, texto, nombre, veces):
    with Escritorio(binarios, pantalla=pantalla) as e:
        del os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]  # nobody reads this screen aloud
        (e.bin / "Velda.INI").write_bytes(AJUSTES.format("Si" if ajustar else "No").encode())
        archivo = e.crear("texto.txt", texto)
        e.iniciar()
        e.pulsar_icono("Abrir")
        e.responder(TITULO_ABRIR, archivo)
        ventana = e.esperar_texto(archivo)
        e.maximizar(ventana, True)
        _, _, ancho, alto = e.rectangulo(ventana)
        e.pulsar(ventana, ancho // 2, alto // 2)
        e.esperar_foco(ventana)
        teclado = Teclado(int(ventana))
        columnas = []
        for ir in (lambda: e.teclas("ctrl+Home"), lambda: ir_al_medio(e, ventana),
                   lambda: e.teclas("ctrl+End")):
            ir()
            teclado.reposar(1.0)
            columnas.append(medir(teclado, ("a", "BackSpace"), veces))
        e.teclas("ctrl+Home")
        teclado.reposar(1.0)
        columnas.append(medir(teclado, ("Next", "Prior"), veces // 4)
                        if len(texto) > 1 << 20 and (ajustar or b"\n" in texto) else "")
        print(f"{pantalla:10} {nombre:10} {'wrapped' if ajustar else 'not wrapped':12}",
              *(f"{c:>15}" for c in columnas), flush=True)


def principal(binarios, pantallas="1280x800,3840x2160", veces="200"):
    textos = {"1 KB": texto_de(1 << 10), "10 MB": texto_de(10 << 20), "100 MB": texto_de(100 << 20),
              "10 MB, 1 l.": texto_de(10 << 20).replace(b"\n", b" ")}
    print(f"{'ms: median, 90 %':34} {'start':>15} {'middle':>15} {'end':>15} {'page down, up':>15}")
    for pantalla in pantallas.split(","):
        for nombre, texto in textos.items():
            for ajustar in (True, False):
                probar(binarios, pantalla, ajustar, texto, nombre, int(veces))


if __name__ == "__main__":
    principal(*sys.argv[1:])
