// Text on its way in and out: keys, clipboard, drag and drop, input methods, screen readers. The
// one place where the bytes of a text become characters of the toolkit's, and these become bytes.
#pragma once

#include <cstddef>
#include <string_view>

#include <QBasicTimer>
#include <QByteArray>
#include <QMimeData>
#include <QString>

#include "text_box/documento.h"
#include "text_box/extracto.h"

// `texto` in the code page and with the line ends of the document it comes to, whatever its own
// are (CR LF, CR, LF or Unicode's). What the code page lacks becomes "?", where the document cannot
// take another one.
QByteArray DeFuera(const QString& texto, Documento& documento);
// The same of what the clipboard or a drag brings.
QByteArray DeFuera(const QMimeData& datos, Documento& documento);

// The text for other programs: each line end as LF.
QString ParaFuera(const Extracto& extracto, const Codificacion& codificacion);
// What stands there, line ends as they are; nothing where `hasta` is before `desde`.
QString TextoEntre(const Documento& documento, Posicion desde, Posicion hasta);

// Screen readers count code points: how many there are before a position, as far as they can, and
// the position of number `caracter`, in the text in any case.
int CaracteresHasta(const Documento& documento, Posicion pos);
Posicion PosicionDeCaracter(const Documento& documento, int caracter);
// Input methods count units of UTF-16: the position so many after `desde`, or before it.
Posicion TrasUnidades(const Documento& documento, Posicion desde, int unidades);

// Which forms of line end an extract has, and whether it is ASCII, found out bit by bit.
class RecuentoFines {
 public:
  // Goes on through about `bytes` bytes more; true when all of it was seen.
  bool Seguir(const Extracto& extracto, std::size_t bytes);
  // Are all of this form? Without any, too. Asked when all was seen.
  bool Solo(std::string_view fin) const;
  bool EsAscii() const { return todos_ < 0x80; }

 private:
  unsigned char todos_ = 0;  // the bits of all bytes
  std::size_t pieza_ = 0;
  std::size_t dentro_ = 0;  // offset in that one
  std::ptrdiff_t cr_ = 0;
  std::ptrdiff_t lf_ = 0;
  std::ptrdiff_t fines_ = 0;
};

// An extract of a text, as it was when it was taken; converted only when somebody asks for it, and
// nothing where the memory does not suffice for that.
class DatosTexto : public QMimeData {
  Q_OBJECT

 public:
  DatosTexto(Extracto extracto, const Codificacion& codificacion);
  const Extracto& ElExtracto() const { return extracto_; }
  const Codificacion& LaCodificacion() const { return codificacion_; }
  // Can it be put into that document as it is? The line ends are alike, and the code page.
  bool VaEn(const Documento& documento) const;
  QStringList formats() const override;

 protected:
  QVariant retrieveData(const QString& formato, QMetaType tipo) const override;
  void timerEvent(QTimerEvent* evento) override;

 private:
  Extracto extracto_;
  const Codificacion& codificacion_;
  mutable RecuentoFines recuento_;  // of a large extract it goes on while nothing else is to do
  QBasicTimer reloj_;
};

// Is there plain text to be had? A file is none, even where its name comes along as text.
bool TraeTexto(const QMimeData* datos);
