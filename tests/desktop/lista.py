"""Walking through the list shows each file and leaves the keyboard in the list."""
from escritorio import esperar_valor, recorrer


def recorrido(e):
    archivos = [e.crear(f"{nombre}.txt", nombre.encode()) for nombre in ("alfa", "beta", "gama")]
    e.iniciar()
    for archivo in (archivos[1], archivos[2], archivos[0], archivos[1]):
        e.abrir(archivo)
    assert e.entradas() == ["alfa.txt", "beta.txt", "gama.txt"]

    def muestra(indice):
        e.esperar_texto(archivos[indice])
        e.esperar_foco(e.principal)

    for tecla, indice in (("Down", 2), ("Up", 1), ("Home", 0), ("End", 2)):
        e.teclas(tecla)
        muestra(indice)
    for icono, indice in (("Siguiente", 2), ("Anterior", 1), ("Anterior", 0), ("Anterior", 0),
                          ("Siguiente", 1)):
        e.pulsar_icono(icono)
        muestra(indice)
    e.pulsar_entrada(2)
    muestra(2)
    e.teclas("Delete")
    muestra(1)
    assert e.entradas() == ["alfa.txt", "beta.txt"]
    esperar_valor("the text", e.texto_mostrado, "beta")


recorrer(recorrido)
