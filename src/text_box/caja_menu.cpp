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
  const bool edita = !solo_lectura_;
  const bool elegido = HaySeleccion();
  struct Opcion {
    const char* texto;  // nothing: a separator
    bool activa;
    void (CajaTexto::*orden)();
  };
  const auto opciones = std::to_array<Opcion>({
      {"&Deshacer\tCtrl+Z", edita && documento_.PuedeDeshacer(), &CajaTexto::Deshacer},
      {"&Rehacer\tCtrl+Y", edita && documento_.PuedeRehacer(), &CajaTexto::Rehacer},
      {nullptr, false, nullptr},
      {"Cor&tar\tCtrl+X", edita && elegido, &CajaTexto::Cortar},
      {"&Copiar\tCtrl+C", elegido, &CajaTexto::Copiar},
      {"&Pegar\tCtrl+V", edita && TraeTexto(QApplication::clipboard()->mimeData()),
       &CajaTexto::Pegar},
      {"&Eliminar\tSupr", edita && elegido, &CajaTexto::Eliminar},
      {nullptr, false, nullptr},
      {"&Seleccionar todo\tCtrl+A", documento_.Tamano() > 0, &CajaTexto::ElegirTodo},
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
    connect(accion, &QAction::triggered, this, [this, orden = opcion.orden] { (this->*orden)(); });
  }
  menu->popup(global);
}
