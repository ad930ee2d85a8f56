"""A desktop of its own for one journey through the program: X server, window manager, message bus,
screen reader's bus and home folder, all private and gone afterwards. Nothing sleeps for a fixed
time: what is expected is waited for, and named when it does not come.
"""
import configparser
import contextlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PLAZO = 60  # seconds until something expected counts as missing; generous, for a busy machine
# The icons of the main window, from their rectangles in twips: left, top, width, height.
TABLA = pathlib.Path(__file__).resolve().parents[2] / "src/main_window/iconos.inc"
ICONOS = {nombre: tuple(map(int, numeros.split(","))) for nombre, numeros in re.findall(
    r'^ICONO.*u"(.+?)",((?: *\d+,){3} *\d+)', TABLA.read_text("utf-8"), re.M)}
LISTA = (18, 145)  # the list's corner in the main window, pixels
ALTO_ENTRADA = 13  # roughly; only the first entries are clicked
GUARDAR, CANCELAR = 87, 46  # the save panel's buttons, pixels from the right edge
TITULO_ABRIR, TITULO_GUARDAR = "Abrir archivos...", "Guardar archivo..."
# The window managers that the journeys know, and how each is started.
GESTORES = {
    "openbox": ("openbox",), "xfwm4": ("xfwm4", "--compositor=off"),
    "mutter": ("mutter", "--x11", "--sm-disable"), "kwin": ("kwin_x11",),
    "metacity": ("metacity", "--no-composite"), "icewm": ("icewm",), "fluxbox": ("fluxbox",),
    "jwm": ("jwm",), "i3": ("i3", "-c", "CASA/i3"),
}


def esperar(que, condicion, plazo=PLAZO):
    """Polls until `condicion()` is true and returns that value."""
    limite = time.monotonic() + plazo
    while True:
        valor = condicion()
        if valor:
            return valor
        if time.monotonic() > limite:
            raise AssertionError(f"expected in vain: {que}")
        time.sleep(0.04)


def esperar_valor(que, leer, esperado, plazo=PLAZO):
    vistos = []
    try:
        esperar(que, lambda: vistos.append(leer()) or vistos[-1] == esperado, plazo)
    except AssertionError:
        raise AssertionError(f"{que}: expected {esperado!r}, seen {vistos[-1]!r}") from None


