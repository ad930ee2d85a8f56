"""Saves under faults: killed before every one of their system calls, with each of these failing, on
a full disk, under a limit for files, and while another program does something.

    corto.py VELDA_GUARDAR [--todo]

The file holds its old content or the new one, and the new one exactly when the save says so. After
a kill a complete copy may stand beside a file that is written in place. The next save leaves nothing
but the file. With --todo every kind of save meets every error, which takes some minutes. What the
machine does not allow is skipped and named; 77 where that is everything.
"""
import collections
import concurrent.futures
import contextlib
import errno
import os
import re
import signal
import subprocess
import sys
import tempfile
import time

GUARDAR, TODO = sys.argv[1], "--todo" in sys.argv
VIEJO, NUEVO, OTRO = b"viejo\n" * 3000, b"contenido nuevo\r\n" * 900, b"otro"
INI_VIEJO, INI_NUEVO = b"[A]\r\nx=1\r\ny=2\r\n", b"[A]\r\nx=1\r\ny=33\r\n"
INI_OTRO, INI_ANADIDO = b"[B]\r\nz=9\r\n", b"\r\n[a]\r\nY=33\r\n"
PAGINA, SOBRA = 4096, 24  # SOBRA: so many free pages are enough for every save here
TEMPORAL = re.compile(r"\.velda-\w{6}(-\d+)?\.tmp")
LLAMADAS = ("openat,read,pwritev,ftruncate,fallocate,fsync,close,renameat,renameat2,linkat,unlinkat,flock,"
            "fcntl,fstat,newfstatat,readlink,fchown,fchmod,flistxattr,fgetxattr,fsetxattr,mkdir,"
            "getdents64,access,dup,getcwd")
INTERRUMPIBLES = {"openat", "read", "pwritev", "ftruncate", "fallocate", "fsync", "close", "flock"}
LLENABLES = {"openat", "pwritev", "fallocate", "fsync", "close", "renameat", "renameat2"}
# What is lost when one of these fails for the file or its successor, so the save has to fail, too.
DECISIVA = re.compile(r"((pwritev|fsync|ftruncate|fallocate)\(\d+<[^>]*(/f|\.velda-\w{6}\.tmp)>|"
                      r"(close|flistxattr)\(\d+<[^>]*\.velda-\w{6}\.tmp>).*\(INJECTED\)")
DEL_DISCO = {"EIO", "ENOSPC", "EDQUOT"}  # none of these leads to writing into the file itself
# A text with one name, with a second one (written in place, and a copy meanwhile), with that and
# growing, reached by links; a new text, also where a link leads nowhere; a setting.
CLASES = ("uno", "enlaces", "crece", "cadena", "nuevo", "colgado", "perfil")
CON_COPIA, SIN_VIEJO = {"enlaces", "crece"}, {"nuevo", "colgado"}


