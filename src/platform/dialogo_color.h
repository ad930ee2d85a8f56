// The toolkit's colour dialog, in which a click on a colour always gives that colour.
#pragma once

#include <QColorDialog>

class DialogoColor : public QColorDialog {
 public:
  DialogoColor(const QString& titulo, const QColor& inicial, QWidget* duena = nullptr);

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;
};
