"""All saves under faults, in some minutes; ./test runs only a part of them.

    entero.py VELDA_GUARDAR TACANO

Every way of saving is killed before every one of its system calls, and each of these calls fails
in every way, once or from then on. Then come the real conditions of condiciones.py. Both programs
are made by "cmake --build --preset release" and lie in build/release/tests.
"""
import sys

import condiciones
import corto
from guardado import CON_COPIA, fallar, matar, probar, vistas

ERRORES = ("EIO", "ENOSPC", "EDQUOT", "EACCES", "EROFS", "EXDEV", "EPERM", "EINTR")
AL_FINAL = "fsync:error=EIO:when=3"  # of what was written in place: the old bytes are put back
DURADEROS = ("EIO", "ENOSPC", "EROFS", "EACCES")


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
    yield from condiciones.trabajos(maquina, 1)


if __name__ == "__main__":
    la_maquina = condiciones.Maquina()
    sys.exit(probar(lambda raiz: trabajos(raiz, la_maquina), la_maquina.saltados()))
