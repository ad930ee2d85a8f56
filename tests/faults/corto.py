"""Saves under faults: killed before every one of its system calls, and with each of them failing.

    corto.py VELDA_GUARDAR

After a kill the file holds its old content or the new one; where it is written in place, a complete
copy may stand beside it instead. After a failure that is reported it holds the old content, after
a success the new one. The next save leaves nothing but the file. Ends with 77 where nothing can be
traced. The whole of it, with more faults and more ways of saving, is entero.py.
"""
import errno
import os
import sys

from guardado import (INTERRUMPIBLES, NUEVO, Caso, fallar, matar, no_se_puede_trazar, probar,
                      vistas)

LLENABLES = {"openat", "pwritev", "fallocate", "fsync", "close", "renameat", "renameat2"}


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
    bien = codigo == 5 and caso.copia() and not caso.defecto(codigo)
    return None if bien and caso.siguiente() else "sin copia"


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
    return None if codigo == 0 and caso.leer() == NUEVO and not caso.restos() else f"da {codigo}"


def otros():
    yield vedar, "cadena", "openat"
    yield vedar, "colgado", "newfstatat"
    yield sin_ayuda, "renameat2:error=EINVAL"
    yield sin_ayuda, "renameat2:error=EINVAL", "linkat:error=EPERM"
    for error in ("EXDEV", "EBUSY", "EPERM", "EACCES"):
        yield rehusar, error
    yield (romper,)


def trabajos(raiz):
    for clase in ("uno", "enlaces", "nuevo", "perfil"):
        for nombre, vez in vistas(raiz, clase):
            yield matar, clase, nombre, vez
            yield fallar, clase, nombre, vez, "EIO"
            if nombre in LLENABLES:
                yield fallar, clase, nombre, vez, "ENOSPC"
            if nombre in INTERRUMPIBLES:
                yield fallar, clase, nombre, vez, "EINTR"
    yield fallar, "favoritas", "fsync", 1, "EIO"
    yield from otros()


if __name__ == "__main__":
    motivo = no_se_puede_trazar()
    sys.exit(probar(lambda raiz: () if motivo else trabajos(raiz),
                    [f"strace cannot trace here: {motivo}"] if motivo else []))
