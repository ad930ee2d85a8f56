// The context menu.
#include <array>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>

#include "text_box/caja_texto.h"
#include "text_box/texto_externo.h"

void CajaTexto::contextMenuEvent(QContextMenuEvent* evento) {
  const bool teclado = evento->reason() == QContextMenuEvent::Keyboard;
  MostrarMenu(teclado ? viewport()->mapToGlobal(RectanguloCursor().bottomLeft())
                      : evento->globalPos());
}

void CajaTexto::MostrarMenu(const QPoint& global) {
  const bool edita = !SoloLectura();
  const bool elegido = cursor_.HaySeleccion();
  struct Opcion {
    const char* texto;  // nothing: a separator
    bool activa;
    Orden orden;
  };
  const auto opciones = std::to_array<Opcion>({
      {"&Deshacer\tCtrl+Z", edita && documento_.PuedeDeshacer(), Orden::Deshacer},
      {"&Rehacer\tCtrl+Y", edita && documento_.PuedeRehacer(), Orden::Rehacer},
      {nullptr, false, Orden::Ninguna},
      {"Cor&tar\tCtrl+X", edita && elegido, Orden::Cortar},
      {"&Copiar\tCtrl+C", elegido, Orden::Copiar},
      {"&Pegar\tCtrl+V", edita && TraeTexto(QApplication::clipboard()->mimeData()), Orden::Pegar},
      {"&Eliminar\tSupr", edita && elegido, Orden::Eliminar},
      {nullptr, false, Orden::Ninguna},
      {"&Seleccionar todo\tCtrl+A", documento_.Tamano() > 0, Orden::ElegirTodo},
  });
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const Opcion& opcion : opciones) {
    if (!opcion.texto) {
      menu->addSeparator();
      continue;
    }
    QAction* accion = menu->addAction(QString::fromUtf8(opcion.texto));
    accion->setEnabled(opcion.activa);
    connect(accion, &QAction::triggered, this, [this, orden = opcion.orden] { Mandar(orden); });
  }
  menu->popup(global);
}
