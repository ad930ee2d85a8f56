// A multi-line text box over bytes: a view of a document, wrapped or not. The one header that
// the rest of the program needs.
#pragma once

#include <QAbstractScrollArea>
#include <QColor>
#include <QFont>

#include "text_box/documento.h"

// Who is told of the keys typed in a text box, before they act.
class OyenteTeclas {
 public:
  virtual ~OyenteTeclas() = default;
  // A key that yields a character: also Backspace, Enter, Esc, Tab, Ctrl with a letter, the
  // clipboard keys in their Insert forms, and text committed by a dead key or an input method.
  // False: the key is dropped.
  virtual bool TeclaCaracter() = 0;
  virtual void TeclaSuprimir() = 0;  // Delete, in any form
};

class CajaTexto : public QAbstractScrollArea, private Observador {
  Q_OBJECT

 public:
  enum class Ajuste { SinAjustar, AlAncho };  // lines run past the edge, or wrap at the width

  CajaTexto(Documento& documento, Ajuste ajuste, QWidget* padre = nullptr);
  ~CajaTexto() override;

  void PonerOyente(OyenteTeclas* oyente);
  void PonerSoloLectura(bool solo_lectura);

  void PonerFuente(const QFont& fuente);  // size in points; underline and strike-out are drawn
  const QFont& Fuente() const;
  void PonerColores(const QColor& texto, const QColor& fondo);
  QColor ColorTexto() const;
  QColor ColorFondo() const;

  Posicion Cursor() const;  // byte offset of the caret
  Posicion Ancla() const;   // the other end of the selection; equal to Cursor() without one
  void PonerCursor(Posicion cursor, Posicion ancla);
  Posicion Arriba() const;  // byte offset of the first visible row
  void PonerArriba(Posicion pos);

  void Insertar(const QString& texto);  // as if pasted, at the caret
};
