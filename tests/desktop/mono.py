"""A monkey: random clicks, drags, keys, closings and reopenings in the real program while its files
vanish, change, become folders, pipes and links, or lose their permissions. The program must always
answer, write no file that is not being saved, and end with code 0 and no sanitizer's report.
  mono.py BINARIES PICTURES [SEED] [number of actions, or seconds as 600s]
All but the machine's speed follows from the seed. Needs root, to give it up: the program runs as a
user who owns nothing but the sandbox, and file dialogs are used for names in the sandbox only.
"""
import codecs
import collections
import hashlib
import os
import pathlib
import pwd
import random
import stat
import subprocess
import sys
import time

from escritorio import (CANCELAR, GUARDAR, ICONOS, LISTA, TITULO_ABRIR, TITULO_GUARDAR, esperar,
                        recorrer)
from pulso import Pulso

RESPUESTA = 20  # seconds within which the program answers, whatever it is doing
DUENO = pwd.getpwnam("uucp").pw_uid
NOMBRES = ["a.txt", "b.txt", "c d.txt", "largo.txt", "nota", "nuevo.txt", "Ñandú.txt", "z.TXT"]
CONTENIDOS = [b"", b"hola\n", b"uno\r\n\r\ntres", bytes(range(1, 256)) * 9, b"larga " * 200_000,
              b"\t<b>&x</b>\r" * 50, b"linea corta\n" * 5000]
PAGINA = "".join(bytes([n]).decode("cp1252", "ignore") or chr(n) for n in range(256))
ESCRITOS = ["hola", "Una linea\nOtra\n", "(a+b)*c", "niño €", "    ", "x" * 60]
NAVEGAR = ["Up", "Down", "Left", "Right", "Home", "End", "Prior", "Next"]
EDITAR = ["Delete", "BackSpace", "Return", "Tab", "Escape", "Insert", "ctrl+a", "ctrl+c", "ctrl+x",
          "ctrl+v", "ctrl+z", "ctrl+z", "ctrl+y", "shift+Insert", "ctrl+Delete", "ctrl+BackSpace",
          "ctrl+Home", "ctrl+End", "ctrl+shift+End", "shift+Down", "shift+Next", "Menu"]
GESTOS = {"click": "click 1", "double": "click --repeat 2 --delay 30 1", "right": "click 3",
          "triple": "click --repeat 3 --delay 30 1", "middle": "click 2",
          "shift": "keydown shift click 1 keyup shift", "up": "click --repeat 9 --delay 2 4",
          "down": "click --repeat 9 --delay 2 5",
          "drag": "mousedown 1 mousemove_relative -- {} {} sleep 0.05 mouseup 1"}
BOTONES = [(267, 49), (32, 84), (252, 123), (22, 129)]  # of the window that asks before a deletion
BORRAR = (100, 0, 150, 40)  # left, top, right, bottom; clicked only on purpose

Ventana = collections.namedtuple("Ventana", "numero ancho alto titulo")
Estado = collections.namedtuple("Estado", "nodo modo contenido")


