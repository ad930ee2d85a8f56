// ListBox as the main window shows it: one entry selected at most, yellow on black. What the user
// does to an entry is told once.
#pragma once

#include <QListView>

inline constexpr int CodigoSuprimir = 46;  // the Delete key

class VistaLista : public QListView {
  Q_OBJECT

 public:
  explicit VistaLista(QWidget* padre);

  int IndiceSeleccionado() const;  // -1 when none is
  void Seleccionar(int indice);    // shows it too; tells nothing

 signals:
  void Elegida();    // the selected entry: by the mouse, or by a key that has found another one
  void Insistida();  // by a key that walks through the list and stays on the selected entry
  void TeclaPulsada(int codigo);  // CodigoSuprimir

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;

 private:
  bool pulsada_ = false;  // the main button went down on an entry
};
