"""What saves under faults share: one save in a folder of its own, and what must hold after it."""
import collections
import concurrent.futures
import os
import re
import subprocess
import sys
import tempfile

GUARDAR = sys.argv[1]
VIEJO, NUEVO, OTRO = b"viejo\n" * 3000, b"contenido nuevo\r\n" * 900, b"otro"
INI_VIEJO, INI_NUEVO, INI_SOLO = (b"[A]\r\nx=1\r\ny=2\r\n", b"[A]\r\nx=1\r\ny=33\r\n",
                                  b"[a]\r\nY=33\r\n")
INI_OTRO = b"[B]\r\nz=9\r\n"
INI_ANADIDO = b"\r\n" + INI_SOLO  # to a text without a line end
FAVORITAS = (b"/a", b"/b"), (b"/a", b"/a/c", b"/b")
TEMPORAL = re.compile(r"\.velda-\w{6}(-\d+)?\.tmp")
COMO_NADIE = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]
LLAMADAS = ("openat,read,pwritev,ftruncate,fallocate,fsync,close,renameat,renameat2,linkat,unlinkat,flock,"
            "fcntl,fstat,newfstatat,readlink,fchown,fchmod,flistxattr,fgetxattr,fsetxattr,mkdir,"
            "getdents64,access,dup,getcwd")
INTERRUMPIBLES = {"openat", "read", "pwritev", "ftruncate", "fallocate", "fsync", "close", "flock"}
# What is lost when one of these fails for the file or its successor, so the save has to fail, too.
DECISIVA = re.compile(r"((pwritev|fsync|ftruncate|fallocate)\(\d+<[^>]*(/f|\.velda-\w{6}\.tmp)>|"
                      r"close\(\d+<[^>]*\.velda-\w{6}\.tmp>).*\(INJECTED\)")
DEL_DISCO = {"EIO", "ENOSPC", "EDQUOT"}  # none of these leads to writing into the file itself
# Ways of saving: a text with one name, with several (and growing), reached by links, of another
# owner, in a folder that is closed; a new text, also where a link leads nowhere; a setting, and the
# first one; the list of favourite folders.
CON_COPIA = {"enlaces", "crece", "ajeno"}  # written in place, with a copy beside it meanwhile
DE_NADIE = {"ajeno", "cerrada"}  # saved by a user without rights
SIN_VIEJO = {"nuevo", "colgado", "estreno"}


def lista(carpetas):
    lineas = [b"F%d=" % i + (c + b" " * (100 - len(c)) if c else b"") for i, c in enumerate(
        carpetas + (b"",) * (30 - len(carpetas)), 1)]
    return b"\r\n".join([b"[Registros]", b"Total=%d" % len(carpetas), b"[Datos]", *lineas, b""])