class Caso:
    """One way of saving, in a folder of its own."""

    def __init__(self, raiz, clase, veces=1):
        self.clase, self.ajuste = clase, clase == "perfil"
        self.base = tempfile.mkdtemp(dir=raiz)
        self.carpeta = self.en_base("c")
        self.archivo = self.ruta = os.path.join(self.carpeta, "f")
        os.mkdir(self.carpeta)
        self.viejo, self.nuevo = (INI_VIEJO, INI_NUEVO) if self.ajuste else (VIEJO, NUEVO * veces)
        self.viejo = None if clase in SIN_VIEJO else self.viejo
        self.nuevo = self.nuevo * 2 if clase == "crece" else self.nuevo
        self.escribir(self.en_base("nuevo"), self.nuevo)
        if self.viejo is not None:
            self.escribir(self.archivo, self.viejo)
            self.nodo = os.stat(self.archivo).st_ino
        if clase in CON_COPIA:
            os.link(self.archivo, self.en_base("enlace"))
        if clase in ("cadena", "colgado"):
            self.ruta = self.en_base("primero")
            os.symlink("segundo", self.ruta)
            os.symlink("c/f", self.en_base("segundo"))

    def en_base(self, nombre):
        return os.path.join(self.base, nombre)

    @staticmethod
    def escribir(ruta, contenido):
        with open(ruta, "wb") as archivo:
            archivo.write(contenido)

    def leer(self, nombre="f"):
        with contextlib.suppress(FileNotFoundError), open(f"{self.carpeta}/{nombre}", "rb") as archivo:
            return archivo.read()

    def restos(self):
        return [nombre for nombre in os.listdir(self.carpeta) if nombre != "f"]

    def copia(self):
        """The complete copy of a file that is written in place."""
        return self.viejo is not None and any(
            nombre.endswith(f"-{self.nodo}.tmp") and self.leer(nombre) == self.nuevo
            for nombre in self.restos())

    def orden(self):
        if self.ajuste:
            return [GUARDAR, "--perfil", self.ruta, "a", "Y", "33"]
        nuevo = ["--nuevo"] if self.clase in SIN_VIEJO else []
        return [GUARDAR, *nuevo, self.ruta, self.en_base("nuevo")]

    def guardar(self, *antes):
        return subprocess.run([*antes, *self.orden()], stderr=subprocess.DEVNULL, check=False).returncode

    def correr(self, *inyecciones):
        trazo = self.en_base("trazo")
        codigo = self.guardar("strace", "-f", "-y", "-o", trazo, "-e", "trace=" + LLAMADAS,
                              *(parte for una in inyecciones for parte in ("-e", "inject=" + una)))
        with open(trazo, encoding="latin-1") as lineas:
            return codigo, lineas.read()

    def acabar(self, defecto=None):
        """The next save succeeds and leaves nothing behind, but for a text that is nowhere else."""
        antes = self.leer() or b""
        guardadas = [resto for resto in self.restos()
                     if self.copia() and f"-{self.nodo}." in resto and self.leer(resto) != antes]
        orden = ["--perfil", self.ruta, "B", "z", "9"] if self.ajuste else \
            ["--nuevo", self.ruta, self.en_base("nuevo")]
        self.escribir(self.en_base("nuevo"), OTRO)
        fin = subprocess.run([GUARDAR, *orden], stderr=subprocess.DEVNULL, check=False)
        limpio = fin.returncode == 0 and self.restos() == guardadas and \
            self.leer() == (antes + INI_OTRO if self.ajuste else OTRO)
        return defecto or (None if limpio else "el siguiente no limpia")

    def defecto(self, codigo, *esperados):
        """What is wrong after a save that ended with `codigo`; None when nothing is."""
        contenido, restos = self.leer(), self.restos()
        hecho = contenido == self.nuevo
        if not hecho and contenido != self.viejo and not (codigo != 0 and self.copia()):
            return f"código {codigo} y otro contenido"
        if not self.ajuste and hecho != (codigo == 0):
            return f"código {codigo}, hecho: {hecho}"
        if len(restos) > 1 or not all(TEMPORAL.fullmatch(resto) for resto in restos):
            return f"deja {restos}"
        # A setting always ends with 0: there the content tells whether it was stored.
        visto = (0 if hecho else None) if self.ajuste else codigo
        return f"código {codigo}, hecho: {hecho}" if esperados and visto not in esperados else None


def llamadas(raiz, clase):
    """Every call of a save: its name, and the how manieth of that name it is."""
    codigo, trazo = Caso(raiz, clase).correr()
    assert codigo == 0, f"{clase}: {codigo}"
    cuenta, dentro = collections.Counter(), False
    for nombre in re.findall(r"^\d+ +(\w+\()(.*)", trazo, re.M):
        cuenta[nombre[0][:-1]] += 1
        if dentro:
            yield nombre[0][:-1], cuenta[nombre[0][:-1]]
        dentro = dentro or "/velda-empieza" in nombre[1]
    assert dentro, trazo


def matar(raiz, clase, nombre, vez):
    caso = Caso(raiz, clase)
    codigo, _ = caso.correr(f"{nombre}:signal=KILL:when={vez}")
    if codigo not in (-9, 137):
        return f"no murió: {codigo}"
    if caso.leer() not in (caso.viejo, caso.nuevo) and not (clase in CON_COPIA and caso.copia()):
        return "contenido perdido"
    sobra = len(caso.restos()) > 1 or not all(TEMPORAL.fullmatch(resto) for resto in caso.restos())
    return caso.acabar(f"deja {caso.restos()}" if sobra else None)


