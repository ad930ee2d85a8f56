"""All saves under faults, in some minutes; ./test runs only a part of them.

    entero.py VELDA_GUARDAR TACANO

Every way of saving is killed before every one of its system calls, and each of these calls fails
in every way, once or from then on; large texts are killed at any moment. Then come the real conditions of condiciones.py. Both programs
are made by "cmake --build --preset release" and lie in build/release/tests.
"""
import shutil
import subprocess
import sys

import condiciones
import corto
from guardado import CON_COPIA, Caso, fallar, matar, probar, vistas

ERRORES = ("EIO", "ENOSPC", "EDQUOT", "EACCES", "EROFS", "EXDEV", "EPERM", "EINTR")
AL_FINAL = "fsync:error=EIO:when=3"  # of what was written in place: the old bytes are put back
DURADEROS = ("EIO", "ENOSPC", "EROFS", "EACCES")


def de_golpe(raiz, clase, milesimas):
    """Killed at any moment, in the middle of a call too."""
    caso = Caso(raiz, clase)
    caso.poner(b"v" * 40_000_000, b"n" * 50_000_000)
    with subprocess.Popen(caso.prefijo + caso.orden()) as proceso:
        try:
            proceso.wait(milesimas / 1000)
        except subprocess.TimeoutExpired:
            proceso.kill()
    defecto = caso.defecto(0 if caso.leer() == caso.nuevo else proceso.returncode)
    defecto = defecto or (None if caso.siguiente() else "el siguiente no limpia")
    shutil.rmtree(caso.base)
    return defecto


def trabajos(raiz, maquina):
    clases = condiciones.CLASES if maquina.puede("tracing") else ()
    if maquina.puede("tracing another user"):
        clases += condiciones.CLASES_DE_NADIE
    for clase in clases:
        for nombre, vez in vistas(raiz, clase):
            yield matar, clase, nombre, vez
            for error in ERRORES:
                yield fallar, clase, nombre, vez, error
            for error in DURADEROS:
                yield fallar, clase, nombre, f"{vez}+", error
        for nombre, vez in vistas(raiz, clase, AL_FINAL) if clase in CON_COPIA else ():
            if nombre != "fsync":
                yield matar, clase, nombre, vez, AL_FINAL
    if maquina.puede("tracing"):
        yield from corto.otros()
    for clase in ("uno", "enlaces") + (("ajeno",) if maquina.puede("another user") else ()):
        for milesimas in range(20, 320, 12):
            yield de_golpe, clase, milesimas
    yield from condiciones.trabajos(maquina, 1)


if __name__ == "__main__":
    la_maquina = condiciones.Maquina()
    sys.exit(probar(lambda raiz: trabajos(raiz, la_maquina), la_maquina.saltados()))
