#!/usr/bin/python3
"""Makes the pictures of the help and of the README again: capturas.py [BINARIES [FOLDER]].

The windows are those of the real program on a virtual screen, cut out with their frames; the icons
are rendered from assets/ by rsvg-convert (package librsvg2-bin). Without arguments the program in
build/release/bin is taken and help/imagenes is filled.
"""
import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import sys

RAIZ = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(RAIZ / "tests" / "desktop"))
# pylint: disable=wrong-import-position
from escritorio import CANCELAR, Escritorio, esperar, esperar_valor  # noqa: E402

# A home folder whose path reads well in a title bar; made for the pictures, gone afterwards.
CASA = pathlib.Path("/home" if os.access("/home", os.W_OK) else "/tmp") / "ana"
DESTINOS = [RAIZ / "build/release/bin", RAIZ / "help/imagenes"]
GESTOR = pathlib.Path("/etc/xdg/openbox/rc.xml")
SEPARACION = 12  # pixels between windows in one picture
COLORES = 160  # enough for these windows; a picture with its palette is a third of the size
ICONOS = re.findall(r"^ICONO\((\w+)", (RAIZ / "src/main_window/iconos.inc").read_text("utf-8"),
                    re.M)  # seleccion_0.svg, ...
AUMENTO = "1.5"  # of the icons, for screens with small pixels
# Pixels inside the text window.
SELEC_FAVORITAS, LEJOS = (55, 135), (400, 250)
AJUSTES = """[PosTam]
PrinIzda=600
PrinArriba=600
TextoIzda=3300
TextoArriba=600
TextoAncho=8100
TextoAlto=5220
"""
RECETA = """TORTILLA DE PATATAS (para cuatro)

6 huevos, 1 kilo de patatas, 1 cebolla.
Aceite de oliva y sal.

1. Pele las patatas y córtelas en láminas finas. Pique la cebolla.
2. Fríalas juntas a fuego suave, sin prisa, hasta que estén tiernas. Tardan una media hora.
3. Escurra el aceite y mezcle las patatas con los huevos batidos. Deje reposar diez minutos.
4. Cuájela en la sartén por un lado, dele la vuelta con un plato y acabe por el otro.
"""
TEXTOS = {
    "Tortilla de patatas.txt": RECETA, "Lista de la compra.txt": "Pan\nLeche\nTomates\n",
    "Teléfonos útiles.txt": "Fontanero\nMédico\n", "Ideas.txt": "Un limonero.\n",
    "Diario del viaje a Cádiz y Jerez.txt": "Llegamos de noche.\n", "Cumpleaños.txt": "Mayo\n",
}


@contextlib.contextmanager
def casa():
    """The home folder with its texts. One that is there already is somebody's: left alone."""
    CASA.mkdir()
    try:
        for carpeta in ("Cartas", "Documentos", "Notas", "Viajes"):
            (CASA / carpeta).mkdir()
        for nombre, texto in TEXTOS.items():
            (CASA / "Documentos" / nombre).write_bytes(texto.encode("cp1252"))
        yield
    finally:
        shutil.rmtree(CASA)


def pantalla(e):
    """A file with what the screen shows once it has come to rest."""
    def leer():
        return subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "ppm:-"],
                              check=True, capture_output=True).stdout
    vista = leer()

    def quieta():
        nonlocal vista
        antes, vista = vista, leer()
        return antes == vista
    esperar("a screen at rest", quieta)
    archivo = e.raiz / "pantalla.ppm"
    archivo.write_bytes(vista)
    return str(archivo)


def convertir(*argumentos):
    subprocess.run(["convert", *argumentos], check=True)


def retratar(e, archivo, *ventanas):
    """The windows side by side, each with its frame, nothing between them."""
    origen = pantalla(e)
    piezas = []
    for ventana in ventanas:
        x, y, ancho, alto = e.rectangulo_exterior(ventana)
        piezas += ["(", origen, "-crop", f"{ancho}x{alto}+{x}+{y}", "+repage"]
        if ventana != ventanas[-1]:
            piezas += ["-alpha", "set", "-gravity", "east", "-background", "none",
                       "-splice", f"{SEPARACION}x0", "+gravity"]
        piezas += [")"]
    convertir(*piezas, "-background", "none", "+append", "+dither", "-colors", str(COLORES),
              "-strip", "-define", "png:compression-level=9", f"PNG8:{archivo}")


