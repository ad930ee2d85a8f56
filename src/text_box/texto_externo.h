// Text on its way in and out: clipboard, drag and drop, input methods.
#pragma once

#include <functional>
#include <string_view>

#include <QByteArray>
#include <QMimeData>
#include <QString>

// The characters of the code page for `texto`, each of its line ends (CR LF, CR, LF or Unicode's
// own) as `fin_de_linea`. What the code page lacks becomes "?".
QByteArray DeFuera(const QString& texto, std::string_view fin_de_linea);
// The same of what the clipboard or a drag brings.
QByteArray DeFuera(const QMimeData& datos, std::string_view fin_de_linea);

// The text for other programs: each line end as LF.
QString ParaFuera(const QByteArray& bytes);

// Plain text that is not even copied until somebody asks for it.
class DatosPendientes : public QMimeData {
  Q_OBJECT

 public:
  explicit DatosPendientes(std::function<QByteArray()> bytes) : bytes_(std::move(bytes)) {}
  QStringList formats() const override;

 protected:
  QVariant retrieveData(const QString& formato, QMetaType tipo) const override;

 private:
  std::function<QByteArray()> bytes_;
};

// Plain text that is converted only when somebody asks for it.
class DatosTexto : public QMimeData {
  Q_OBJECT

 public:
  explicit DatosTexto(QByteArray bytes) : bytes_(std::move(bytes)) {}
  const QByteArray& Crudo() const { return bytes_; }  // as it was copied
  QStringList formats() const override;

 protected:
  QVariant retrieveData(const QString& formato, QMetaType tipo) const override;

 private:
  QByteArray bytes_;
};

// Is there plain text to be had? A file is none, even where its name comes along as text.
bool TraeTexto(const QMimeData* datos);