class Caso:
    """One way of saving, in a folder of its own."""

    def __init__(self, raiz, clase):
        self.clase = clase
        self.base = tempfile.mkdtemp(dir=raiz)
        os.chmod(self.base, 0o755)
        self.carpeta = self.en_base("c")
        self.archivo = self.ruta = os.path.join(self.carpeta, "f")
        self.ajuste = clase in ("perfil", "estreno", "favoritas")
        self.viejo, self.nuevo = (INI_VIEJO, INI_NUEVO) if self.ajuste else (VIEJO, NUEVO)
        self.prefijo = COMO_NADIE if clase in DE_NADIE else []
        if clase == "favoritas":
            self.viejo, self.nuevo = map(lista, FAVORITAS)
        if clase in SIN_VIEJO:
            self.viejo = None
        if clase == "estreno":  # the folder is missing, too
            self.nuevo = INI_SOLO
        else:
            os.mkdir(self.carpeta)
        self.poner(self.viejo, self.nuevo * 2 if clase == "crece" else self.nuevo)
        if clase in ("enlaces", "crece"):
            os.link(self.archivo, self.en_base("enlace"))
        if clase in ("cadena", "colgado"):
            self.ruta = self.en_base("primero")
            os.symlink("segundo", self.ruta)
            os.symlink("c/f", self.en_base("segundo"))
        if clase in DE_NADIE:
            os.chmod(self.archivo, 0o666)
            os.chmod(self.carpeta, 0o777 if clase == "ajeno" else 0o755)

    def en_base(self, nombre):
        return os.path.join(self.base, nombre)

    def poner(self, viejo, nuevo):
        self.viejo, self.nuevo = viejo, nuevo
        self.escribir(self.en_base("nuevo"), nuevo)
        if viejo is not None:
            self.escribir(self.archivo, viejo)
            self.nodo = os.stat(self.archivo).st_ino

    @staticmethod
    def escribir(ruta, contenido):
        with open(ruta, "wb") as archivo:
            archivo.write(contenido)

    def leer(self, nombre="f"):
        try:
            with open(os.path.join(self.carpeta, nombre), "rb") as archivo:
                return archivo.read()
        except FileNotFoundError:
            return None

    def restos(self):
        nombres = os.listdir(self.carpeta) if os.path.isdir(self.carpeta) else []
        return [nombre for nombre in nombres if nombre != "f"]

    def copia(self):
        """The complete copy of a file that is written in place."""
        return any(nombre.endswith(f"-{self.nodo}.tmp") and self.leer(nombre) == self.nuevo
                   for nombre in self.restos()) if self.viejo is not None else False

    def orden(self):
        if self.clase == "favoritas":
            return [GUARDAR, "--favoritas", self.ruta, *FAVORITAS[1]]
        if self.ajuste:
            return [GUARDAR, "--perfil", self.ruta, "a", "Y", "33"]
        nuevo = ["--nuevo"] if self.clase in SIN_VIEJO else []
        return [GUARDAR, *nuevo, self.ruta, self.en_base("nuevo")]

    def guardar(self, *antes, **como):
        return subprocess.run([*self.prefijo, *antes, *self.orden()], stderr=subprocess.DEVNULL,
                              check=False, timeout=60, **como).returncode

    def correr(self, *inyecciones):
        trazo = self.en_base("trazo")
        self.escribir(trazo, b"")
        os.chmod(trazo, 0o666)
        inyectar = [parte for una in inyecciones for parte in ("-e", "inject=" + una)]
        codigo = self.guardar("timeout", "60", "strace", "-f", "-y", "-o", trazo, "-e",
                              "trace=" + LLAMADAS, *inyectar)
        with open(trazo, encoding="latin-1") as lineas:
            return codigo, lineas.read()

    def siguiente(self):
        """The next save succeeds and leaves nothing behind, but for a text that is nowhere else."""
        antes = self.leer() or b""
        guardadas = [resto for resto in self.restos()
                     if self.copia() and f"-{self.nodo}." in resto and self.leer(resto) != antes]
        orden = [GUARDAR, "--nuevo", self.ruta, self.en_base("nuevo")]
        if self.ajuste:
            orden = [GUARDAR, "--perfil", self.ruta, "B", "z", "9"]
        self.escribir(self.en_base("nuevo"), OTRO)
        fin = subprocess.run(self.prefijo + orden, stderr=subprocess.DEVNULL, check=False)
        querido = antes + INI_OTRO if self.ajuste else OTRO
        return fin.returncode == 0 and self.leer() == querido and self.restos() == guardadas

    def defecto(self, codigo):
        """What is wrong after a save that ended with `codigo`; None when nothing is."""
        contenido, restos = self.leer(), self.restos()
        hecho = contenido == self.nuevo
        if not hecho and contenido != self.viejo and not (codigo != 0 and self.copia()):
            return f"código {codigo} y otro contenido"
        if not self.ajuste and hecho != (codigo == 0):
            return f"código {codigo}, hecho: {hecho}"
        if len(restos) > 1 or not all(TEMPORAL.fullmatch(resto) for resto in restos):
            return f"deja {restos}"
        return None


