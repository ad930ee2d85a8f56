#include "text_box/maqueta.h"

#include <algorithm>

#include <QGlyphRun>

#include "text_box/codificacion.h"
#include "text_box/tabla_glifos.h"
#include "text_box/utf8.h"

namespace {

qreal Pixeles(Punto x) {
  return static_cast<qreal>(x) / Pixel;
}

// Calls `con` with the offset and the code point of each character.
template <typename Con>
void Recorrer(std::string_view bytes, Con con) {
  const auto* datos = reinterpret_cast<const unsigned char*>(bytes.data());
  for (std::size_t i = 0; i < bytes.size();) {
    const Utf8::Caracter caracter = Utf8::Leer(datos + i, bytes.size() - i);
    con(i, caracter);
    i += caracter.largo;
  }
}

}  // namespace

Maqueta::Maqueta(const TablaGlifos& tabla, std::string_view bytes, Punto x) : tabla_(tabla), x_(x) {
  Reunir(bytes);
}

void Maqueta::Reunir(std::string_view bytes) {
  SignosFuente& signos = *tabla_.Signos();
  const bool rayas = tabla_.Subrayada() || tabla_.Tachada();  // the toolkit's layout draws them
  std::size_t inicio = 0;
  bool con_texto = rayas;
  const auto cerrar = [&](std::size_t fin) {
    if (fin > inicio) Cerrar(inicio, bytes.substr(inicio, fin - inicio), con_texto);
    con_texto = rayas;
  };
  Recorrer(bytes, [&](std::size_t i, const Utf8::Caracter& caracter) {
    if (!SignosFuente::EsMarca(caracter.codigo)) {
      con_texto = con_texto || signos.Glifo(caracter.codigo) == 0;
      return;
    }
    cerrar(i);
    inicio = i + caracter.largo;
    PonerSolo(i, inicio, caracter.codigo);
  });
  cerrar(bytes.size());
}

void Maqueta::Cerrar(std::size_t desde, std::string_view bytes, bool con_texto) {
  Trozo trozo;
  trozo.desde = desde;
  trozo.hasta = desde + bytes.size();
  trozo.x = x_;
  if (con_texto) {
    PonerTexto(trozo, bytes);
  } else {
    PonerGlifos(trozo, bytes);
  }
  trozo.lugares.push_back(trozo.hasta);
  trozo.fin = x_;
  trozos_.push_back(std::move(trozo));
}

void Maqueta::PonerGlifos(Trozo& trozo, std::string_view bytes) {
  SignosFuente& signos = *tabla_.Signos();
  Recorrer(bytes, [&](std::size_t i, const Utf8::Caracter& caracter) {
    trozo.lugares.push_back(trozo.desde + i);
    trozo.xs.push_back(x_);
    trozo.glifos.push_back(signos.Glifo(caracter.codigo));
    x_ += signos.De(caracter.codigo).ancho;
  });
  trozo.xs.push_back(x_);
}

void Maqueta::PonerTexto(Trozo& trozo, std::string_view bytes) {
  trozo.tipo = Tipo::Texto;
  Recorrer(bytes, [&](std::size_t i, const Utf8::Caracter& caracter) {
    const bool dos = QChar::requiresSurrogates(caracter.codigo);
    trozo.lugares.insert(trozo.lugares.end(), dos ? 2 : 1, trozo.desde + i);
  });
  const QByteArrayView vista(bytes.data(), static_cast<qsizetype>(bytes.size()));
  const QString texto = Codificacion::DeUtf8().ATexto(vista);
  trozo.maqueta = std::make_unique<QTextLayout>(texto, tabla_.Signos()->Fuente());
  trozo.maqueta->setCacheEnabled(true);
  const QTextLine linea = Maquetar(*trozo.maqueta);
  const qreal ancho = std::max({linea.naturalTextWidth(), linea.cursorToX(0),
                                linea.cursorToX(static_cast<int>(texto.size()))});
  x_ += qRound(ancho * Pixel);
}

// A tab, or a character without a picture.
void Maqueta::PonerSolo(std::size_t desde, std::size_t hasta, char32_t codigo) {
  Trozo trozo;
  trozo.desde = desde;
  trozo.hasta = hasta;
  trozo.x = x_;
  trozo.tipo = codigo == '\t' ? Tipo::Hueco : Utf8::EsSuelto(codigo) ? Tipo::Suelto : Tipo::Marca;
  const Avances& avances = tabla_.Anchos();
  x_ = codigo == '\t' ? (x_ / avances.tabulador + 1) * avances.tabulador : x_ + avances.ancho[' '];
  trozo.lugares = {desde, hasta};
  trozo.xs = {trozo.x, x_};
  trozo.fin = x_;
  trozos_.push_back(std::move(trozo));
}

Punto Maqueta::XDe(std::size_t lugar) const {
  if (trozos_.empty()) return x_;
  auto trozo = std::ranges::upper_bound(trozos_, lugar, {}, &Trozo::desde);
  if (trozo != trozos_.begin()) --trozo;
  const auto sitio = std::ranges::lower_bound(trozo->lugares, lugar);
  const auto i = std::min(sitio - trozo->lugares.begin(), std::ssize(trozo->lugares) - 1);
  if (trozo->tipo != Tipo::Texto) return trozo->xs[static_cast<std::size_t>(i)];
  return trozo->x + qRound(trozo->maqueta->lineAt(0).cursorToX(static_cast<int>(i)) * Pixel);
}

