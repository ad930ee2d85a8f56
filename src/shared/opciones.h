// The yes/no options: the keys of [Opciones] in the settings. What an option is stands here, once;
// its check box is a row of FraOpciones.
#pragma once

#include <array>
#include <span>

#include <QString>
#include <QStringView>

class Perfil;

struct Opciones {
  struct Opcion;

  bool Visible = true;     // the main window stays above all others
  bool Ajustar = true;     // the text is wrapped to its window
  bool Favoritas = false;  // the text files of the favourite folders are listed at the start
  bool Confirmar = true;   // ask before a file is deleted

  // One value at a time, in the order of the list. What is not stored is as in new Opciones.
  void Leer(Perfil& perfil, const QString& ruta, std::span<const Opcion> cuales);
  void Escribir(Perfil& perfil, const QString& ruta, std::span<const Opcion> cuales) const;
};

struct Opciones::Opcion {
  QStringView clave;
  bool Opciones::*valor;
};

inline constexpr Opciones::Opcion OpcionVisible{u"Visible", &Opciones::Visible};
inline constexpr Opciones::Opcion OpcionAjustar{u"Ajustar", &Opciones::Ajustar};
inline constexpr Opciones::Opcion OpcionFavoritas{u"Favoritas", &Opciones::Favoritas};
inline constexpr Opciones::Opcion OpcionConfirmar{u"Confirmar", &Opciones::Confirmar};

// What each window reads when it is loaded and writes when it, or its panel, is closed.
inline constexpr std::array LeePrincipal{OpcionVisible, OpcionConfirmar, OpcionFavoritas};
inline constexpr std::array EscribePrincipal{OpcionVisible, OpcionConfirmar};
inline constexpr std::array LeeTexto{OpcionAjustar, OpcionFavoritas};
inline constexpr std::array EscribePanel{OpcionAjustar, OpcionFavoritas, OpcionConfirmar};
