// The characters beyond ASCII as a font shows them: what is in it from a table, what is not, or is
// drawn together, as the toolkit's text layout has it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <QFont>
#include <QRawFont>
#include <QString>
#include <QTextLayout>

#include "text_box/renglones.h"
#include "text_box/signos.h"

// Points of a width in pixels, for adding up.
std::int32_t EnPuntos(qreal pixeles);
// The one line of `maqueta`, as the toolkit's editor would lay it out.
QTextLine Maquetar(QTextLayout& maqueta);

class SignosFuente : public Signos {
 public:
  // `fuente` without kerning; `ascii`: how wide the others are.
  SignosFuente(QFont fuente, QRawFont cruda, const Avances& ascii)
      : fuente_(std::move(fuente)), cruda_(std::move(cruda)), ascii_(ascii) {}

  std::span<const Racimo> Medir(std::string_view tramo) override;

  const QFont& Fuente() const { return fuente_; }
  const QRawFont& Cruda() const { return cruda_; }
  // Its glyph in the font; 0 where it is not as simple as that.
  std::uint32_t Glifo(char32_t codigo);
  // Has it no picture of its own? Then it is drawn as a box, as wide as a blank.
  static bool EsMarca(char32_t codigo);

 protected:
  void Llenar(char32_t primero, Pagina& pagina) override;

 private:
  using Glifos = std::array<std::uint32_t, 256>;
  struct Lote;

  void MedirEnFuente(char32_t primero, Pagina& pagina);
  void MedirLote(const Lote& lote, Pagina& pagina) const;
  std::vector<Racimo> Maquetados(std::string_view tramo) const;

  QFont fuente_;
  QRawFont cruda_;
  Avances ascii_;
  std::unordered_map<char32_t, std::unique_ptr<Glifos>> glifos_;  // by page
  std::unordered_map<std::string, std::vector<Racimo>> tramos_;
};