std::size_t Maqueta::LugarEnX(Punto x) const {
  if (trozos_.empty()) return 0;
  auto trozo = std::ranges::upper_bound(trozos_, x, {}, &Trozo::fin);
  if (trozo == trozos_.end()) --trozo;
  if (trozo->tipo == Tipo::Texto) {
    const QTextLayout& maqueta = *trozo->maqueta;
    int i = maqueta.lineAt(0).xToCursor(Pixeles(x - trozo->x));
    if (!maqueta.isValidCursorPosition(i)) i = maqueta.nextCursorPosition(i);
    return trozo->lugares[static_cast<std::size_t>(i)];
  }
  const auto mayor = std::ranges::upper_bound(trozo->xs, x);
  auto i = std::clamp<std::ptrdiff_t>(mayor - trozo->xs.begin(), 1, std::ssize(trozo->xs) - 1);
  const auto k = static_cast<std::size_t>(i);
  return x - trozo->xs[k - 1] < trozo->xs[k] - x ? trozo->lugares[k - 1] : trozo->lugares[k];
}

void Maqueta::Pintar(QPainter& pintor, qreal izquierda, int y, const Eleccion& eleccion,
                     const AspectoCaja& aspecto) const {
  for (const Trozo& trozo : trozos_) {
    const Eleccion parte{std::clamp(eleccion.desde, trozo.desde, trozo.hasta),
                         std::clamp(eleccion.hasta, trozo.desde, trozo.hasta)};
    if (trozo.tipo == Tipo::Texto) {
      PintarTexto(pintor, trozo, izquierda, y, parte, aspecto);
    } else {
      PintarGlifos(pintor, trozo, izquierda, y, parte, aspecto);
    }
  }
}

// What is selected stands in its own colours, on its own ground.
void Maqueta::PintarGlifos(QPainter& pintor, const Trozo& trozo, qreal izquierda, int y,
                           const Eleccion& eleccion, const AspectoCaja& aspecto) const {
  const auto indice = [&](std::size_t lugar) {
    return static_cast<std::size_t>(std::ranges::lower_bound(trozo.lugares, lugar) -
                                    trozo.lugares.begin());
  };
  const std::size_t n = trozo.lugares.size() - 1;
  const std::size_t desde = indice(eleccion.desde);
  const std::size_t hasta = indice(eleccion.hasta);
  if (desde < hasta) {
    pintor.fillRect(QRectF(izquierda + Pixeles(trozo.xs[desde]), y,
                           Pixeles(trozo.xs[hasta] - trozo.xs[desde]), tabla_.AltoFila()),
                    aspecto.fondo_elegido);
  }
  const auto pintar = [&](std::size_t primero, std::size_t ultimo, const QColor& color) {
    if (primero >= ultimo) return;
    pintor.setPen(color);
    if (trozo.tipo != Tipo::Glifos) {
      const Punto ancho = trozo.fin - trozo.x;
      if (trozo.tipo == Tipo::Marca) {
        tabla_.PintarMarca(pintor, izquierda + Pixeles(trozo.x), y, Pixeles(ancho));
      }
      if (trozo.tipo == Tipo::Suelto) {
        tabla_.PintarSuelto(pintor, izquierda + Pixeles(trozo.x), y, Pixeles(ancho));
      }
      return;
    }
    std::vector<QPointF> sitios;
    for (std::size_t i = primero; i < ultimo; ++i) {
      sitios.emplace_back(izquierda + Pixeles(trozo.xs[i]), y + tabla_.Base());
    }
    QGlyphRun trazo;
    trazo.setRawFont(tabla_.Signos()->Cruda());
    trazo.setRawData(&trozo.glifos[primero], sitios.data(), static_cast<int>(sitios.size()));
    pintor.drawGlyphRun(QPointF(), trazo);
  };
  pintar(0, desde, aspecto.texto);
  pintar(desde, hasta, aspecto.texto_elegido);
  pintar(hasta, n, aspecto.texto);
}

void Maqueta::PintarTexto(QPainter& pintor, const Trozo& trozo, qreal izquierda, int y,
                          const Eleccion& eleccion, const AspectoCaja& aspecto) const {
  const auto unidad = [&](std::size_t lugar) {
    return static_cast<int>(std::ranges::lower_bound(trozo.lugares, lugar) - trozo.lugares.begin());
  };
  const qreal x = izquierda + Pixeles(trozo.x);
  pintor.save();
  QList<QTextLayout::FormatRange> formatos;
  if (eleccion.desde < eleccion.hasta) {
    QTextCharFormat formato;
    formato.setForeground(aspecto.texto_elegido);
    formato.setBackground(aspecto.fondo_elegido);
    const int desde = unidad(eleccion.desde);
    // The ground would be as high as the font that is highest.
    pintor.setClipRect(
        QRectF(x - tabla_.AltoFila(), y, Pixeles(trozo.fin - trozo.x) + 2 * tabla_.AltoFila(),
               tabla_.AltoFila()),
        Qt::IntersectClip);
    formatos.append({desde, unidad(eleccion.hasta) - desde, formato});
  }
  pintor.setPen(aspecto.texto);
  const qreal arriba = y + tabla_.Base() - trozo.maqueta->lineAt(0).ascent();
  trozo.maqueta->draw(&pintor, QPointF(x, arriba), formatos);
  pintor.restore();
}