class Escritorio:
    def __init__(self, binarios, gestor="openbox", pantalla="1280x1024"):
        """`gestor` is one of GESTORES, None for a screen without one."""
        self.gestor, self.pantalla = gestor, pantalla
        self.procesos = []
        self.programa = None
        self.principal = None  # the main window's number
        self.raiz = pathlib.Path(tempfile.mkdtemp(prefix="velda-"))
        self.textos = self.raiz / "textos"
        self.bin = self.raiz / "programa"  # a copy, so that the settings lie beside it
        self.direcciones = self.raiz / "direcciones"  # what was handed to xdg-open
        for carpeta in ("casa", "ejecucion", "ordenes", "textos"):
            (self.raiz / carpeta).mkdir(mode=0o700)
        shutil.copytree(binarios, self.bin)
        (self.bin / "Velda.INI").unlink(missing_ok=True)

    def __enter__(self):
        try:
            self._encender()
        except BaseException:
            self._apagar()
            raise
        return self

    def __exit__(self, *_):
        self._apagar()

    # --- the desktop

    def _encender(self):
        abridor = self.raiz / "ordenes" / "xdg-open"
        abridor.write_text(f'#!/bin/sh\necho "$1" >> {self.direcciones}\n')
        abridor.chmod(0o755)
        for nombre in [n for n in os.environ if n.startswith(("QT_", "XDG_", "WAYLAND_", "LC_"))]:
            del os.environ[nombre]
        os.environ.update(
            HOME=str(self.raiz / "casa"), XDG_RUNTIME_DIR=str(self.raiz / "ejecucion"),
            PATH=f"{self.raiz}/ordenes:{os.environ['PATH']}", LC_ALL="C", LANG="C",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        pantalla = self._arrancar_y_leer(
            "Xvfb", "-displayfd", "1", "-screen", "0", f"{self.pantalla}x24", "-noreset",
            "-nolisten", "tcp")
        os.environ["DISPLAY"] = ":" + pantalla
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._arrancar_y_leer(
            "dbus-daemon", "--session", "--nofork", "--print-address=1")
        self._arrancar("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        esperar("the screen reader's bus", lambda: "unix:" in self.orden(
            "xprop", "-root", "AT_SPI_BUS"))
        if self.gestor:
            self._gestionar(*GESTORES[self.gestor])

    def _gestionar(self, *orden):
        """Starts the window manager and waits until it manages windows, not only says its name."""
        archivo = self.raiz / "casa" / ".jwmrc"
        archivo.write_text('<?xml version="1.0"?><JWM><FocusModel>click</FocusModel></JWM>\n')
        (self.raiz / "casa" / "i3").write_text(
            '# i3 config file (v4)\nfont fixed\nfocus_follows_mouse no\n'
            'for_window [class="velda"] floating enable\n')
        self._arrancar(*(parte.replace("CASA", os.environ["HOME"]) for parte in orden))
        esperar("the window manager", lambda: self.orden("wmctrl", "-m"))
        lista = "_NET_WORKAREA" if self.gestor == "xfwm4" else "_NET_CLIENT_LIST"  # it has none yet
        esperar("its list of windows", lambda: "not found" not in self.orden(
            "xprop", "-root", lista))

    def _arrancar(self, *orden, salida=subprocess.DEVNULL):
        proceso = subprocess.Popen(orden, stdin=subprocess.DEVNULL, stdout=salida,
                                   stderr=subprocess.DEVNULL, start_new_session=True)
        self.procesos.append(proceso)
        return proceso

    def _arrancar_y_leer(self, *orden):
        linea = self._arrancar(*orden, salida=subprocess.PIPE).stdout.readline().decode().strip()
        if not linea:
            raise RuntimeError(f"{orden[0]} did not start")
        return linea

    def _apagar(self):
        for proceso in reversed(self.procesos):
            with contextlib.suppress(ProcessLookupError):
                os.killpg(proceso.pid, signal.SIGKILL)
            proceso.wait()
        shutil.rmtree(self.raiz, ignore_errors=True)

    @staticmethod
    def orden(*orden):
        """What a command prints; empty when it fails."""
        hecho = subprocess.run(orden, stdin=subprocess.DEVNULL, capture_output=True, timeout=PLAZO,
                               check=False)
        return hecho.stdout.decode(errors="replace") if hecho.returncode == 0 else ""

    def captura(self, archivo):
        pathlib.Path(archivo).parent.mkdir(parents=True, exist_ok=True)
        self.orden("import", "-silent", "-window", "root", str(archivo))

    # --- the program

    def iniciar(self):
        """Starts the program and waits for its two windows."""
        with open(self.raiz / "salida.txt", "ab") as salida:
            self.programa = subprocess.Popen([str(self.bin / "velda")],
                                             cwd=self.raiz, stdin=subprocess.DEVNULL,
                                             stdout=salida, stderr=salida, start_new_session=True)
        self.procesos.append(self.programa)
        self.principal = self.esperar_ventana(r"^Velda\.\.\.$")
        self.esperar_texto("?")

    def cerrar(self):
        """Closes the main window; the program must end with code 0."""
        self.cerrar_ventana(self.principal)
        esperar("the end of the program", lambda: self.programa.poll() is not None)
        assert self.programa.returncode == 0, f"exit code {self.programa.returncode}"
        self.procesos.remove(self.programa)

    def crear(self, nombre, contenido=b""):
        (self.textos / nombre).write_bytes(contenido)
        return self.textos / nombre

    def ajuste(self, seccion, clave):
        """A value of the settings file without its blanks, or None."""
        ajustes = configparser.ConfigParser(interpolation=None)
        ajustes.read(self.bin / "Velda.INI", "cp1252")
        return ajustes.get(seccion, clave, fallback=None)

    # --- windows

    def ventana(self, titulo):
        """The number of the visible window whose title matches, or None."""
        return (self.orden("xdotool", "search", "--onlyvisible", "--name", titulo).split()
                or [None])[0]

    def esperar_ventana(self, titulo):
        return esperar(f"a window {titulo}", lambda: self.ventana(titulo))

    def texto(self):
        return self.ventana("^Archivo: ")

    def esperar_texto(self, documento):
        """Waits until the text window's title names `documento`; returns its number."""
        esperar_valor("the text window's title",
                      lambda: self.titulo(self.texto()), f"Archivo: {documento}")
        return self.texto()

    def titulo(self, ventana):
        return ventana and self.orden("xdotool", "getwindowname", ventana).rstrip("\n")

    def enfocada(self):
        return self.orden("xdotool", "getwindowfocus", "-f").strip()

    def esperar_foco(self, ventana):
        esperar_valor(f"the keyboard in {self.titulo(ventana)!r}", self.enfocada, ventana)

    def propiedad(self, ventana, nombre):
        return self.orden("xprop", "-id", ventana, nombre)

    @property
    def mide_marcos(self):
        """Does the window manager tell what its frames take?"""
        return self.gestor not in (None, "i3")

    @property
    def tiene_capas(self):
        """Can a window leave the upper layer that it came in?"""
        return self.gestor not in (None, "i3", "icewm")

    @property
    def minimiza(self):
        """Can this desktop minimise and maximise a window?"""
        return self.gestor not in (None, "i3")

    def minimizar(self, ventana):
        self.orden("xdotool", "windowminimize", ventana)
        esperar("the window minimised", lambda: self.minimizada(ventana))

    def traer(self, ventana):
        """As a task bar does."""
        self.orden("wmctrl", "-i", "-a", ventana)
        esperar("the window restored", lambda: not self.minimizada(ventana))
        self.esperar_foco(ventana)

    def maximizar(self, ventana, si):
        self.orden("wmctrl", "-i", "-r", ventana, "-b",
                   f"{'add' if si else 'remove'},maximized_vert,maximized_horz")
        self.esperar_maximizada(ventana, si)

    def esperar_maximizada(self, ventana, si):
        esperar_valor("the window maximised", lambda: "MAXIMIZED_VERT" in self.propiedad(
            ventana, "_NET_WM_STATE"), si)

    def minimizada(self, ventana):
        return "Iconic" in self.propiedad(ventana, "WM_STATE")

    def encima(self, ventana):
        """Does the window manager keep it above the others?"""
        return "_NET_WM_STATE_ABOVE" in self.propiedad(ventana, "_NET_WM_STATE")

    def cerrar_ventana(self, ventana):
        self.orden("wmctrl", "-i", "-c", ventana)

    def cerrar_por_marco(self, ventana):
        """With the button at the right end of its title, where a frame has one."""
        if "=" not in self.propiedad(ventana, "_NET_FRAME_EXTENTS"):
            self.cerrar_ventana(ventana)
            return
        x, y, ancho, _ = self.rectangulo_exterior(ventana)
        alto = self.rectangulo(ventana)[1] - y
        self.orden("xdotool", "mousemove", str(x + ancho - alto // 2 - 2), str(y + alto // 2 + 1),
                   "click", "1")
        try:
            esperar("its end", lambda: ventana != self.texto(), plazo=1)
        except AssertionError:
            self.cerrar_ventana(ventana)

    def rectangulo(self, ventana):
        """x, y, width, height of the inside, pixels on the screen."""
        return tuple(map(int, re.findall(r"(?:Absolute .*|Width|Height): +(-?\d+)",
                                         self.orden("xwininfo", "-id", ventana))))

    def rectangulo_exterior(self, ventana):
        """The same with the frame that the window manager draws, where it tells of one."""
        margenes = self.propiedad(ventana, "_NET_FRAME_EXTENTS").partition("=")[2] or "0,0,0,0"
        x, y, ancho, alto = self.rectangulo(ventana)
        izquierda, derecha, arriba, abajo = (int(m) for m in margenes.split(","))
        return x - izquierda, y - arriba, ancho + izquierda + derecha, alto + arriba + abajo

    # --- mouse and keys

    def pulsar(self, ventana, x, y):
        self.orden("xdotool", "mousemove", "--window", ventana, str(int(x)), str(int(y)),
                   "click", "1")

    def pulsar_icono(self, nombre):
        self.pulsar(self.principal, 5, 325)  # elsewhere, so that no double click comes of it
        izquierda, arriba, ancho, alto = ICONOS[nombre]
        self.pulsar(self.principal, (izquierda + ancho / 2) / 15, (arriba + alto / 2) / 15)

    def pulsar_entrada(self, indice):
        self.pulsar(self.principal, LISTA[0] + 30, LISTA[1] + 8 + indice * ALTO_ENTRADA)

    def pulsar_panel(self, desde_derecha):
        """GUARDAR or CANCELAR of the save panel, once it is there."""
        esperar("the save panel", self.panel_visible)
        ventana = self.texto()
        self.pulsar(ventana, self.rectangulo(ventana)[2] - desde_derecha, 28)

    def teclas(self, *nombres):
        self.orden("xdotool", "key", "--delay", "20", *nombres)

    def escribir(self, texto):
        self.orden("xdotool", "type", "--delay", "15", str(texto))

    def escribir_en_texto(self, texto):
        """Clicks into the text and types."""
        ventana = self.texto()
        self.pulsar(ventana, 60, 60)
        self.esperar_foco(ventana)
        self.escribir(texto)

    def texto_mostrado(self):
        """The whole text, selected by keys that mark no edit; leaves the keyboard in it."""
        self.escribir_en_texto("")
        self.teclas("ctrl+Home", "ctrl+shift+End")
        return self.orden("xclip", "-o", "-selection", "primary")

    def responder(self, titulo, ruta):
        """Types a path into a file dialog and accepts it; None cancels it."""
        dialogo = self.esperar_ventana(titulo)
        self.esperar_foco(dialogo)
        if ruta is not None:
            self.escribir(ruta)
        self.teclas("Escape" if ruta is None else "Return")
        esperar(f"{titulo} closed", lambda: not self.ventana(titulo))

    def abrir(self, ruta):
        self.pulsar_icono("Abrir")
        self.responder(TITULO_ABRIR, ruta)
        self.esperar_texto(ruta)
        self.esperar_foco(self.principal)

    # --- what a screen reader sees

    def accesibles(self):
        """All that the program shows now, as (role, name, object)."""
        import pyatspi  # speaks to the bus of this desktop, so not before it is there
        hallados = []

        def bajar(objeto):
            if objeto is None or not objeto.getState().contains(pyatspi.STATE_SHOWING):
                return
            hallados.append((objeto.getRoleName(), objeto.name, objeto))
            for hijo in objeto:
                bajar(hijo)
        escritorio = pyatspi.Registry.getDesktop(0)
        escritorio.clear_cache()
        for programa in escritorio:
            if programa is not None and programa.name == "velda":
                for ventana in programa:
                    bajar(ventana)
        return hallados

    def nombres(self):
        return [nombre for _, nombre, _ in self.accesibles()]

    def panel_visible(self):
        return "Guardar cambios..." in self.nombres()

    def entradas(self):
        """The names in the list of files."""
        return [nombre for papel, nombre, _ in self.accesibles() if papel == "list item"]


def gestor_de(opciones):
    """The window manager that a command line names; "ninguno" is none."""
    if "ninguno" in opciones:
        return None
    return next((nombre for nombre in opciones if nombre in GESTORES), "openbox")


def recorrer(recorrido):
    """The body of a journey's script: SCRIPT BINARIES FOLDER_FOR_PICTURES [MANAGER]."""
    binarios, capturas, *opciones = sys.argv[1:]
    with Escritorio(binarios, gestor_de(opciones)) as escritorio:
        try:
            recorrido(escritorio)
        except BaseException:
            imagen = pathlib.Path(capturas) / (pathlib.Path(sys.argv[0]).stem + ".png")
            escritorio.captura(imagen)
            salida = escritorio.raiz / "salida.txt"
            print(f"Screenshot: {imagen}\nThe program said:\n"
                  + (salida.read_text(errors="replace") if salida.exists() else ""))
            raise
