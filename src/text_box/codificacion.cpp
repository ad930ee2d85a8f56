#include "text_box/codificacion.h"

#include <algorithm>

#include "shared/pagina_codigos.h"

namespace {

// Letter and accent apart become one character; what lies below is so already.
QString Compuesto(QStringView texto) {
  constexpr char16_t primer_acento = 0x300;
  const bool entero =
      std::ranges::all_of(texto, [](QChar caracter) { return caracter.unicode() < primer_acento; });
  return entero ? texto.toString() : texto.toString().normalized(QString::NormalizationForm_C);
}

class DeUnByte : public Codificacion {
 public:
  Utf8::Caracter En(const LectorTexto& texto, Posicion pos) const override {
    return {Caracter(texto.En(pos)), 1};
  }
  Posicion Inicio(const LectorTexto& /*texto*/, Posicion pos) const override { return pos; }
  QString ATexto(QByteArrayView bytes) const override { return PaginaCodigos::ATexto(bytes); }
  QByteArray ABytes(QStringView texto) const override {
    return PaginaCodigos::ABytes(Compuesto(texto));
  }
  bool Tiene(QStringView texto) const override {
    return PaginaCodigos::Representable(Compuesto(texto));
  }
  char16_t Caracter(unsigned char byte) const override { return caracteres_[byte]; }

 private:
  const std::array<char16_t, 256>& caracteres_ = PaginaCodigos::Tabla();
};

class DeVariosBytes : public Codificacion {
 public:
  Utf8::Caracter En(const LectorTexto& texto, Posicion pos) const override {
    return Utf8::Leer(texto, pos);
  }
  Posicion Inicio(const LectorTexto& texto, Posicion pos) const override {
    return Utf8::Inicio(texto, pos);
  }
  QString ATexto(QByteArrayView bytes) const override;
  QByteArray ABytes(QStringView texto) const override { return texto.toUtf8(); }
  bool Tiene(QStringView /*texto*/) const override { return true; }
  char16_t Caracter(unsigned char byte) const override {
    return byte < 0x80 ? byte : char16_t{Utf8::Reemplazo};
  }
};

// No more characters than bytes: the toolkit's own would join the faults.
QString DeVariosBytes::ATexto(QByteArrayView bytes) const {
  QString texto(bytes.size(), Qt::Uninitialized);
  QChar* donde = texto.data();
  const auto* datos = reinterpret_cast<const unsigned char*>(bytes.data());
  const auto n = static_cast<std::size_t>(bytes.size());
  for (std::size_t i = 0; i < n;) {
    const Utf8::Caracter caracter = Utf8::Leer(datos + i, n - i);
    i += caracter.largo;
    if (QChar::requiresSurrogates(caracter.codigo)) {
      *donde++ = QChar(QChar::highSurrogate(caracter.codigo));
      *donde++ = QChar(QChar::lowSurrogate(caracter.codigo));
    } else {
      const char32_t codigo = caracter.codigo;
      *donde++ = QChar(static_cast<char16_t>(Utf8::EsSuelto(codigo) ? Utf8::Reemplazo : codigo));
    }
  }
  texto.truncate(donde - texto.constData());
  return texto;
}

}  // namespace

const Codificacion& Codificacion::Windows1252() {
  static const DeUnByte pagina;
  return pagina;
}

const Codificacion& Codificacion::DeUtf8() {
  static const DeVariosBytes pagina;
  return pagina;
}

const Codificacion& Codificacion::De(const Utf8::Recuento& recuento,
                                     const Codificacion& del_sistema) {
  if (recuento.EsAscii()) return del_sistema;
  return recuento.Secuencias() > recuento.Sueltos() ? DeUtf8() : Windows1252();
}
