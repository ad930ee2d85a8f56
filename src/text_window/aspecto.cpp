#include "text_window/aspecto.h"

#include <algorithm>
#include <array>

#include "shared/perfil.h"

namespace {

constexpr QStringView SeccionFuente = u"Fuente";
constexpr QStringView SeccionFondo = u"Fondo";
constexpr double PuntosPorDefecto = 10;
constexpr double MinimoPuntos = 1;  // what can still be drawn, and without end of memory
constexpr double MaximoPuntos = 2160;

struct Estilo {
  QStringView clave;
  bool FuenteTexto::*valor;
};
constexpr std::array<Estilo, 4> Estilos{{{u"Negrita", &FuenteTexto::negrita},
                                         {u"Cursiva", &FuenteTexto::cursiva},
                                         {u"Subrayada", &FuenteTexto::subrayada},
                                         {u"Tachada", &FuenteTexto::tachada}}};

// The system's colours by number, from 0 for the scroll bars to 24 for the tooltips' background.
constexpr std::array<QPalette::ColorRole, 25> ColoresDelSistema{QPalette::Button,
                                                                QPalette::Shadow,
                                                                QPalette::Highlight,
                                                                QPalette::Mid,
                                                                QPalette::Window,
                                                                QPalette::Base,
                                                                QPalette::Shadow,
                                                                QPalette::WindowText,
                                                                QPalette::Text,
                                                                QPalette::HighlightedText,
                                                                QPalette::Button,
                                                                QPalette::Button,
                                                                QPalette::Dark,
                                                                QPalette::Highlight,
                                                                QPalette::HighlightedText,
                                                                QPalette::Button,
                                                                QPalette::Dark,
                                                                QPalette::PlaceholderText,
                                                                QPalette::ButtonText,
                                                                QPalette::WindowText,
                                                                QPalette::Light,
                                                                QPalette::Shadow,
                                                                QPalette::Midlight,
                                                                QPalette::ToolTipText,
                                                                QPalette::ToolTipBase};

FuenteTexto LeerFuente(Perfil& perfil, const QString& ruta, const QString& nombre) {
  FuenteTexto fuente;
  fuente.nombre = nombre;
  perfil.Leer(ruta, SeccionFuente, u"Tamaño", u"10");
  fuente.puntos =
      std::clamp(perfil.Puntos().value_or(PuntosPorDefecto), MinimoPuntos, MaximoPuntos);
  for (const auto& [clave, valor] : Estilos) {
    perfil.Leer(ruta, SeccionFuente, clave, u"No");
    fuente.*valor = perfil.EsSi();
  }
  return fuente;
}

QString TextoDe(double puntos) {
  return QString::number(puntos, 'g', 7).replace(u'.', u',');
}

}  // namespace

NumeroColor NumeroDe(const QColor& color) {
  return color.red() | color.green() << 8 | color.blue() << 16;
}

QColor ColorDe(NumeroColor numero, const QPalette& paleta, QPalette::ColorRole desconocido) {
  if (numero >= 0) return {numero & 0xFF, numero >> 8 & 0xFF, numero >> 16 & 0xFF};
  const auto indice = static_cast<std::size_t>(numero & 0x7FFFFFFF);
  return paleta.color(indice < ColoresDelSistema.size() ? ColoresDelSistema[indice] : desconocido);
}

QColor Aspecto::ColorTexto(const QPalette& paleta) const {
  return ColorDe(texto, paleta, QPalette::Text);
}

QColor Aspecto::ColorFondo(const QPalette& paleta) const {
  return ColorDe(fondo, paleta, QPalette::Base);
}

Aspecto LeerAspecto(Perfil& perfil, const QString& ruta) {
  Aspecto aspecto;
  perfil.Leer(ruta, SeccionFuente, u"Nombre", u"Inicial");
  if (!perfil.EsInicial()) {
    const QString nombre = perfil.Valor();
    aspecto.fuente = LeerFuente(perfil, ruta, nombre.isEmpty() ? aspecto.fuente.nombre : nombre);
    perfil.Leer(ruta, SeccionFuente, u"Color", u"VbBlack");
    aspecto.texto = perfil.Color().value_or(NumeroNegro);
  }
  perfil.Leer(ruta, SeccionFondo, u"Color", u"Inicial");
  if (!perfil.EsInicial()) aspecto.fondo = perfil.Color().value_or(NumeroBlanco);
  return aspecto;
}

void EscribirAspecto(Perfil& perfil, const QString& ruta, const Aspecto& aspecto) {
  perfil.EscribirBuffer(ruta, SeccionFuente, u"Nombre", aspecto.fuente.nombre);
  perfil.EscribirBuffer(ruta, SeccionFuente, u"Tamaño", TextoDe(aspecto.fuente.puntos));
  for (const auto& [clave, valor] : Estilos) {
    perfil.EscribirBuffer(ruta, SeccionFuente, clave, aspecto.fuente.*valor ? u"Si" : u"No");
  }
  perfil.EscribirBuffer(ruta, SeccionFuente, u"Color", QString::number(aspecto.texto));
  perfil.EscribirBuffer(ruta, SeccionFondo, u"Color", QString::number(aspecto.fondo));
}
