"""Saves under real conditions: a disk that is full, or read-only, files and folders that are marked
as immutable, a limit for the size of files, writes that are cut short, and other programs that
do something meanwhile.

    condiciones.py VELDA_GUARDAR [TACANO]

TACANO is the library that cuts every read and write short. What the machine does not allow is
skipped and named. The content must be the old one or the new one, and the new one exactly when the
save says so.
"""
import contextlib
import errno
import os
import subprocess
import sys
import tempfile
import time

from guardado import (COMO_NADIE, GUARDAR, INI_ANADIDO, NUEVO, OTRO, VIEJO, Caso, motivo,
                      no_se_puede_trazar, probar)

TACANO = sys.argv[2] if len(sys.argv) > 2 else None
PAGINA, SOBRA = 4096, 24  # SOBRA: so many free pages are enough for every save here
GRANDE = NUEVO * 3
INI_GRANDE = b"[A]\r\nx=1\r\ny=%d\r\n" + b"; una nota ajena\r\n" * 2000
CLASES = ("uno", "enlaces", "crece", "cadena", "nuevo", "colgado", "perfil", "estreno",
          "favoritas")
CLASES_DE_NADIE = ("ajeno", "cerrada")


def hacer(*orden):
    subprocess.run(orden, check=True, capture_output=True)


class Maquina:
    """What this machine allows; what it does not is kept with its reason."""

    def __init__(self):
        with tempfile.TemporaryDirectory() as carpeta:
            self.motivos = {
                "disks of our own": motivo("mount", "-t", "tmpfs", "prueba", carpeta),
                "tracing": no_se_puede_trazar(),
                "another user": motivo(*COMO_NADIE, "test", "-x", GUARDAR),
                "short writes": None if TACANO else "no library that cuts them was given"}
            if not self.motivos["disks of our own"]:
                hacer("umount", carpeta)
            self.motivos["immutable files"] = motivo("chattr", "+i", carpeta)
            motivo("chattr", "-i", carpeta)
        self.motivos["tracing another user"] = self.motivos["another user"] or no_se_puede_trazar(
            COMO_NADIE)

    def puede(self, *cosas):
        return not any(self.motivos[cosa] for cosa in cosas)

    def saltados(self):
        return [f"{cosa}: {por_que}" for cosa, por_que in self.motivos.items() if por_que]


@contextlib.contextmanager
def deshacer(*orden):
    try:
        yield
    finally:
        hacer(*orden)


def juzgar(caso, codigo, *esperados):
    """A setting always ends with 0: there the content tells whether it was stored."""
    hecho = caso.leer() == caso.nuevo
    bien = (0 if hecho else None) in esperados if caso.ajuste else codigo in esperados
    return caso.defecto(codigo) or (None if bien else f"código {codigo}, hecho: {hecho}")


def agrandar(caso):
    if caso.clase == "perfil":
        caso.poner(INI_GRANDE % 2, INI_GRANDE % 33)
    elif caso.clase not in ("estreno", "favoritas"):
        caso.poner(caso.viejo, GRANDE)


def acabar(caso, defecto):
    return defecto or (None if caso.siguiente() else "el siguiente no limpia")


def lleno(raiz, clase, libres):
    """A disk with few free pages: a write may end anywhere, and reserving the room, too."""
    disco = tempfile.mkdtemp(dir=raiz)
    hacer("mount", "-t", "tmpfs", "-o", "size=400k,mode=755", "prueba", disco)
    with deshacer("umount", "-l", disco):
        caso = Caso(disco, clase)
        agrandar(caso)
        relleno = caso.en_base("relleno")
        caso.escribir(relleno, bytes((os.statvfs(disco).f_bavail - libres) * PAGINA))
        no_cabe = {0: (errno.ENOSPC, None), SOBRA: (0,)}.get(libres, (0, errno.ENOSPC, None))
        defecto = juzgar(caso, caso.guardar(), *no_cabe)
        if caso.leer() == caso.viejo and (os.statvfs(disco).f_bavail != libres or caso.restos()):
            defecto = defecto or "no devuelve el espacio"
        os.remove(relleno)
        return acabar(caso, defecto)


def solo_lectura(raiz, clase):
    caso = Caso(raiz, clase)
    hacer("mount", "--bind", caso.carpeta, caso.carpeta)
    with deshacer("umount", "-l", caso.carpeta):
        hacer("mount", "-o", "remount,ro,bind", caso.carpeta)
        defecto = juzgar(caso, caso.guardar(), errno.EROFS, None)
    return acabar(caso, defecto)


def marcado(raiz, clase, marca, donde, esperado):
    """A file or folder that nobody may change, or that may only grow."""
    caso = Caso(raiz, clase)
    ruta = getattr(caso, donde)
    hacer("chattr", "+" + marca, ruta)
    with deshacer("chattr", "-" + marca, ruta):
        defecto = juzgar(caso, caso.guardar(), esperado)
    return acabar(caso, defecto)


def limite(raiz, clase, maximo):
    """A limit for files: the write that meets it is cut short, the next one fails."""
    caso = Caso(raiz, clase)
    agrandar(caso)
    cabe = maximo >= len(caso.nuevo)
    fallo = None if caso.ajuste else errno.EFBIG
    defecto = juzgar(caso, caso.guardar("prlimit", f"--fsize={maximo}"), 0 if cabe else fallo)
    return acabar(caso, defecto or (caso.restos() and "deja restos"))


