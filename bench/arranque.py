"""How long the program takes from its start to its two windows on the screen, next to an empty Qt
Widgets program with one window, with two, and with two of which one shows two digits:
    python3 bench/arranque.py build/release/bin build/release/bench/vacio [starts of each]
The X server says what is drawn on the screen (its DAMAGE extension), a screen of their own with a
window manager; which of it filled a window is worked out once the program has settled, so that no
picture is missed on a busy machine. The programs take turns; the first round warms the caches and
does not count.
"""
import ctypes
import os
import pathlib
import select
import signal
import statistics
import subprocess
import sys
import time

sys.path.append(str(pathlib.Path(__file__).parent.parent / "tests" / "desktop"))
from escritorio import Escritorio  # noqa: E402

CREADA, SUCESOS_DE_HIJAS = 16, 1 << 19  # CreateNotify; SubstructureNotifyMask
BITS_DE_CLIENTE = 21  # of a number the upper ones tell whose window it is
LADO_MINIMO = 50  # pixels: smaller windows are the toolkit's own helpers
GRAN_PARTE = 0.9  # of a window's inside: the frame's measures may make it some pixels larger
REPOSO = 0.3  # seconds without a picture after which a program has settled
PLAZO = 20
AJUSTES = """[PosTam]\r\nPrinIzda=615\r\nPrinArriba=615\r\nTextoEdo=0\r\nTextoIzda=3200\r
TextoArriba=1425\r\nTextoAncho=8500\r\nTextoAlto=7200\r\n[Inicial]\r\nCarpeta=c:\\\r\n[Opciones]\r
Visible=Si\r\nConfirmar=Si\r\nFavoritas=No\r\nAjustar=Si\r\n[Fuente]\r\nNombre=Courier\r
Tamaño=10\r\nNegrita=No\r\nCursiva=No\r\nSubrayada=No\r\nTachada=No\r\nColor=0\r\n[Fondo]\r
Color=16777215\r\n"""


class Creacion(ctypes.Structure):
    """XCreateWindowEvent, filled up to the size of an XEvent."""
    _fields_ = [("tipo", ctypes.c_int), ("serie", ctypes.c_ulong), ("enviado", ctypes.c_int),
                ("pantalla", ctypes.c_void_p), ("madre", ctypes.c_ulong),
                ("ventana", ctypes.c_ulong), ("x", ctypes.c_int), ("y", ctypes.c_int),
                ("ancho", ctypes.c_int), ("alto", ctypes.c_int), ("resto", ctypes.c_long * 16)]


class Pintado(ctypes.Structure):
    """XDamageNotifyEvent, filled likewise."""
    _fields_ = [("tipo", ctypes.c_int), ("serie", ctypes.c_ulong), ("enviado", ctypes.c_int),
                ("pantalla", ctypes.c_void_p), ("ventana", ctypes.c_ulong),
                ("registro", ctypes.c_ulong), ("nivel", ctypes.c_int), ("quedan", ctypes.c_int),
                ("hora", ctypes.c_ulong), ("zona", ctypes.c_short * 4),
                ("entera", ctypes.c_short * 4), ("resto", ctypes.c_long * 16)]


def entera(zona, rectangulo):
    """Was a window drawn from its corner on, but for what it may have grown by since?"""
    return zona[:2] == rectangulo[:2] and \
        zona[2] * zona[3] > GRAN_PARTE * rectangulo[2] * rectangulo[3]


