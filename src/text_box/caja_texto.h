// A multi-line text box over bytes: a view of a document, wrapped or not. The one header that
// the rest of the program needs.
#pragma once

#include <optional>

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QColor>
#include <QFont>

#include "text_box/aspecto_caja.h"
#include "text_box/avisos_accesibles.h"
#include "text_box/barra_larga.h"
#include "text_box/composicion.h"
#include "text_box/cursor_texto.h"
#include "text_box/documento.h"
#include "text_box/edicion_texto.h"
#include "text_box/encuadre.h"
#include "text_box/gestos_raton.h"
#include "text_box/pintor_texto.h"
#include "text_box/retrato.h"
#include "text_box/rueda_raton.h"
#include "text_box/teclas.h"

// Who is told of the keys typed in a text box, before they act, and of changes that failed.
class OyenteTeclas {
 public:
  virtual ~OyenteTeclas() = default;
  // A key that yields a character: also Backspace, Enter, Esc, Tab, Ctrl with a letter, the
  // clipboard keys in their Insert forms, and text committed by a dead key or an input method.
  // False: the key is dropped.
  virtual bool TextBox_KeyPress() = 0;
  // Delete, in any form; no other key is told of here.
  virtual void TextBox_KeyDown() = 0;
  // A change, by whatever means, was not made: the memory does not suffice.
  virtual void FaltaMemoria() = 0;
};

class CajaTexto : public QAbstractScrollArea, private Observador, private OyenteEdicion {
  Q_OBJECT

 public:
  enum class Ajuste { SinAjustar, AlAncho };  // lines run past the edge, or wrap at the width

  // `documento` outlives the box. While the box is hidden it costs nothing but its caret.
  CajaTexto(Documento& documento, Ajuste ajuste, QWidget* padre = nullptr);
  ~CajaTexto() override;

  void PonerOyente(OyenteTeclas* oyente);
  void PonerSoloLectura(bool solo_lectura);  // then no key is announced
  bool SoloLectura() const { return edicion_.SoloLectura(); }

  void PonerFuente(const QFont& fuente);  // size in points; underline and strike-out are drawn
  // While the system's fonts are still to come an empty text shows no caret: nothing asks for one.
  void PonerEsperaFuentes(bool espera);
  const QFont& Fuente() const { return fuente_; }
  void PonerColores(const QColor& texto, const QColor& fondo);
  QColor ColorTexto() const { return aspecto_.texto; }
  QColor ColorFondo() const { return aspecto_.fondo; }

  // Positions beyond the text count as its end; the caret never rests between CR and LF.
  Posicion Cursor() const { return cursor_.Pos(); }   // byte offset of the caret
  Posicion Ancla() const { return cursor_.Ancla(); }  // the other end of the selection, or Cursor()
  void PonerCursor(Posicion cursor, Posicion ancla);
  Posicion Arriba() const;  // byte offset of the first visible row
  void PonerArriba(Posicion pos);

  void Insertar(const QString& texto);  // as if pasted, at the caret

  // For screen readers.
  const Documento& Texto() const { return documento_; }
  const Encuadre& Vista() const { return encuadre_; }
  void CambiarRango(Posicion desde, Posicion hasta, const QString& texto);

  QVariant inputMethodQuery(Qt::InputMethodQuery pregunta) const override;

 protected:
  bool event(QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void showEvent(QShowEvent* evento) override;
  void hideEvent(QHideEvent* evento) override;
  void timerEvent(QTimerEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  bool focusNextPrevChild(bool siguiente) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dragMoveEvent(QDragMoveEvent* evento) override;
  void dragLeaveEvent(QDragLeaveEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void Reemplazado(const Cambio& cambio) override;
  void Recargado() override;
  void Recodificado() override;
  void PorQuitar(const Rango& rango) override;
  void CursorMovido() override;
  void FaltaMemoria() override;

  // caja_texto.cpp
  void Conectar();
  void Redibujar();  // what has changed of bars and text, idle work
  void ActualizarBarras();
  void RodarX(std::int64_t x);
  void RodarFilas(std::int64_t filas);
  // Its first picture asks for neither rows nor font: every start shows it.
  bool Vacia() const { return documento_.Tamano() == 0; }
  void MostrarCursor();
  void Trabajar();  // on what is not known yet of the rows
  Posicion Desde() const { return cursor_.Elegido().desde; }
  Posicion Hasta() const { return cursor_.Elegido().hasta; }

  // caja_pintura.cpp
  template <typename Hacer>
  void CadaFila(Hacer hacer) const;  // in sight, from the top
  void PintarFilas(QPainter& pintor, const QRegion& zona);
  QRect Banda(int y, int rebase) const;
  int Rebase(bool compone) const;
  Posicion FilaCompuesta() const;
  Retrato Retratar() const;
  void DibujarCambios();
  void DibujarCambios(const Retrato& nuevo);
  bool CursorSeVe() const;
  void PintarCompuesta(QPainter& pintor, PintorTexto& filas, const PintorTexto::Fila& fila);
  void PintarCursor(QPainter& pintor, const QRect& sitio) const;
  bool SeSitua() const { return !(espera_fuentes_ && Vacia()); }
  QRect RectanguloCursor() const;
  void ReiniciarParpadeo();

  // caja_teclas.cpp
  bool Avisar(Aviso aviso);
  void Editar(Orden orden, const QString& texto);
  void Mandar(Orden orden);
  void Escribir(const QByteArray& bytes);
  void ElegirTodo();
  bool Mover(const Tecla& tecla);
  bool MoverPagina(const Tecla& tecla);

  // caja_entrada.cpp
  void Confirmar(const QInputMethodEvent& evento);
  QVariant TextoParaMetodo(Qt::InputMethodQuery pregunta) const;

  // caja_menu.cpp
  void MostrarMenu(const QPoint& global);

  // caja_raton.cpp and caja_arrastre.cpp
  void Elegir(const std::optional<GestosRaton::Eleccion>& eleccion);
  void RodarAlArrastrar();
  void ArrastrarTexto();
  bool AceptaTexto(const QDropEvent& evento) const;

  Documento& documento_;
  Encuadre encuadre_;
  OyenteTeclas* oyente_ = nullptr;
  QFont fuente_;
  AspectoCaja aspecto_;
  BarraLarga vertical_;
  BarraLarga horizontal_;

  CursorTexto cursor_{documento_, encuadre_};
  EdicionTexto edicion_{documento_, cursor_, *this};
  bool mostrar_cursor_ = false;    // to be scrolled to when the box is shown, or the row known
  bool cursor_encendido_ = false;  // the lit half of its blinking
  bool espera_fuentes_ = false;
  Composicion composicion_;
  AvisosAccesibles avisos_{*this, documento_};
  GestosRaton gestos_{documento_, encuadre_};
  RuedaRaton rueda_;
  std::optional<Retrato> retrato_;  // of what is drawn; none: all is to be drawn
  std::optional<Posicion> soltar_;  // where dragged text would land

  QBasicTimer reloj_parpadeo_;
  QBasicTimer reloj_trabajo_;
};
