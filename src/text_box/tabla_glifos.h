// How each of the 256 bytes looks in one font: its glyph, the font it comes from, its width; and
// what says it of characters of several bytes.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <QFont>
#include <QPainter>
#include <QRawFont>

#include "text_box/codificacion.h"
#include "text_box/maqueta.h"
#include "text_box/renglones.h"
#include "text_box/signos_fuente.h"

class TablaGlifos {
 public:
  struct Entrada {
    std::uint32_t glifo = 0;
    std::uint8_t fuente = 0;  // index for Fuente(), or Marca
  };
  // A control character: no glyph, the painter draws a mark as wide as a blank.
  static constexpr std::uint8_t Marca = 255;

  // Kerning and ligatures are off; a character that `fuente` lacks comes from the font that the
  // system puts in its place.
  TablaGlifos(const QFont& fuente, const Codificacion& codificacion);

  const Entrada& De(unsigned char byte) const { return entradas_[byte]; }
  const QRawFont& Fuente(std::uint8_t indice) const { return fuentes_[indice]; }
  const Avances& Anchos() const { return avances_; }
  std::int32_t AnchoMayor() const { return ancho_mayor_; }  // 26.6

  // Of a text of several bytes a character; null for others.
  SignosFuente* Signos() const { return signos_.get(); }
  // A row of such a text; until the next one is asked for.
  const Maqueta& Maquetada(const std::string& fila) const;

  // The pictures of what has none: of a control character, and of a byte that is no character. At
  // `x` in the row whose top is `y`, pixels, in the pen's colour.
  void PintarMarca(QPainter& pintor, qreal x, int y, qreal ancho) const;
  void PintarSuelto(QPainter& pintor, qreal x, int y, qreal ancho) const;

  // Pixels, as the toolkit's own plain text editor spaces its lines.
  int AltoFila() const { return alto_fila_; }
  qreal Base() const { return base_; }  // from the row's top to the base line

  // Pixels by which letters may reach out of their row, above or below.
  int Rebase() const { return rebase_; }

  bool Subrayada() const { return subrayada_; }
  bool Tachada() const { return tachada_; }
  qreal GrosorRaya() const { return grosor_raya_; }
  qreal Subrayado() const { return subrayado_; }  // from the base line, downwards
  qreal Tachado() const { return tachado_; }      // from the base line, upwards

 private:
  void Medir(const QFont& fuente);
  QRect SitioDeMarca(qreal x, int y, qreal ancho) const;
  void Sustituir(unsigned char byte, char16_t caracter, const QFont& fuente);
  std::uint8_t IndiceFuente(const QRawFont& cruda);
  void MedirRebase();

  std::array<Entrada, 256> entradas_{};
  std::vector<QRawFont> fuentes_;
  Avances avances_;
  std::shared_ptr<SignosFuente> signos_;
  // What was asked for last: a picture asks for the same rows again and again.
  mutable std::unordered_map<std::string, std::unique_ptr<Maqueta>> maquetas_;
  std::int32_t ancho_mayor_ = 0;
  int alto_fila_ = 1;
  qreal base_ = 0;
  int rebase_ = 0;
  bool subrayada_ = false;
  bool tachada_ = false;
  qreal grosor_raya_ = 1;
  qreal subrayado_ = 0;
  qreal tachado_ = 0;
};
