"""What `cmake --install` makes, after its folder was moved: BUILD.

Every file in its place, links that do not leave the folder, icons of their size, names that lead
to each other; and the program, started through bin/velda, finds its help and its own folder.
"""
import pathlib
import re
import struct
import subprocess
import sys
import tempfile

from escritorio import Escritorio, esperar

ID = "example.velda.Velda"
LADOS = (16, 24, 32, 48, 64, 128, 256)
ARCHIVOS = {
    "lib/velda/velda", "lib/velda/Ayuda/Ayuda.htm",
    f"share/applications/{ID}.desktop", f"share/metainfo/{ID}.metainfo.xml",
    f"share/icons/hicolor/scalable/apps/{ID}.svg",
    *(f"share/icons/hicolor/{lado}x{lado}/apps/{ID}.png" for lado in LADOS),
    "share/man/es/man1/velda.1.gz", "share/doc/velda/copyright", "share/doc/velda/changelog.gz",
}
ENLACES = {"bin/velda": "lib/velda/velda",
           "share/man/man1/velda.1.gz": "share/man/es/man1/velda.1.gz"}


def igual(que, visto, esperado):
    assert visto == esperado, f"{que}: expected {esperado!r}, seen {visto!r}"


def comprobar_lugares(prefijo):
    archivos, enlaces = set(), {}
    for ruta in prefijo.rglob("*"):
        nombre = ruta.relative_to(prefijo).as_posix()
        if ruta.is_symlink():
            enlaces[nombre] = ruta.resolve(strict=True).relative_to(prefijo).as_posix()
        elif ruta.is_file() and not nombre.startswith("lib/velda/Ayuda/"):
            archivos.add(nombre)
            igual(f"mode of {nombre}", oct(ruta.stat().st_mode & 0o777),
                  oct(0o755 if nombre == "lib/velda/velda" else 0o644))
    igual("files", archivos, {a for a in ARCHIVOS if "/Ayuda/" not in a})
    igual("links", enlaces, ENLACES)
    assert (prefijo / "lib/velda/Ayuda/Ayuda.htm").is_file(), "no help beside the executable"


def comprobar_contenido(prefijo):
    """Icons of their size; the menu entry leads to command and icon, the metainfo to the menu entry;
    no path in which the executable would look for libraries."""
    for lado in LADOS:
        png = (prefijo / f"share/icons/hicolor/{lado}x{lado}/apps/{ID}.png").read_bytes()
        igual(f"size of icon {lado}", struct.unpack(">II", png[16:24]), (lado, lado))
    menu = (prefijo / f"share/applications/{ID}.desktop").read_text().splitlines()
    assert {"Exec=velda", f"Icon={ID}"} <= set(menu), menu
    metainfo = (prefijo / f"share/metainfo/{ID}.metainfo.xml").read_text()
    igual("the metainfo's entry", re.findall(r"<launchable[^>]*>(.*?)<", metainfo), [ID + ".desktop"])
    dinamica = subprocess.run(["readelf", "-d", prefijo / "lib/velda/velda"], capture_output=True,
                              text=True, check=True).stdout
    assert "NEEDED" in dinamica and not re.search("RPATH|RUNPATH", dinamica), dinamica


def comprobar_programa(prefijo):
    # The program as its own folder: only the help is asked of it, and where it keeps its settings.
    with Escritorio(prefijo / "lib/velda") as escritorio:
        escritorio.bin = prefijo / "bin"
        escritorio.iniciar()
        escritorio.pulsar_icono("Ayuda")
        esperar("the help", escritorio.direcciones.exists)
        igual("help", escritorio.direcciones.read_text().strip(),
              (prefijo / "lib/velda/Ayuda/Ayuda.htm").as_uri())
        escritorio.cerrar()
    assert (prefijo / "lib/velda/Velda.INI").is_file(), "no settings beside the executable"


with tempfile.TemporaryDirectory(prefix="velda-") as taller:
    primero, prefijo = pathlib.Path(taller, "primero"), pathlib.Path(taller, "otro sitio")
    subprocess.run(["cmake", "--install", sys.argv[1], "--prefix", primero], check=True,
                   stdout=subprocess.DEVNULL)
    primero.rename(prefijo)
    comprobar_lugares(prefijo)
    comprobar_contenido(prefijo)
    comprobar_programa(prefijo)
