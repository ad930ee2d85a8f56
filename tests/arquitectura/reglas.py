"""Reads the sources and fails when an include or a brace goes against the house's rules.

reglas.py SRC CABECERAS_QTCORE     checks a tree, and the braces of tests/ and bench/ beside it
reglas.py --autoprueba CABECERAS   made-up trees with one mistake each: every one must be caught
"""
import pathlib
import re
import sys

ABAJO = {"shared"}
VENTANA = {"text_box", "platform"} | ABAJO
# Which folders a folder may include beside itself. The files right in src/ may include all.
FLECHAS = {
    "shared": set(),
    "platform": ABAJO,
    "text_box": ABAJO,
    "text_window": VENTANA,
    "delete_window": VENTANA,
    "about_window": VENTANA,
    "main_window": VENTANA | {"text_window", "delete_window", "about_window"},
}
VENTANAS = {"main_window", "text_window", "delete_window", "about_window"}
DIALOGOS = {"qfiledialog", "qmessagebox", "qdesktopservices", "qfontdialog", "qcolordialog"}
ARCHIVOS = {"qfile", "qsavefile", "qsettings"}
PAGINA, QUIEN_LA_PIDE = "shared/pagina_codigos.h", "text_box/codificacion.cpp"  # beside shared
# The engine of the text box: none of these reaches a header of the toolkit, not even indirectly.
NUCLEO = pathlib.Path(__file__).parents[2] / "src/text_box/nucleo.cmake"
SIN_QT = {nombre for nombre in re.findall(r"(\w+)\.cpp", NUCLEO.read_text(encoding="utf-8"))
          if not nombre.startswith(("codificacion", "documento"))}
LINEAS_MAXIMAS, COLUMNAS_MAXIMAS = 400, 100
INCLUYE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)

# A body in a line of its own without braces, and one with braces that has room in the line above;
# both as clang-format lays them out. A condition that goes on is indented further than a body.
SIN_LLAVES = re.compile(
    r"^( *)(?:\} )?(?:if|for|while|else)\b.*(?:\n\1   .*)*(?<![{;])\n\1  (?=\S)", re.M)
LLAVES = re.compile(
    r"^( *(?:if|for|while)\b.*) \{\n *((?! |//|(?:if|for|while)\b).*;)\n *\}$", re.M)


def es_qt(nombre):
    return re.match(r"(Qt\w+/)?(Q[A-Z]|q[a-z]+\.h$)", nombre) is not None


def clase_qt(nombre):
    return nombre.split("/")[-1].lower().removesuffix(".h")


def llaves_malas(carpeta):
    malas = []
    for archivo in sorted(carpeta.rglob("*.h")) + sorted(carpeta.rglob("*.cpp")):
        texto = archivo.read_text(encoding="utf-8")
        sin_notas = re.sub("  //.*", "", texto)
        halladas = [(m, "needs braces") for m in SIN_LLAVES.finditer(sin_notas)]
        halladas += [(m, "fits in one line without braces") for m in LLAVES.finditer(texto)
                     if len(f"{m[1]} {m[2]}") <= COLUMNAS_MAXIMAS]
        for m, porque in halladas:
            linea = m.string.count("\n", 0, m.start()) + 1
            malas.append(f"{archivo.relative_to(carpeta.parent)}:{linea}: {porque}")
    return malas


def leer(src):
    """{path inside src: [(line, quote, included name)]}, and the too long files."""
    incluidos, largos = {}, []
    for archivo in sorted(src.rglob("*")):
        if archivo.suffix not in (".h", ".cpp"):
            continue
        texto = archivo.read_text(encoding="utf-8")
        nombre = archivo.relative_to(src).as_posix()
        incluidos[nombre] = [(texto.count("\n", 0, m.start(1)) + 1, m[1], m[2])
                             for m in INCLUYE.finditer(texto)]
        if texto.count("\n") >= LINEAS_MAXIMAS:
            largos.append(f"{nombre}: {LINEAS_MAXIMAS} lines or more")
    return incluidos, largos


def flecha_mala(carpeta, archivo, comilla, nombre):
    if nombre == PAGINA and carpeta != "shared" and archivo != QUIEN_LA_PIDE:
        return f"only {QUIEN_LA_PIDE} asks for the code page of a text"
    if comilla == "<" or nombre.endswith(".moc"):
        return None
    destino = nombre.split("/")[0]
    if "/" not in nombre or destino not in FLECHAS:
        return "not in the form \"folder/header.h\""
    if carpeta in FLECHAS and destino != carpeta and destino not in FLECHAS[carpeta]:
        return f"{carpeta} must not include {destino}"
    return None


def qt_malo(carpeta, nombre, qtcore):
    if not es_qt(nombre):
        return None
    clase = clase_qt(nombre)
    if carpeta == "shared" and not (qtcore / nombre.split("/")[-1]).exists():
        return "shared knows QtCore only"
    if carpeta != "platform" and clase in DIALOGOS:
        return "only platform opens the toolkit's dialogs"
    if carpeta in VENTANAS and clase in ARCHIVOS:
        return "a window does not touch files itself"
    return None


def alcanza_qt(nombre, incluidos, vistos):
    """The first include of a toolkit's header that `nombre` reaches, or None."""
    vistos.add(nombre)
    for _, comilla, otro in incluidos.get(nombre, []):
        if comilla == "<" and es_qt(otro):
            return f"{nombre} includes {otro}"
        if comilla == '"' and otro not in vistos:
            hallado = alcanza_qt(otro, incluidos, vistos)
            if hallado:
                return hallado
    return None


def faltas(src, qtcore):
    incluidos, malas = leer(src)
    malas += llaves_malas(src)
    for nombre, lista in incluidos.items():
        ruta = pathlib.PurePosixPath(nombre)
        carpeta = ruta.parts[0] if len(ruta.parts) > 1 else ""
        if carpeta and carpeta not in FLECHAS:
            malas.append(f"{nombre}: a folder without rules")
        for linea, comilla, otro in lista:
            porque = flecha_mala(carpeta, nombre, comilla, otro) or qt_malo(carpeta, otro, qtcore)
            if porque:
                malas.append(f"{nombre}:{linea}: {otro}: {porque}")
        if carpeta == "text_box" and ruta.stem in SIN_QT:
            hallado = alcanza_qt(nombre, incluidos, set())
            if hallado:
                malas.append(f"{nombre}: the engine must not know Qt, but {hallado}")
    return malas


def main():
    src, qtcore = map(pathlib.Path, sys.argv[1:])
    for hay in (src / "main.cpp", qtcore / "QString"):
        assert hay.exists(), f"nothing to read: {hay}"
    malas = faltas(src, qtcore)
    malas += llaves_malas(src.parent / "tests") + llaves_malas(src.parent / "bench")
    print("\n".join(malas))
    sys.exit(1 if malas else 0)


main()