class Mono:
    def __init__(self, e, semilla):
        self.e, self.azar, self.pulso = e, random.Random(semilla), Pulso()
        self.numero = self.seguidas = self.panel = 0
        self.permitidos, self.borrado, self.texto, self.contenidos = set(), False, None, {}
        self.papelera = e.raiz / "casa/.local/share/Trash/files"
        self.ajustes = {ruta: ruta.read_bytes() for ruta in e.bin.glob("*.INI")}
        self.antes = self.foto()

    def anotar(self, *que):
        self.numero += 1
        print(f"{self.numero:5}", *que, flush=True)

    def entre(self, **pesos):
        return self.azar.choices(list(pesos), pesos.values())[0]

    # --- what must hold after every action

    def foto(self):
        """The documents and what is in the bin, as path -> Estado."""
        foto = {}
        for ruta in (*self.e.textos.rglob("*"), *self.papelera.rglob("*")):
            dato = ruta.lstat()
            clave = (dato.st_ino, dato.st_ctime_ns, dato.st_size)
            if clave not in self.contenidos:
                self.contenidos[clave] = (
                    hashlib.md5(ruta.read_bytes()).hexdigest() if stat.S_ISREG(dato.st_mode)
                    else os.readlink(ruta) if stat.S_ISLNK(dato.st_mode) else "")
            foto[str(ruta)] = Estado(dato.st_ino, dato.st_mode, self.contenidos[clave])
        return foto

    def revisar(self):
        assert self.e.programa.poll() is None, f"the program ended: {self.e.programa.returncode}"
        assert self.pulso.responde(self.e.principal, RESPUESTA), "the program does not answer"
        ahora, vacio = self.foto(), hashlib.md5(b"").hexdigest()
        tirados = {estado.nodo for r, estado in ahora.items() if r.startswith(str(self.papelera))}
        for ruta in sorted(ahora.keys() | self.antes.keys()):
            antes, despues = self.antes.get(ruta), ahora.get(ruta)
            if antes == despues:
                continue
            if ruta in self.permitidos and despues:
                leido = codecs.charmap_decode(pathlib.Path(ruta).read_bytes(), "strict", PAGINA)[0]
                leido = leido.replace("\r\n", "\n").replace("\r", "\n")  # as a clipboard has it
                assert not antes or self.texto in (None, leido), (
                    f"not the text: {ruta}: {self.texto[:200]!r}, {leido[:200]!r}")
                bien = not antes or antes.modo == despues.modo
            else:  # a listed file that is missing is created when it is picked
                bien = not antes or self.borrado and antes.nodo in tirados
                bien &= (not despues or despues.nodo in tirados or despues.contenido == vacio
                         and pathlib.Path(ruta).name in NOMBRES)
            assert bien, f"changed unasked: {ruta}: {antes} -> {despues}"
            print("       ", "new" if not antes else "saved" if despues else "gone", ruta)
        self.antes, self.permitidos, self.borrado, self.texto = ahora, set(), False, None

    def permitir(self, *rutas):
        """What this action may change: the files and what they are links to."""
        self.permitidos = {str(r) for r in rutas} | {os.path.realpath(r) for r in rutas}

    # --- windows and gestures

    def ventanas(self):
        """The program's windows: those of the dialogs, and the main and the text window."""
        otras, fijas = [], []
        lista = esperar("the windows", lambda: self.e.orden("wmctrl", "-lpG"))
        for linea in lista.splitlines():  # it fails while one of them goes
            numero, _, proceso, _, _, ancho, alto, _, *titulo = linea.split(None, 8)
            if int(proceso) == self.e.programa.pid:
                v = Ventana(str(int(numero, 16)), int(ancho), int(alto), *titulo or [""])
                fija = v.numero == self.e.principal or v.titulo.startswith("Archivo: ")
                (fijas if fija else otras).append(v)
        return otras, fijas

    def raton(self, que, ventana, x, y, orden="click 1"):
        """Does that there, the window raised if need be; False when another one covers it."""
        self.anotar(que, ventana.titulo, x, y)
        for _ in range(2):
            self.e.orden("xdotool", "mousemove", "--window", ventana.numero, str(x), str(y))
            if ventana.numero in self.pulso.bajo_el_puntero():
                self.e.orden("xdotool", *orden.split())
                time.sleep(0.03)  # the window manager sees a click first
                return True
            self.e.orden("wmctrl", "-i", "-a", ventana.numero)
            time.sleep(0.1)
        print("       (covered)")
        return False

    def enfocar(self, ventana, x, y):
        """A click there; does the window have the keyboard then?"""
        limite = time.monotonic() + 1
        if not self.raton("focus", ventana, x, y):
            return False
        while self.e.enfocada() != ventana.numero:
            if time.monotonic() > limite:
                return False
        return self.pulso.responde(self.e.principal, RESPUESTA)

    def punto(self, ventana, prohibido):
        lado = 290 if self.panel else 10**4
        while True:
            x = self.azar.randrange(min(lado, ventana.ancho))
            y = self.azar.randrange(min(lado, ventana.alto))
            if not (prohibido[0] <= x < prohibido[2] and prohibido[1] <= y < prohibido[3]):
                return x, y

    def gesto(self, ventana, prohibido=(0, 0, 0, 0)):
        (x, y), (x2, y2) = self.punto(ventana, prohibido), self.punto(ventana, prohibido)
        que = self.azar.choice(list(GESTOS))
        self.raton(que, ventana, x, y, GESTOS[que].format(x2 - x, y2 - y))

    def teclas(self, teclas, cuantas):
        elegidas = self.azar.choices(teclas, k=self.azar.randint(1, cuantas))
        self.anotar("keys", *elegidas)
        self.e.orden("xdotool", "key", "--delay", "2", *elegidas)

    # --- actions in the main window and in the text window

    def en_principal(self, ventana):
        que = self.entre(icon=6, entry=5, gesture=3, keys=3)
        if que == "icon":
            nombre = self.azar.choice([*ICONOS, "Abrir", "Opciones", "Siguiente"])
            self.borrado, self.panel = nombre == "Borrar", 9 * (nombre in ("Opciones", "Favoritas"))
            izquierda, arriba, ancho, alto = ICONOS[nombre]
            self.raton(nombre, ventana, (izquierda + ancho // 2) // 15, (arriba + alto // 2) // 15)
        elif que == "entry":
            self.raton(que, ventana, LISTA[0] + 30, LISTA[1] + self.azar.randrange(130))
        elif que == "gesture":
            self.gesto(ventana, BORRAR)
        elif self.enfocar(ventana, 75, 95):
            self.teclas([*NAVEGAR, "Delete", "n", "a", "Escape"], 6)

    def leer_texto(self, ventana):
        """The text that the window shows, line ends as LF; None when it cannot be selected now."""
        subprocess.run(["xclip", "-i", "-selection", "primary"], stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
        if not self.enfocar(ventana, ventana.ancho // 2, 320):
            return None
        self.e.orden("xdotool", "key", "ctrl+Home", "ctrl+shift+End")
        self.pulso.responde(ventana.numero, RESPUESTA)
        return self.e.orden("xclip", "-o", "-selection", "primary")

    def en_texto(self, ventana):
        que = self.entre(type=5, keys=5, gesture=5, save=5, cancel=3)
        panel = (ventana.ancho - 130, 0, ventana.ancho, 60)
        if ventana.ancho < 150 or ventana.alto < 80:  # nothing but the panel could be met
            self.con_ventana(ventana)
        elif que == "save":
            self.texto = self.leer_texto(ventana)
            self.permitir(ventana.titulo.removeprefix("Archivo: "))
            self.raton(que, ventana, ventana.ancho - GUARDAR, 28)
        elif que == "cancel":
            self.raton(que, ventana, ventana.ancho - CANCELAR, 28)
        elif que == "gesture":
            self.gesto(ventana, panel)
        elif self.enfocar(ventana, *self.punto(ventana, panel)):
            if que == "keys":
                self.teclas(NAVEGAR + EDITAR, 12)
            else:
                escrito = self.azar.choice(ESCRITOS)
                self.anotar("type", repr(escrito))
                self.e.orden("xdotool", "type", "--delay", "2", escrito)

    # --- dialogs, message boxes, the deletion and the about window

    def en_otra(self, ventana):
        self.seguidas += 1
        self.borrado = ventana.titulo.startswith(("Eliminar: ", "PULSE "))
        que = self.entre(escape=4, close=1, keys=3, button=4, other=4)
        if self.borrado and que == "button":
            self.raton("button", ventana, *self.azar.choice(BOTONES))
        elif self.seguidas > 9:
            self.calmar()
        elif que == "escape":
            self.teclas(["Escape"], 2)
        elif ventana.titulo in (TITULO_ABRIR, TITULO_GUARDAR):
            self.en_archivo(ventana, que)
        elif que == "close":
            self.anotar(que, ventana.titulo)
            self.e.cerrar_ventana(ventana.numero)
        elif que == "keys":
            self.teclas([*NAVEGAR, "Tab", "space", "5"], 5)
        else:
            self.gesto(ventana)

    def en_archivo(self, ventana, que):
        """Nothing that could rename, delete, make a folder or take another folder's file."""
        if ventana.titulo == TITULO_GUARDAR:
            self.permitir(*(self.e.textos / nombre for nombre in NOMBRES))
        if que == "keys":
            self.teclas(NAVEGAR, 3)
        else:
            ruta = self.e.textos / self.azar.choice(NOMBRES)
            self.anotar("name", ruta.name)
            self.e.orden("xdotool", "key", "alt+n", "ctrl+a", "type", "--delay", "2", "--args", "1",
                         str(ruta), "sleep", "0.1", "key", "Return")

    def calmar(self):
        """Leaves menus, dialogs and the about window."""
        self.anotar("leave the dialogs")
        self.e.orden("xdotool", "key", "Escape")

        def libre():
            for ventana in reversed(self.ventanas()[0]):
                self.e.orden("xdotool", "windowfocus", ventana.numero, "key", "Escape")
                self.pulso.responde(self.e.principal, RESPUESTA)
                self.e.cerrar_ventana(ventana.numero)
            return not self.ventanas()[0]
        esperar("the dialogs gone", libre)

    # --- the windows as a whole, and the disk

    def con_ventana(self, ventana):
        que = self.entre(minimise=4, close=3, size=4, maximise=1, restart=1)
        self.anotar(que, ventana.titulo)
        rectangulo = ",".join(str(self.azar.randrange(n)) for n in (1, 600, 600, 900, 700))
        if que == "restart" or que == "close" and ventana.numero == self.e.principal:
            self.cerrar()
            self.e.iniciar()
        elif que == "minimise":
            self.e.orden("xdotool", "windowminimize", ventana.numero)
        else:
            self.e.orden("wmctrl", "-i", "-c" if que == "close" else "-r", ventana.numero, *{
                "size": ["-e", rectangulo], "close": [],
                "maximise": ["-b", "toggle,maximized_vert,maximized_horz"]}[que])

    def cerrar(self):
        self.calmar()
        self.e.orden("xdotool", "mousemove", "1279", "1023")
        self.e.orden("wmctrl", "-i", "-a", self.e.principal)
        self.e.cerrar()
        dicho = (self.e.raiz / "salida.txt").read_text(errors="replace")
        assert "Sanitizer" not in dicho and "runtime error" not in dicho, dicho
        assert not [*self.e.raiz.rglob(".velda-*")], "a temporary file stayed behind"

    def en_disco(self):
        """Changes a file under the program; any change elsewhere is the program's own."""
        carpeta = self.e.textos
        ruta = self.azar.choice([*(carpeta / nombre for nombre in NOMBRES), *self.ajustes])
        cerrada = stat.S_IMODE(carpeta.stat().st_mode) != 0o700
        que = "shut" if cerrada else self.entre(
            write=12, remove=4, folder=2, pipe=1, link=2, mode=4, shut=1)
        contenido = self.ajustes.get(ruta, self.azar.choice(CONTENIDOS))
        modo = self.azar.choice([0, 0o200, 0o444, 0o640])
        self.anotar("disk:", que, ruta.name)
        if que == "shut":
            carpeta.chmod(0o700 if cerrada else modo)
        elif que != "mode":
            if os.path.lexists(ruta):
                (ruta.rmdir if ruta.is_dir() and not ruta.is_symlink() else ruta.unlink)()
            {"folder": ruta.mkdir, "pipe": lambda: os.mkfifo(ruta), "remove": lambda: None,
             "link": lambda: ruta.symlink_to(self.azar.choice(NOMBRES)),
             "write": lambda: ruta.write_bytes(contenido)}[que]()
        elif ruta.is_file():
            ruta.chmod(modo)
        if os.path.lexists(ruta):
            os.chown(ruta, DUENO, DUENO, follow_symlinks=False)
        self.antes = self.foto()

    def actuar(self):
        (otras, fijas), suerte = self.ventanas(), self.azar.random()
        self.panel -= self.panel > 0  # for some time most actions go where a panel was opened
        ventana = fijas[-1] if self.panel else self.azar.choice([*fijas, fijas[-1], fijas[-1]])
        if suerte < 0.25:
            self.en_disco()
        elif otras and suerte < 0.90:
            self.en_otra(otras[-1])
        elif suerte < 0.30:
            self.con_ventana(ventana)
        else:
            self.seguidas = 0
            es_principal = ventana.numero == self.e.principal
            (self.en_principal if es_principal else self.en_texto)(ventana)
        self.revisar()


def preparar(e):
    archivos = {e.textos / nombre: "uno\r\ndos\r\n\r\ntres" for nombre in NOMBRES[:6]} | {
        e.bin / "Favoritas.INI": f"[Registros]\nTotal=1\n[Datos]\nF1={e.textos}\n",
        e.bin / "Velda.INI": f"[Inicial]\nCarpeta={e.textos}/\n[Opciones]\nFavoritas=Si\n"}
    for ruta, contenido in archivos.items():
        ruta.write_text(contenido)
        os.chown(ruta, DUENO, DUENO)


def recorrido(e):
    semilla, cuanto = (*EXTRAS, *(str(random.randrange(10**6)), "60s")[len(EXTRAS):])
    print(f"Seed {semilla}, {cuanto}", flush=True)
    preparar(e)
    e.iniciar()
    mono, por_tiempo = Mono(e, int(semilla)), cuanto.endswith("s")
    fin = int(cuanto.rstrip("s")) + (time.monotonic() if por_tiempo else 0)
    while (time.monotonic() if por_tiempo else mono.numero) < fin:
        mono.actuar()
    mono.cerrar()
    fuera = e.orden("find", "/tmp", "/var/tmp", "/dev/shm", "-user", str(DUENO), "-type", "f",
                    "-not", "-path", "/tmp/velda-*", "-not", "-name", ".X*")
    assert not fuera, f"written outside the sandbox: {fuera}"
    print(f"Seed {semilla}: {mono.numero} actions")


EXTRAS = sys.argv[3:]
if os.geteuid():
    print("The monkey needs root, to run the program as a user whose files may be harmed")
    sys.exit(77)
recorrer(recorrido, DUENO)
