"""Saves under faults: killed before every one of its system calls, and with each of them failing.

    corto.py VELDA_GUARDAR

After a kill the file holds its old content or the new one; where it is written in place, a complete
copy may stand beside it instead. After a failure that is reported it holds the old content, after
a success the new one. The next save leaves nothing but the file. Ends with 77 where nothing can be
traced.
"""
import collections
import concurrent.futures
import os
import re
import subprocess
import sys
import tempfile

GUARDAR = sys.argv[1]
VIEJO, NUEVO, OTRO = b"viejo\n" * 3000, b"contenido nuevo\r\n" * 900, b"otro"
INI_VIEJO, INI_NUEVO = b"[A]\r\nx=1\r\ny=2\r\n", b"[A]\r\nx=1\r\ny=33\r\n"
LLAMADAS = ("openat,read,pwritev,ftruncate,fallocate,fsync,close,renameat,renameat2,unlinkat,flock,"
            "fcntl,fstat,newfstatat,readlink,fchown,fchmod,flistxattr,fgetxattr,fsetxattr,mkdir,"
            "getdents64,access,dup")
INTERRUMPIBLES = {"openat", "read", "pwritev", "ftruncate", "fallocate", "fsync", "close", "flock"}
# What is lost when one of these fails for the file or its successor, so the save has to fail, too.
DECISIVA = re.compile(r"((pwritev|fsync|ftruncate|fallocate)\(\d+<[^>]*(/f|\.velda-\w{6}\.tmp)>|"
                      r"close\(\d+<[^>]*\.velda-\w{6}\.tmp>).*\(INJECTED\)")
DEL_DISCO = {"openat", "pwritev", "fallocate", "fsync", "close", "renameat", "renameat2"}


class Caso:
    """One way of saving, in a folder of its own."""

    def __init__(self, raiz, clase):
        self.clase = clase
        self.carpeta = tempfile.mkdtemp(dir=raiz)
        self.nuevo, self.viejo = (INI_NUEVO, INI_VIEJO) if clase == "perfil" else (NUEVO, VIEJO)
        self.ruta = os.path.join(self.carpeta, "f")
        self.origen = self.carpeta + ".nuevo"
        self.escribir(self.origen, self.nuevo)
        if clase == "nuevo":
            self.viejo = None
        else:
            self.escribir(self.ruta, self.viejo)
            self.nodo = os.stat(self.ruta).st_ino
        if clase == "enlaces":
            os.link(self.ruta, self.carpeta + ".enlace")

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
        return [nombre for nombre in os.listdir(self.carpeta) if nombre != "f"]

    def orden(self):
        if self.clase == "perfil":
            return [GUARDAR, "--perfil", self.ruta, "a", "Y", "33"]
        return [GUARDAR, self.ruta, self.origen]

    def correr(self, *inyecciones):
        trazo = self.carpeta + ".trazo"
        orden = ["timeout", "60", "strace", "-f", "-y", "-o", trazo, "-e",
                 "trace=" + LLAMADAS]
        for inyeccion in inyecciones:
            orden += ["-e", "inject=" + inyeccion]
        fin = subprocess.run(orden + self.orden(), stderr=subprocess.DEVNULL, check=False)
        with open(trazo, encoding="latin-1") as lineas:
            return fin.returncode, lineas.read()

    def siguiente(self):
        """The next save succeeds and leaves nothing behind."""
        self.escribir(self.origen, OTRO)
        fin = subprocess.run([GUARDAR, self.ruta, self.origen], check=False)
        return fin.returncode == 0 and self.leer() == OTRO and not self.restos()


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


def matar(raiz, clase, nombre, vez):
    caso = Caso(raiz, clase)
    codigo, _ = caso.correr(f"{nombre}:signal=KILL:when={vez}")
    copia = [n for n in caso.restos() if n.endswith(f"-{getattr(caso, 'nodo', '')}.tmp")]
    entero = caso.leer() in (caso.viejo, caso.nuevo)
    recuperable = clase == "enlaces" and copia and caso.leer(copia[0]) == caso.nuevo
    if codigo not in (-9, 137):
        return f"no murió: {codigo}"
    if not entero and not recuperable:
        return "contenido perdido"
    return None if caso.siguiente() else "el siguiente no limpia"


def fallar(raiz, clase, nombre, vez, error):
    caso = Caso(raiz, clase)
    codigo, trazo = caso.correr(f"{nombre}:error={error}:when={vez}")
    if "(INJECTED)" not in trazo:
        return "no se inyectó"
    contenido = caso.leer()
    hecho = contenido == caso.nuevo
    if not hecho and contenido != caso.viejo or clase != "perfil" and hecho != (codigo == 0):
        return f"código {codigo} y otro contenido"
    if not hecho and error == "EINTR" or hecho and error != "EINTR" and DECISIVA.search(trazo):
        return f"hecho: {hecho}"
    if hecho and clase == "uno" and os.stat(caso.ruta).st_ino == caso.nodo:
        return "escrito en el propio archivo"
    if codigo != 0 and nombre != "unlinkat" and caso.restos():
        return "deja restos"
    return None if caso.siguiente() else "el siguiente no limpia"


def rehusar(raiz, error):
    """A rename that is refused: written in place, so the file stays the same one."""
    caso = Caso(raiz, "uno")
    codigo, _ = caso.correr(f"renameat:error={error}")
    bien = codigo == 0 and caso.leer() == NUEVO and os.stat(caso.ruta).st_ino == caso.nodo
    return None if bien and caso.siguiente() else f"rehusado con {error}: {codigo}"


def romper(raiz):
    """Neither the new nor the old bytes can be written: the copy stays."""
    caso = Caso(raiz, "enlaces")
    codigo, _ = caso.correr("pwritev:error=EIO:when=2+")
    copias = caso.restos()
    bien = codigo == 5 and len(copias) == 1 and caso.leer(copias[0]) == NUEVO
    return None if bien and caso.siguiente() else "sin copia"


def trabajos(raiz):
    for clase in ("uno", "enlaces", "nuevo", "perfil"):
        codigo, trazo = Caso(raiz, clase).correr()
        assert codigo == 0, f"{clase}: {codigo}"
        vistas = list(llamadas(trazo))
        assert len(vistas) > 10, trazo
        for nombre, vez in vistas:
            yield matar, clase, nombre, vez
            yield fallar, clase, nombre, vez, "EIO"
            if nombre in DEL_DISCO:
                yield fallar, clase, nombre, vez, "ENOSPC"
            if nombre in INTERRUMPIBLES:
                yield fallar, clase, nombre, vez, "EINTR"
    for error in ("EXDEV", "EBUSY", "EPERM", "EACCES"):
        yield rehusar, error
    yield (romper,)


def main():
    prueba = subprocess.run(["strace", "-f", "-o", os.devnull, "-e", "trace=access",
                             "true"], check=False, stderr=subprocess.PIPE)
    if prueba.returncode != 0:
        print("SKIPPED: strace cannot trace here:", prueba.stderr.decode().strip())
        return 77
    with tempfile.TemporaryDirectory() as raiz, \
            concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as grupo:
        hechos = [(trabajo, grupo.submit(trabajo[0], raiz, *trabajo[1:]))
                  for trabajo in trabajos(raiz)]
        fallos = [(trabajo[0].__name__, *trabajo[1:], hecho.result())
                  for trabajo, hecho in hechos if hecho.result()]
    for fallo in fallos:
        print("FAILED:", *fallo)
    print(f"{len(hechos)} saves under faults, {len(fallos)} wrong")
    return 1 if fallos else 0


sys.exit(main())