def llamadas(trazo):
    """Every call of the save: its name, and the how manieth of that name it is."""
    cuenta, dentro = collections.Counter(), False
    for linea in trazo.splitlines():
        nombre = re.match(r"\d+ +(\w+)\(", linea)
        if not nombre:
            continue
        cuenta[nombre[1]] += 1
        if dentro:
            yield nombre[1], cuenta[nombre[1]]
        dentro = dentro or "/velda-empieza" in linea


def vistas(raiz, clase, *inyecciones):
    codigo, trazo = Caso(raiz, clase).correr(*inyecciones)
    assert (codigo == 0) != bool(inyecciones), f"{clase}: {codigo}"
    todas = list(llamadas(trazo))
    assert len(todas) > 10, trazo
    return todas


def matar(raiz, clase, nombre, vez, *inyecciones):
    caso = Caso(raiz, clase)
    codigo, _ = caso.correr(f"{nombre}:signal=KILL:when={vez}", *inyecciones)
    contenido, restos = caso.leer(), caso.restos()
    if codigo not in (-9, 137):
        return f"no murió: {codigo}"
    # In a closed folder there is no room for a copy: all is written by one call, then cut.
    sin_cortar = clase == "cerrada" and contenido.startswith(caso.nuevo)
    recuperable = sin_cortar or clase in CON_COPIA and caso.copia()
    if contenido not in (caso.viejo, caso.nuevo) and not recuperable:
        return "contenido perdido"
    if len(restos) > 1 or not all(TEMPORAL.fullmatch(resto) for resto in restos):
        return f"deja {restos}"
    return None if caso.siguiente() else "el siguiente no limpia"


def fallar(raiz, clase, nombre, vez, error):
    """`vez` is the call that fails; with a "+" behind it all the later ones of its name do, too."""
    caso = Caso(raiz, clase)
    codigo, trazo = caso.correr(f"{nombre}:error={error}:when={vez}")
    if "(INJECTED)" not in trazo:
        return "no se inyectó"
    hecho, una_vez = caso.leer() == caso.nuevo, not str(vez).endswith("+")
    defecto = caso.defecto(codigo)
    if defecto:
        return defecto
    if not hecho and error == "EINTR" and nombre in INTERRUMPIBLES:
        return "no se repite"
    if hecho and error != "EINTR" and DECISIVA.search(trazo):
        return "hecho pese al fallo"
    if hecho and clase == "uno" and error in DEL_DISCO and os.stat(caso.ruta).st_ino == caso.nodo:
        return "escrito en el propio archivo"
    if una_vez and codigo != 0 and nombre != "unlinkat" and caso.restos():
        return "deja restos"
    return None if caso.siguiente() else "el siguiente no limpia"


def motivo(*orden):
    """Why a command fails; None when it does not."""
    try:
        hecho = subprocess.run(orden, check=False, capture_output=True, text=True)
    except FileNotFoundError as falta:
        return str(falta)
    return (hecho.stderr.strip().splitlines() or ["?"])[0] if hecho.returncode else None


def no_se_puede_trazar(antes=()):
    """Why strace does not work here, for the user that `antes` changes to; None when it does."""
    return motivo(*antes, "strace", "-f", "-o", os.devnull, "-e", "trace=access", "true")


def probar(trabajos, saltados=()):
    """Runs jobs of the form (function, arguments...); the result is the script's exit code."""
    with tempfile.TemporaryDirectory() as raiz, \
            concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as grupo:
        os.chmod(raiz, 0o755)
        hechos = [(trabajo, grupo.submit(trabajo[0], raiz, *trabajo[1:]))
                  for trabajo in trabajos(raiz)]
        fallos = [(trabajo[0].__name__, *trabajo[1:], hecho.exception() or hecho.result())
                  for trabajo, hecho in hechos if hecho.exception() or hecho.result()]
    for salto in saltados:
        print("SKIPPED:", salto)
    for fallo in fallos:
        print("FAILED:", *fallo)
    print(f"{len(hechos)} saves under faults, {len(fallos)} wrong, {len(saltados)} kinds skipped")
    return 1 if fallos else 0 if hechos else 77
