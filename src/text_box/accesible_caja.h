// A text box as screen readers see it. They count characters, the text counts bytes.
#pragma once

#include <QAccessibleWidget>

#include "text_box/caja_texto.h"

class AccesibleCaja : public QAccessibleWidget,
                      public QAccessibleTextInterface,
                      public QAccessibleEditableTextInterface {
 public:
  static void Instalar();  // boxes made from now on are seen
  explicit AccesibleCaja(CajaTexto* caja);

  void* interface_cast(QAccessible::InterfaceType tipo) override;
  QAccessible::State state() const override;

  void selection(int indice, int* desde, int* hasta) const override;
  int selectionCount() const override;
  void addSelection(int desde, int hasta) override;
  void removeSelection(int indice) override;
  void setSelection(int indice, int desde, int hasta) override;
  int cursorPosition() const override;
  void setCursorPosition(int pos) override;

  using QAccessibleWidget::text;
  QString text(int desde, int hasta) const override;
  QString textBeforeOffset(int pos, QAccessible::TextBoundaryType unidad, int* desde,
                           int* hasta) const override;
  QString textAfterOffset(int pos, QAccessible::TextBoundaryType unidad, int* desde,
                          int* hasta) const override;
  QString textAtOffset(int pos, QAccessible::TextBoundaryType unidad, int* desde,
                       int* hasta) const override;
  int characterCount() const override;
  QRect characterRect(int pos) const override;
  int offsetAtPoint(const QPoint& punto) const override;
  void scrollToSubstring(int desde, int hasta) override;
  QString attributes(int pos, int* desde, int* hasta) const override;

  void deleteText(int desde, int hasta) override;
  void insertText(int pos, const QString& texto) override;
  void replaceText(int desde, int hasta, const QString& texto) override;

 private:
  CajaTexto& Caja() const;
  const Documento& Texto() const { return Caja().Texto(); }
  int Contar(Posicion pos) const;
  Posicion Dentro(int caracter) const;  // a position of the text, whatever was asked for
  Rango Unidad(Posicion pos, QAccessible::TextBoundaryType unidad) const;
  QString Responder(const Rango& rango, int* desde, int* hasta) const;
};