class Vigia:
    """Sees each new window of the screen and all that is drawn on it."""

    def __init__(self):
        self.x, self.damage = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXdamage.so.1")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = self.damage.XDamageCreate.restype = ctypes.c_ulong
        self.sin_ventana = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(
            lambda *_: 0)  # a window may be gone by the time it is asked
        self.x.XSetErrorHandler(self.sin_ventana)
        self.pantalla = ctypes.c_void_p(self.x.XOpenDisplay(None))
        base, error = ctypes.c_int(), ctypes.c_int()
        if not self.damage.XDamageQueryExtension(self.pantalla, ctypes.byref(base),
                                                 ctypes.byref(error)):
            raise RuntimeError("the X server has no DAMAGE extension")
        self.pintado = base.value
        self.raiz = ctypes.c_ulong(self.x.XDefaultRootWindow(self.pantalla))
        self.x.XSelectInput(self.pantalla, self.raiz, ctypes.c_long(SUCESOS_DE_HIJAS))
        self.damage.XDamageCreate(self.pantalla, self.raiz, 0)  # level 0: the raw rectangles
        self.x.XSync(self.pantalla, 1)

    def suceso(self, limite):
        """The next event and when it came, or None when there is none until `limite`."""
        if not self.x.XPending(self.pantalla):
            descriptor = self.x.XConnectionNumber(self.pantalla)
            if not select.select([descriptor], [], [], max(0, limite - time.monotonic()))[0]:
                return None
            if not self.x.XPending(self.pantalla):
                return self.suceso(limite)
        ahora, visto = time.monotonic(), Creacion()
        self.x.XNextEvent(self.pantalla, ctypes.byref(visto))
        return visto, ahora

    def ver(self, ventanas, comienzo):
        """Seconds until each of so many windows of one program was drawn whole, and until the last
        such picture."""
        programa, suyas, pintadas, visto = None, set(), [], comienzo
        while time.monotonic() < comienzo + PLAZO:
            hallado = self.suceso(visto + REPOSO)
            if not hallado:  # it has settled: are they all there?
                visto = time.monotonic()
                veces = [[cuando for cuando, zona in pintadas if entera(zona, rectangulo)]
                         for rectangulo in map(self.rectangulo, suyas)]
                veces = [una for una in veces if una]
                if len(veces) == ventanas:
                    return (max(una[0] for una in veces) - comienzo,
                            max(una[-1] for una in veces) - comienzo)
                continue
            suceso, visto = hallado
            if suceso.tipo == CREADA and min(suceso.ancho, suceso.alto) >= LADO_MINIMO:
                programa = programa or suceso.ventana >> BITS_DE_CLIENTE
                if suceso.ventana >> BITS_DE_CLIENTE == programa:  # not the frame around it
                    suyas.add(suceso.ventana)
            elif suceso.tipo == self.pintado:
                zona = ctypes.cast(ctypes.byref(suceso), ctypes.POINTER(Pintado)).contents.zona
                pintadas.append((visto, tuple(zona)))
        raise AssertionError(f"{len(suyas)} windows made, not {ventanas} of them drawn")

    def rectangulo(self, ventana):
        """x, y, width, height on the screen; zeros for a window that is not there any more."""
        x, y, ancho, alto, otro = ctypes.c_int(), ctypes.c_int(), *(ctypes.c_uint() for _ in range(3))
        madre, ventana = ctypes.c_ulong(), ctypes.c_ulong(ventana)
        referencias = map(ctypes.byref, (madre, x, y, ancho, alto, otro, otro))
        if not self.x.XGetGeometry(self.pantalla, ventana, *referencias):
            return 0, 0, 0, 0
        self.x.XTranslateCoordinates(self.pantalla, ventana, self.raiz, 0, 0,
                                     *map(ctypes.byref, (x, y, madre)))
        return x.value, y.value, ancho.value, alto.value


def arrancar(vigia, orden, ventanas):
    """Milliseconds to the first picture and to the last, and processor time of the whole."""
    comienzo = time.monotonic()
    programa = subprocess.Popen(orden, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)
    try:
        primera, ultima = vigia.ver(ventanas, comienzo)
    finally:
        os.kill(programa.pid, signal.SIGKILL)  # Popen.kill would take its account away
        gastado = os.wait4(programa.pid, 0)[2]
        programa.returncode = 0
    while vigia.suceso(time.monotonic() + REPOSO):
        pass
    return primera * 1000, ultima * 1000, (gastado.ru_utime + gastado.ru_stime) * 1000


def fuentes():
    """How many fonts the system has: the toolkit reads them all with the first letter."""
    return len(subprocess.run(["fc-list"], check=True, capture_output=True).stdout.splitlines())


def principal(binarios, vacio, veces=30):
    with Escritorio(binarios) as escritorio:
        del os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]  # nobody reads this screen aloud
        (escritorio.bin / "Velda.INI").write_bytes(AJUSTES.encode("cp1252"))
        programas = {"empty, 1 window": ([vacio, "1"], 1), "empty, 2 windows": ([vacio, "2"], 2),
                     "2 windows, 2 digits": ([vacio, "2", "00"], 2),
                     "velda": ([str(escritorio.bin / "velda")], 2)}
        tomadas = {nombre: [] for nombre in programas}
        vigia = Vigia()
        for vuelta in range(int(veces) + 1):
            for nombre, (orden, ventanas) in programas.items():
                tomada = arrancar(vigia, orden, ventanas)
                if vuelta > 0:
                    tomadas[nombre].append(tomada)
    print(f"{fuentes()} fonts")
    print("ms: median (lowest)      first picture      last picture        processor   / 1   / 2   / digits")
    suelos = [statistics.median(t[0] for t in suelo) for suelo in list(tomadas.values())[:3]]
    for nombre, suyas in tomadas.items():
        columnas = [f"{statistics.median(c):8.1f} ({min(c):6.1f})" for c in zip(*suyas)]
        veces_suelo = [f"{statistics.median(t[0] for t in suyas) / suelo:6.2f}" for suelo in suelos]
        print(f"{nombre:20}", *columnas, *veces_suelo)


if __name__ == "__main__":
    principal(*sys.argv[1:])
