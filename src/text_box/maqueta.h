// A stretch of a text of several bytes a character as it is painted: where each character stands.
//
// What the font has is a run of glyphs; a stretch in which something else stands is laid out by the
// toolkit, which orders it, too, where it is written from right to left. Tabs and characters
// without a picture end such a stretch. Offsets are bytes, x counts from the row's left edge.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <QPainter>
#include <QTextLayout>

#include "text_box/aspecto_caja.h"
#include "text_box/signos_fuente.h"

class TablaGlifos;

class Maqueta {
 public:
  // `x`: where it begins.
  Maqueta(const TablaGlifos& tabla, std::string_view bytes, Punto x);  // `tabla` outlives it

  Punto Fin() const { return x_; }  // its right edge
  Punto XDe(std::size_t lugar) const;
  std::size_t LugarEnX(Punto x) const;  // the nearest place for the caret

  struct Eleccion {
    std::size_t desde = 0;
    std::size_t hasta = 0;
  };
  // With its row's left edge at `izquierda` and its top at `y`; pixels. Never beyond the row.
  void Pintar(QPainter& pintor, qreal izquierda, int y, const Eleccion& eleccion,
              const AspectoCaja& aspecto) const;

 private:
  enum class Tipo { Glifos, Texto, Hueco, Marca, Suelto };
  struct Trozo {
    Tipo tipo = Tipo::Glifos;
    std::size_t desde = 0;
    std::size_t hasta = 0;
    Punto x = 0;
    Punto fin = 0;
    // Where each glyph, or unit of the toolkit's text, starts, and the end; x of each glyph, too.
    std::vector<std::size_t> lugares;
    std::vector<Punto> xs;
    std::vector<quint32> glifos;
    std::unique_ptr<QTextLayout> maqueta;
  };

  void Reunir(std::string_view bytes);
  void Cerrar(std::size_t desde, std::string_view bytes, bool con_texto);
  void PonerGlifos(Trozo& trozo, std::string_view bytes);
  void PonerTexto(Trozo& trozo, std::string_view bytes);
  void PonerSolo(std::size_t desde, std::size_t hasta, char32_t codigo);
  void PintarGlifos(QPainter& pintor, const Trozo& trozo, qreal izquierda, int y,
                    const Eleccion& eleccion, const AspectoCaja& aspecto) const;
  void PintarTexto(QPainter& pintor, const Trozo& trozo, qreal izquierda, int y,
                   const Eleccion& eleccion, const AspectoCaja& aspecto) const;

  const TablaGlifos& tabla_;
  Punto x_;  // of what is to be added
  std::vector<Trozo> trozos_;
};
