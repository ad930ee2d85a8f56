"""Reads the sources and fails when an include or a brace goes against the house's rules.

reglas.py SRC CABECERAS_QTCORE     checks a tree, and the braces of tests/ and bench/ beside it
reglas.py --autoprueba CABECERAS   made-up trees with one mistake each: every one must be caught
"""
import pathlib
import re
import sys
import tempfile

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


# Files of a made-up tree, and what must be said of it; "" where nothing is wrong.
CASOS = [
    ({"shared/a.h": '#include "main_window/b.h"'}, "a.h:1: main_window/b.h: shared must not"),
    ({"delete_window/a.cpp": '#include "shared/pagina_codigos.h"'}, "the code page of a text"),
    ({"platform/a.h": "\n#include <QFile>\n#include \"text_box/b.h\""}, "a.h:3: text_box/b.h"),
    ({"text_box/a.cpp": '#include "platform/b.h"'}, "text_box must not include platform"),
    ({"text_window/a.cpp": '#include "main_window/b.h"'}, "text_window must not include"),
    ({"main_window/a.cpp": '#include "b.h"'}, 'not in the form "folder/header.h"'),
    ({"main_window/a.cpp": '#  include "../shared/b.h"'}, "not in the form"),
    ({"shared/a.h": "#include <QWidget>"}, "shared knows QtCore only"),
    ({"shared/a.h": "#include <QtGui/qcolor.h>"}, "shared knows QtCore only"),
    ({"main_window/a.cpp": "#include <QtWidgets/qmessagebox.h>"}, "the toolkit's dialogs"),
    ({"main.cpp": "#include <QFileDialog>"}, "the toolkit's dialogs"),
    ({"delete_window/a.cpp": "#include <QSaveFile>"}, "does not touch files"),
    ({"text_box/bytes.cpp": "#include <QString>"}, "bytes.cpp includes QString"),
    ({"text_box/lineas.h": '#include "text_box/x.h"',
      "text_box/x.h": "#include <QtCore/qglobal.h>"}, "lineas.h: the engine must not know Qt"),
    ({"text_box/largo.cpp": "\n" * LINEAS_MAXIMAS}, "largo.cpp: 400 lines"),
    ({"cosas/a.h": ""}, "a folder without rules"),
    ({"main.cpp": "void A() {\n  for (;;)\n    if (b) c();\n}\n"}, "main.cpp:2: needs braces"),
    ({"main.cpp": "  if (a &&\n      b)  // both\n    return;\n"}, "main.cpp:1: needs braces"),
    ({"main.cpp": "  if (a) {\n    b();\n  } else\n    c();\n"}, "main.cpp:3: needs braces"),
    ({"main.cpp": "  while (a) {\n    forma();\n  }\n"}, "main.cpp:1: fits in one line"),
    ({"main.cpp": '#include <QApplication>\n#include "main_window/frm_main.h"',
      "main_window/a.cpp": '#include <QWidget>\n#include "a.moc"\n#include "text_window/b.h"',
      "platform/a.cpp": '#include <QMessageBox>\n#include "shared/b.h"',
      "shared/a.h": "#include <QString>\n#include <vector>\n#include <sys/queue.h>",
      "text_box/filas.h": '#include <vector>\n#include "text_box/bytes.h"',
      "text_box/codificacion.cpp": '#include "shared/pagina_codigos.h"',
      "text_box/largo.cpp": "\n" * (LINEAS_MAXIMAS - 1)}, ""),
    ({"main.cpp": "  if (a) b();\n  for (;;) {\n    if (a) b();\n  }\n"
                  "  if (a &&\n      b) {\n    c();\n  }\n"
                  "  if (a) {\n    b();\n  } else {\n    c();\n  }\n"
                  f"  if (a) {{\n    return {'b' * 84};\n  }}\n"}, ""),
]


def autoprueba(qtcore):
    fallos = []
    for archivos, esperada in CASOS:
        with tempfile.TemporaryDirectory() as carpeta:
            src = pathlib.Path(carpeta)
            for nombre, texto in archivos.items():
                (src / nombre).parent.mkdir(exist_ok=True)
                (src / nombre).write_text(texto, encoding="utf-8")
            dichas = faltas(src, qtcore)
        if len(dichas) != (1 if esperada else 0) or esperada not in "".join(dichas):
            fallos.append(f"{archivos}: expected {esperada!r}, said {dichas}")
    return fallos


def main():
    qtcore = pathlib.Path(sys.argv[2])
    if not (qtcore / "QString").exists():
        sys.exit(f"no headers of QtCore in {qtcore}")
    if sys.argv[1] == "--autoprueba":
        malas = autoprueba(qtcore)
    else:
        src = pathlib.Path(sys.argv[1])
        malas = faltas(src, qtcore)
        malas += llaves_malas(src.parent / "tests") + llaves_malas(src.parent / "bench")
        if not (src / "main.cpp").exists():
            malas.append(f"no main.cpp in {src}")
    print("\n".join(malas))
    sys.exit(1 if malas else 0)


main()
