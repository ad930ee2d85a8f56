// Text on its way in and out: clipboard, drag and drop, input methods.
#pragma once

#include <string_view>

#include <QByteArray>
#include <QMimeData>
#include <QString>

#include "text_box/pieza.h"

// The characters of the code page for `texto`, each of its line ends (CR LF, CR, LF or Unicode's
// own) as `fin_de_linea`. What the code page lacks becomes "?".
QByteArray DeFuera(const QString& texto, std::string_view fin_de_linea);
// The same of what the clipboard or a drag brings.
QByteArray DeFuera(const QMimeData& datos, std::string_view fin_de_linea);

// The text for other programs: each line end as LF.
QString ParaFuera(const QByteArray& bytes);

// A stretch of a text, as it was when it was taken; converted only when somebody asks for it.
class DatosTexto : public QMimeData {
  Q_OBJECT

 public:
  explicit DatosTexto(Pieza pieza) : pieza_(std::move(pieza)) {}
  const Pieza& LaPieza() const { return pieza_; }
  QStringList formats() const override;

 protected:
  QVariant retrieveData(const QString& formato, QMetaType tipo) const override;

 private:
  Pieza pieza_;
};

// Are all line ends of this form? Without any, too.
bool SoloFin(const Pieza& pieza, std::string_view fin);

// Is there plain text to be had? A file is none, even where its name comes along as text.
bool TraeTexto(const QMimeData* datos);
