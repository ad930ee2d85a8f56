// What the left button of the mouse means to a text: one press, two or three select by character,
// word or line; the pointer extends that, also from outside the box, where the text rolls along; a
// press on what is selected already may be about to drag it.
//
// Says what is to be selected; selecting, rolling and dragging is for who asks. Points are pixels
// of the viewport.
#pragma once

#include <optional>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPoint>

#include "text_box/documento.h"
#include "text_box/encuadre.h"
#include "text_box/movimiento.h"

class GestosRaton : public QObject {
  Q_OBJECT

 public:
  enum class Gesto { Ninguno, Elegir, QuizaArrastrar };

  // What is to be selected: from `ancla`, or from where the selection begins now, to `cursor`.
  struct Eleccion {
    std::optional<Posicion> ancla;
    Lugar cursor;
  };

  // Both outlive it.
  GestosRaton(const Documento& documento, const Encuadre& encuadre)
      : documento_(documento), encuadre_(encuadre) {}

  // `elegido`: what is selected now; `extender`: from there. Nothing is to be selected where the
  // press may be about to drag that.
  std::optional<Eleccion> Pulsar(const QPoint& punto, const Rango& elegido, bool extender);
  Eleccion PulsarDoble(const QPoint& punto);
  // Has the pointer gone far enough to drag what is selected? Then the gesture has ended.
  bool EmpiezaArrastre(const QPoint& punto);
  // Nothing while no gesture selects.
  std::optional<Eleccion> Extender(const QPoint& punto);
  Gesto Soltar();  // ends the gesture, and tells which it was

  // How far outside the box; 0 within it.
  QPoint Fuera(const QPoint& punto) const;

 signals:
  void TocaRodar();  // again and again while the pointer selects from outside

 protected:
  void timerEvent(QTimerEvent* evento) override;

 private:
  enum class Grano { Caracter, Palabra, Linea };
  bool SobreElegido(const QPoint& punto, const Rango& elegido) const;
  Rango RangoEn(Posicion pos, Grano grano) const;
  Eleccion Empezar(const Lugar& lugar, Grano grano);

  const Documento& documento_;
  const Encuadre& encuadre_;
  Gesto gesto_ = Gesto::Ninguno;
  Grano grano_ = Grano::Caracter;
  Rango origen_;  // what the gesture selected first
  QPoint pulsado_;
  QElapsedTimer doble_;  // since the last double click
  QBasicTimer reloj_;
};