def fallar(raiz, clase, nombre, vez, error):
    """`vez` is the call that fails; with a "+" behind it all the later ones of its name do, too."""
    caso = Caso(raiz, clase)
    codigo, trazo = caso.correr(f"{nombre}:error={error}:when={vez}")
    hecho, una_vez = caso.leer() == caso.nuevo, not str(vez).endswith("+")
    for mal, que in (
            ("(INJECTED)" not in trazo, "no se inyectó"),
            (not hecho and error == "EINTR" and nombre in INTERRUMPIBLES, "no se repite"),
            (hecho and error != "EINTR" and DECISIVA.search(trazo), "hecho pese al fallo"),
            (hecho and clase == "uno" and error in DEL_DISCO
             and os.stat(caso.ruta).st_ino == caso.nodo, "escrito en el propio archivo"),
            (una_vez and codigo != 0 and nombre != "unlinkat" and caso.restos(), "deja restos")):
        if mal:
            return que
    return caso.acabar(caso.defecto(codigo))


def rehusar(raiz, error):
    """A rename that is refused: written in place, so the file stays the same one."""
    caso = Caso(raiz, "uno")
    codigo, _ = caso.correr(f"renameat:error={error}")
    bien = codigo == 0 and caso.leer() == NUEVO and os.stat(caso.ruta).st_ino == caso.nodo
    return caso.acabar(None if bien else f"da {codigo}")


def romper(raiz):
    """Neither the new nor the old bytes can be written: the copy stays."""
    caso = Caso(raiz, "enlaces")
    codigo, _ = caso.correr("pwritev:error=EIO:when=2+")
    return caso.acabar(caso.defecto(codigo, 5) or (None if caso.copia() else "sin copia"))


def vedar(raiz, clase, llamada):
    """A link that the system does not let this user follow: what it leads to is not touched."""
    caso = Caso(raiz, clase)
    codigo = caso.guardar("strace", "-o", os.devnull, "-P", caso.ruta, "-e",
                          f"inject={llamada}:error=EACCES")
    bien = codigo == errno.EACCES and caso.leer() == caso.viejo and not caso.restos()
    return None if bien else f"seguido: {codigo}"


def sin_ayuda(raiz, *faltan):
    """A file system that lacks the calls which give a new name safely."""
    caso = Caso(raiz, "nuevo")
    codigo, _ = caso.correr(*faltan)
    return caso.defecto(codigo, 0) or (caso.restos() and "deja restos")


def lleno(raiz, clase, libres):
    """A disk with few free pages: a write may end anywhere, and reserving the room, too."""
    disco = tempfile.mkdtemp(dir=raiz)
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=400k", "prueba", disco], check=True)
    try:
        caso = Caso(disco, clase, 1 if clase == "crece" else 3)
        relleno = caso.en_base("relleno")
        caso.escribir(relleno, bytes((os.statvfs(disco).f_bavail - libres) * PAGINA))
        no_cabe = {0: (errno.ENOSPC, None), SOBRA: (0,)}.get(libres, (0, errno.ENOSPC, None))
        defecto = caso.defecto(caso.guardar(), *no_cabe)
        if caso.leer() == caso.viejo and (os.statvfs(disco).f_bavail != libres or caso.restos()):
            defecto = defecto or "no devuelve el espacio"
        os.remove(relleno)
        return caso.acabar(defecto)
    finally:
        subprocess.run(["umount", "-l", disco], check=True)


def marcado(raiz, clase, marca, donde, esperado):
    """A file or folder that nobody may change, or that may only grow."""
    caso = Caso(raiz, clase)
    ruta = getattr(caso, donde)
    subprocess.run(["chattr", "+" + marca, ruta], check=True)
    try:
        defecto = caso.defecto(caso.guardar(), esperado)
    finally:
        subprocess.run(["chattr", "-" + marca, ruta], check=True)
    return caso.acabar(defecto)


def limite(raiz, clase, maximo):
    """A limit for files: the write that meets it is cut short, the next one fails."""
    caso = Caso(raiz, clase)
    esperado = 0 if maximo >= len(caso.nuevo) else None if caso.ajuste else errno.EFBIG
    defecto = caso.defecto(caso.guardar("prlimit", f"--fsize={maximo}"), esperado)
    return caso.acabar(defecto or (caso.restos() and "deja restos"))