def tacano(raiz, clase):
    caso = Caso(raiz, clase)
    agrandar(caso)
    trazo = caso.en_base("trazo")
    caso.escribir(trazo, b"")
    os.chmod(trazo, 0o666)
    codigo = caso.guardar("strace", "-o", trazo, "-e", "trace=pwrite64", "-E",
                          "LD_PRELOAD=" + TACANO)
    with open(trazo, encoding="latin-1") as lineas:
        cortas = sum("pwrite64" in linea for linea in lineas)
    pocas = cortas < len(caso.nuevo) / 700
    return acabar(caso, juzgar(caso, codigo, 0) or (f"{cortas} escrituras" if pocas else None))


def desaparecido(raiz, que):
    caso = Caso(raiz, "uno")
    os.rename(getattr(caso, que), caso.en_base("lejos"))
    caso.viejo = None
    return juzgar(caso, caso.guardar(), errno.ENOENT)


def durante(raiz, clase, que, esperado):
    """Another program's doing while the bytes are being written."""
    caso = Caso(raiz, clase)
    lento = ["strace", "-o", os.devnull, "-e", "trace=pwritev", "-e",
             "inject=pwritev:delay_enter=700000"]
    with subprocess.Popen(lento + caso.orden(), stderr=subprocess.DEVNULL) as proceso:
        while not caso.restos() and proceso.poll() is None:
            time.sleep(0.005)
        if que == "borrar":
            os.remove(caso.archivo)
            caso.viejo = None
        elif que == "cambiar":
            caso.escribir(caso.en_base("ajeno"), OTRO)
            os.chmod(caso.en_base("ajeno"), 0o604)
            caso.nuevo = OTRO + INI_ANADIDO if caso.ajuste else caso.nuevo
            os.replace(caso.en_base("ajeno"), caso.archivo)
        else:
            os.rename(caso.carpeta, caso.en_base("d"))
            caso.carpeta = caso.en_base("d")
            caso.ruta = caso.archivo = os.path.join(caso.carpeta, "f")
    defecto = juzgar(caso, proceso.returncode, esperado) or (caso.restos() and "deja restos")
    if que == "cambiar" and os.stat(caso.archivo).st_mode & 0o777 != 0o604:
        defecto = defecto or "otros permisos"
    return defecto or (None if que == "borrar" else acabar(caso, None))


def a_la_vez(raiz):
    """Eight programs write settings to one file at the same time: no key and no line is lost."""
    caso = Caso(raiz, "perfil")
    bucle = 'for i in $(seq 25); do "$0" --perfil "$1" A "k$2_$i" "$i"; done'
    for proceso in [subprocess.Popen(["sh", "-c", bucle, GUARDAR, caso.ruta, str(programa)])
                    for programa in range(8)]:
        proceso.wait()
    claves = {b"k%d_%d=%d" % (programa, i, i) for programa in range(8) for i in range(1, 26)}
    leido = caso.leer()
    nuevas = leido.removeprefix(caso.viejo).splitlines()
    bien = leido.startswith(caso.viejo) and len(nuevas) == len(claves) and set(nuevas) == claves
    return None if bien and not caso.restos() else f"{len(nuevas)} claves"


def trabajos(maquina, paso):
    clases = CLASES + (CLASES_DE_NADIE if maquina.puede("another user") else ())
    for clase in clases:
        for maximo in (1, PAGINA, len(VIEJO) - 1, len(VIEJO) + 1, len(GRANDE) - 1, len(GRANDE)):
            yield limite, clase, maximo
        if maquina.puede("disks of our own"):
            for libres in range(0, SOBRA + 1, paso):
                yield lleno, clase, libres
            if clase != "estreno":
                yield solo_lectura, clase
        if maquina.puede("short writes", "tracing") and (
                clase in CLASES or maquina.puede("tracing another user")):
            yield tacano, clase
    if maquina.puede("immutable files"):
        for clase, marca, donde, esperado in (
                ("uno", "i", "archivo", errno.EPERM), ("uno", "a", "archivo", errno.EPERM),
                ("enlaces", "i", "archivo", errno.EPERM), ("perfil", "i", "archivo", None),
                ("uno", "i", "carpeta", 0), ("uno", "a", "carpeta", 0),
                ("perfil", "i", "carpeta", 0), ("nuevo", "i", "carpeta", errno.EPERM),
                ("nuevo", "a", "carpeta", errno.EPERM)):
            yield marcado, clase, marca, donde, esperado
    yield (a_la_vez,)
    yield desaparecido, "archivo"
    yield desaparecido, "carpeta"
    if maquina.puede("tracing"):
        yield durante, "uno", "borrar", errno.ENOENT
        for clase in ("uno", "nuevo"):
            yield durante, clase, "cambiar", 0
            yield durante, clase, "mudar", 0
        for clase in ("perfil", "estreno"):
            yield durante, clase, "cambiar", 0


if __name__ == "__main__":
    la_maquina = Maquina()
    sys.exit(probar(lambda raiz: trabajos(la_maquina, 3), la_maquina.saltados()))
