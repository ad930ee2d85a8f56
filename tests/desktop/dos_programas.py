"""Two programs from one folder, closed at the same moment, store all that each of them has to store
and nothing else."""
import subprocess

from escritorio import esperar, esperar_valor, recorrer

AJENAS = b"; a mano\r\n[PosTam]\r\nColumna=7\r\n%s\r\n[Otro programa]\r\nx = 1\r\n\xf1\r\n"
# What only the first stores, closed with its options panel open and its window maximised, and
# what only the second does.
DEL_PANEL = {("Fuente", "Nombre"): "Courier", ("Fuente", "Tamaño"): "9,75",
             ("Fuente", "Negrita"): "No", ("Fuente", "Cursiva"): "No",
             ("Fuente", "Subrayada"): "No", ("Fuente", "Tachada"): "No", ("Fuente", "Color"): "0",
             ("Fondo", "Color"): "16777215", ("Opciones", "Ajustar"): "No",
             ("Opciones", "Favoritas"): "No"}
DE_AMBOS = {("PosTam", "PrinIzda"), ("PosTam", "PrinArriba"), ("PosTam", "TextoEdo"),
            ("Inicial", "Carpeta"), ("Opciones", "Visible"), ("Opciones", "Confirmar")}
DE_POSICION = [("PosTam", c) for c in ("TextoIzda", "TextoArriba", "TextoAncho", "TextoAlto")]


def leer(ini):
    """The values by section and key, and the lines that are nobody's."""
    valores, resto, seccion = {}, [], ""
    for linea in ini.read_bytes().decode("cp1252").split("\r\n"):
        clave, igual, valor = linea.partition("=")
        if linea.startswith("["):
            seccion = linea.strip("[]")
        if igual and (seccion, clave) in DE_AMBOS | DEL_PANEL.keys() | set(DE_POSICION):
            assert (seccion, clave) not in valores, f"twice: {linea}"
            valores[seccion, clave] = valor.strip()
        else:
            resto.append(linea)
    return valores, resto


def ronda(e, numero):
    ini = e.bin / "Velda.INI"
    ini.write_bytes(AJENAS % b"TextoIzda=0")
    e.iniciar()
    e.pulsar_icono("Opciones")
    esperar("the options panel", lambda: any(n == "Opciones:" for _, n, _ in e.accesibles()))
    e.pulsar(e.texto(), 20, 210)  # word wrap
    primero, ventanas = e.programa, {e.principal, e.texto()}
    e.orden("wmctrl", "-i", "-r", e.texto(), "-b", "add,maximized_vert,maximized_horz")
    esperar("the first text maximised", lambda: e.rectangulo(e.texto())[2] > 1200)

    segundo = subprocess.Popen([str(e.bin / "velda")], cwd=e.raiz, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    e.procesos.append(segundo)
    nuevas = esperar("the second program", lambda: (lambda vistas: len(vistas) == 2 and vistas)(
        [v for t in (r"^Velda\.\.\.$", "^Archivo: ") for v in e.orden(
            "xdotool", "search", "--onlyvisible", "--name", t).split() if v not in ventanas]))
    donde = (300 + numero, 200 + numero, 500 + numero, 400 + numero)
    e.orden("wmctrl", "-i", "-r", nuevas[1], "-e", "0,%d,%d,%d,%d" % donde)
    esperar_valor("the second text's size", lambda: e.rectangulo(nuevas[1])[2:], donde[2:])
    fuera = [str(v * 15) for v in e.rectangulo_exterior(nuevas[1])]

    for cierre in [subprocess.Popen(["wmctrl", "-i", "-c", v]) for v in (e.principal, nuevas[0])]:
        cierre.wait()
    for programa in (primero, segundo):
        assert programa.wait(60) == 0
        e.procesos.remove(programa)

    valores, resto = leer(ini)
    assert valores.keys() >= DE_AMBOS, DE_AMBOS - valores.keys()
    assert {c: valores.get(c) for c in DEL_PANEL} == DEL_PANEL, valores
    assert [valores.get(c) for c in DE_POSICION] == fuera, (valores, fuera)
    nuevas_secciones = [f"[{s}]" for s in ("Inicial", "Opciones", "Fuente", "Fondo")]
    propias = AJENAS.decode("cp1252").replace("%s\r\n", "").split("\r\n")
    assert sorted(resto) == sorted(propias + nuevas_secciones), resto
    assert [r for r in resto if r in propias] == propias, resto
    assert {a.name for a in e.bin.iterdir() if a.name.startswith(".velda")} == set()


def recorrido(e):
    for numero in range(3):
        ronda(e, numero)


recorrer(recorrido)