def cambiado(raiz, clase):
    """Another program puts its own file in the place while the save is held at its bytes."""
    caso = Caso(raiz, clase)
    with subprocess.Popen(["strace", "-o", os.devnull, "-e", "inject=pwritev:signal=STOP:when=1",
                           *caso.orden()], stderr=subprocess.DEVNULL, start_new_session=True) as proceso:
        while not caso.restos() and proceso.poll() is None:
            time.sleep(0.005)
        caso.escribir(caso.en_base("ajeno"), OTRO)
        os.chmod(caso.en_base("ajeno"), 0o604)
        os.replace(caso.en_base("ajeno"), caso.archivo)
        while proceso.poll() is None:
            os.killpg(proceso.pid, signal.SIGCONT)
            time.sleep(0.005)
    caso.nuevo = OTRO + INI_ANADIDO if caso.ajuste else caso.nuevo
    defecto = caso.defecto(proceso.returncode, 0) or (caso.restos() and "deja restos")
    otros = os.stat(caso.archivo).st_mode & 0o777 != 0o604
    return defecto or ("otros permisos" if otros else caso.acabar())


def con_trazas(raiz):
    for clase in CLASES if TODO else ("uno", "enlaces", "nuevo", "perfil"):
        for nombre, vez in llamadas(raiz, clase):
            yield matar, clase, nombre, vez
            yield fallar, clase, nombre, vez, "EIO"
            if nombre in LLENABLES:
                yield fallar, clase, nombre, vez, "ENOSPC"
            if nombre in INTERRUMPIBLES:
                yield fallar, clase, nombre, vez, "EINTR"
            for error in ("EDQUOT", "EACCES", "EROFS", "EXDEV", "EPERM") if TODO else ():
                yield fallar, clase, nombre, vez, error
                yield fallar, clase, nombre, f"{vez}+", error
    yield from ((rehusar, error) for error in ("EXDEV", "EBUSY", "EPERM", "EACCES"))
    yield from ((cambiado, clase) for clase in ("uno", "nuevo", "perfil"))
    yield vedar, "cadena", "openat"
    yield vedar, "colgado", "newfstatat"
    yield sin_ayuda, "renameat2:error=EINVAL"
    yield sin_ayuda, "renameat2:error=EINVAL", "linkat:error=EPERM"
    yield (romper,)


def trabajos(raiz, saltados):
    if "tracing" not in saltados:
        yield from con_trazas(raiz)
    for clase in CLASES:
        yield from ((limite, clase, maximo) for maximo in (1, PAGINA, len(NUEVO) * 2))
        if "disks of our own" not in saltados:
            yield from ((lleno, clase, libres) for libres in (0, 7, SOBRA))
    if "immutable files" not in saltados:
        yield marcado, "uno", "i", "archivo", errno.EPERM
        yield marcado, "uno", "a", "carpeta", 0
        yield marcado, "nuevo", "i", "carpeta", errno.EPERM


def no_se_puede(raiz):
    """What this machine does not allow, with its reasons."""
    for que, orden in (("tracing", ("strace", "-o", os.devnull, "true")),
                       ("disks of our own", ("mount", "-t", "tmpfs", "prueba", raiz)),
                       ("immutable files", ("chattr", "+i", raiz))):
        try:
            hecho = subprocess.run(orden, check=False, capture_output=True, text=True)
            if hecho.returncode:
                yield que, hecho.stderr.strip()
        except FileNotFoundError as falta:
            yield que, str(falta)
    subprocess.run(["chattr", "-i", raiz], check=False, capture_output=True)
    subprocess.run(["umount", raiz], check=False, capture_output=True)


with tempfile.TemporaryDirectory() as la_raiz, \
        concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as grupo:
    saltos = dict(no_se_puede(la_raiz))
    hechos = [(uno, grupo.submit(uno[0], la_raiz, *uno[1:])) for uno in trabajos(la_raiz, saltos)]
    fallos = [(uno[0].__name__, *uno[1:], hecho.exception() or hecho.result())
              for uno, hecho in hechos if hecho.exception() or hecho.result()]
for salto in saltos.items():
    print("SKIPPED:", *salto)
for fallo in fallos:
    print("FAILED:", *fallo)
print(f"{len(hechos)} saves under faults, {len(fallos)} wrong")
sys.exit(1 if fallos else 77 if len(saltos) == 3 else 0)
