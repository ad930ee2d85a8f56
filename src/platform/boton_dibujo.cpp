#include "platform/boton_dibujo.h"

#include "platform/controles.h"
#include "platform/dibujos.h"

QToolButton* CrearBoton(QWidget* padre, const AspectoBoton& aspecto) {
  auto* boton = new QToolButton(padre);
  Disponer(*boton, aspecto.nombre, aspecto.rect);
  boton->setIcon(Icono(aspecto.dibujo));
  boton->setIconSize(aspecto.tamano);
  boton->setAccessibleName(aspecto.accesible);
  boton->setFocusPolicy(Qt::StrongFocus);
  QPalette colores = boton->palette();
  colores.setColor(QPalette::Button, aspecto.fondo);
  boton->setPalette(colores);
  return boton;
}
