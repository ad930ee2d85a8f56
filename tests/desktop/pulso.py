"""Asks a window whether it still answers, as a window manager does: _NET_WM_PING of the Extended
Window Manager Hints, over the X library that every X program brings along."""
import ctypes
import time

MENSAJE, CAMBIOS = 33, 1 << 17  # ClientMessage; StructureNotifyMask, with which Qt sends the answer


class Suceso(ctypes.Structure):
    """XClientMessageEvent, filled up to the size of an XEvent."""
    _fields_ = [("tipo", ctypes.c_int), ("serie", ctypes.c_ulong), ("enviado", ctypes.c_int),
                ("pantalla", ctypes.c_void_p), ("ventana", ctypes.c_ulong),
                ("mensaje", ctypes.c_ulong), ("formato", ctypes.c_int),
                ("datos", ctypes.c_long * 5), ("resto", ctypes.c_long * 16)]


class Pulso:
    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = self.x.XInternAtom.restype = ctypes.c_ulong
        self.sin_ventana = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(
            lambda *_: 0)  # a window may be gone by the time it is asked
        self.x.XSetErrorHandler(self.sin_ventana)
        self.pantalla = ctypes.c_void_p(self.x.XOpenDisplay(None))
        self.raiz = ctypes.c_ulong(self.x.XDefaultRootWindow(self.pantalla))
        self.protocolos, self.ping = (self.x.XInternAtom(self.pantalla, nombre, 0)
                                      for nombre in (b"WM_PROTOCOLS", b"_NET_WM_PING"))
        self.x.XSelectInput(self.pantalla, self.raiz, ctypes.c_long(CAMBIOS))
        self.numero = 0

    def responde(self, ventana, plazo):
        """False when the window has not answered within `plazo` seconds. Asks twice: what came
        before the first question has been handled when the second is answered."""
        return all(self._preguntar(int(ventana), time.monotonic() + plazo) for _ in range(2))

    def _preguntar(self, ventana, limite):
        self.numero += 1
        pregunta = Suceso(MENSAJE, 0, 1, self.pantalla, ventana, self.protocolos, 32,
                          (self.ping, self.numero, ventana, 0, 0))
        self.x.XSendEvent(self.pantalla, ctypes.c_ulong(ventana), 0, ctypes.c_long(0),
                          ctypes.byref(pregunta))
        self.x.XFlush(self.pantalla)
        visto = Suceso()
        while time.monotonic() < limite:
            if not self.x.XPending(self.pantalla):
                time.sleep(0.001)
                continue
            self.x.XNextEvent(self.pantalla, ctypes.byref(visto))
            if visto.tipo == MENSAJE and visto.datos[1] == self.numero:
                return True
        return False

    def bajo_el_puntero(self):
        """The numbers of the windows under the mouse pointer, from the outermost to the innermost;
        none over the desktop's background."""
        vistas, ventana = [], self.raiz
        raiz, hija, x, y, mascara = ctypes.c_ulong(), ctypes.c_ulong(), *(ctypes.c_int(),) * 3
        while self.x.XQueryPointer(self.pantalla, ventana, *map(ctypes.byref, (
                raiz, hija, x, y, x, y, mascara))) and hija.value:
            ventana = ctypes.c_ulong(hija.value)
            vistas.append(str(hija.value))
        return vistas