def dibujar_iconos(carpeta):
    for indice, nombre in enumerate(ICONOS):
        subprocess.run(["rsvg-convert", "--zoom", AUMENTO, "--output",
                        carpeta / f"icono_{nombre.lower()}.png",
                        RAIZ / "assets" / f"seleccion_{indice}.svg"], check=True)


def esperar_nombre(e, nombre):
    esperar(f"the control {nombre}", lambda: nombre in [n for _, n, _ in e.accesibles()])


def vestir_gestor(e):
    """Titles in the letters of the windows, so that those of the narrow ones fit."""
    ajustes = e.raiz / "casa/.config/openbox"
    ajustes.mkdir(parents=True)
    cambiados = GESTOR.read_text().replace("<name>sans</name>", "<name>Liberation Sans</name>")
    cambiados = cambiados.replace("<weight>bold</weight>", "<weight>normal</weight>")
    (ajustes / "rc.xml").write_text(cambiados)


def preparar(e):
    """Two favourite folders, six texts in the list, one of them shown."""
    os.environ["HOME"] = str(CASA)
    (e.bin / "Velda.INI").write_text(AJUSTES)
    (e.bin / "Favoritas.INI").write_text(
        f"[Registros]\nTotal=2\n[Datos]\nF1={CASA}/Documentos\nF2={CASA}/Notas\n")
    e.iniciar()
    e.pulsar_icono("Favoritas")
    esperar_valor("the list", lambda: len(e.entradas()), len(TEXTOS))
    elegir(e, "Tortilla de patatas.txt")
    senalar(e, LEJOS)


def elegir(e, nombre):
    e.pulsar_entrada(e.entradas().index(nombre))
    e.esperar_texto(CASA / "Documentos" / nombre)
    e.esperar_foco(e.principal)


def senalar(e, lugar):
    e.orden("xdotool", "mousemove", "--window", e.texto(), *map(str, lugar))
    esperar_valor("the title", lambda: e.titulo(e.principal), "Velda...")


def al_texto(e, carpeta):
    retratar(e, carpeta / "principal.png", e.principal, e.texto())

    e.pulsar(e.texto(), *LEJOS)
    e.esperar_foco(e.texto())
    e.teclas("ctrl+End")
    e.escribir("Con un buen pan, mejor.")
    esperar("the save panel", e.panel_visible)
    retratar(e, carpeta / "guardar.png", e.texto())


def los_paneles(e, carpeta):
    e.pulsar_icono("Opciones")
    esperar_nombre(e, "Color del Fondo")
    senalar(e, LEJOS)
    retratar(e, carpeta / "opciones.png", e.texto())

    e.pulsar(e.texto(), *SELEC_FAVORITAS)
    esperar_nombre(e, "> Listo...")
    e.teclas("Tab", "Down", "Return", "Tab", "space")  # the first folder is opened and added
    esperar_nombre(e, "> Carpeta añadida (3)")
    senalar(e, LEJOS)
    retratar(e, carpeta / "favoritas.png", e.texto())


def las_ventanas(e, carpeta):
    elegir(e, "Ideas.txt")
    e.pulsar_icono("Borrar")
    borrar = e.esperar_ventana("^Eliminar: ")
    e.esperar_foco(borrar)
    retratar(e, carpeta / "eliminar.png", borrar)
    e.cerrar_ventana(borrar)
    esperar("the confirmation closed", lambda: not e.ventana("^Eliminar: "))

    e.pulsar_icono("Información")
    retratar(e, carpeta / "informacion.png", e.esperar_ventana("sobre el programa"))


def main():
    binarios, carpeta = sys.argv[1:] + DESTINOS[len(sys.argv) - 1:]
    carpeta = pathlib.Path(carpeta)
    carpeta.mkdir(parents=True, exist_ok=True)
    dibujar_iconos(carpeta)
    escritorio = Escritorio(binarios)
    vestir_gestor(escritorio)
    with casa(), escritorio as e:
        preparar(e)
        al_texto(e, carpeta)
        e.pulsar_panel(CANCELAR)
        los_paneles(e, carpeta)
        las_ventanas(e, carpeta)


main()
