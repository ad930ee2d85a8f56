// What the controls of the favourites manager do; they are made in panel_favoritas_controles.cpp.
#include "text_window/panel_favoritas.h"

#include <algorithm>

#include "platform/ayuda_literal.h"
#include "shared/favoritas.h"

// Asked the same impossible thing again, the panel says what to do instead.
struct FraFavoritas::Alterna {
  QLatin1StringView principio;  // of the line that is there when it was said already
  QString aviso;
  QString consejo;
};

void FraFavoritas::GestionarFavoritas() {
  FavoritasCambiadas = false;
  LstFav->clear();
  for (const QString& carpeta : LeerFavoritas(gral_)) AgregarOrdenada(carpeta);
  PonerEstado(0, {QStringLiteral("> Gestionar favoritas"), {}});
  PonerEstado(1, {QStringLiteral("> Total Favoritas: %1").arg(LstFav->count()), {}});
  PonerEstado(2, {QStringLiteral("> Listo..."), {}});
  DrvUnidad->Refrescar();
  UnidadAnterior = DrvUnidad->Actual();
  DirCarpeta->Vaciar();
  const Resultado abierta = DirCarpeta->Abrir(UnidadAnterior.raiz);
  if (!abierta.Bien()) AgregarEstado({QStringLiteral("> Unidad no disponible"), {}});
  show();
  DrvUnidad->setFocus();
}

// The remembered drive is tried once; when it fails, too, the folder list stays as it is.
void FraFavoritas::DrvUnidad_Change() {
  if (!SeleccionarUnidad()) {
    DrvUnidad->PonerActual(UnidadAnterior);
    SeleccionarUnidad();
  }
}

bool FraFavoritas::SeleccionarUnidad() {
  const Unidad unidad = DrvUnidad->Actual();
  AgregarEstado({QStringLiteral("> Selec. unidad "), unidad.nombre});
  const bool abierta = DirCarpeta->Abrir(unidad.raiz).Bien();
  if (!abierta) AgregarEstado({QStringLiteral("> Unidad no disponible"), {}});
  return abierta;
}

void FraFavoritas::AvisarNoAbierta(const Resultado& fallo) {
  AgregarEstado({UnidadNoDisponible(fallo) ? QStringLiteral("> Unidad no disponible")
                                           : QStringLiteral("> Carpeta no legible"),
                 {}});
}

void FraFavoritas::CmdAnhadir_Click() {
  if (LstFav->count() >= MaximoFavoritas) {
    Alternar({QLatin1StringView("> D"), QStringLiteral("> Demasiadas carpetas"),
              QStringLiteral("> Elimine alguna")});
    return;
  }
  const QString carpeta = DirCarpeta->Elegida();
  if (Carpetas().contains(carpeta)) {
    Alternar({QLatin1StringView("> I"), QStringLiteral("> Imposible ya EXISTE"),
              QStringLiteral("> Seleccione otra")});
    return;
  }
  if (carpeta.isEmpty()) {  // the drive could not be read when the panel opened
    AgregarEstado({QStringLiteral("> Unidad no disponible"), {}});
    return;
  }
  FavoritasCambiadas = true;
  LstFav->scrollToItem(LstFav->item(AgregarOrdenada(carpeta)));
  AgregarEstado({QStringLiteral("> Carpeta añadida (%1)").arg(LstFav->count()), {}});
}

void FraFavoritas::CmdQuitar_Click() {
  if (LstFav->count() == 0) {
    Alternar({QLatin1StringView("> N"), QStringLiteral("> NO hay carpetas fav."),
              QStringLiteral("> Añada alguna carpeta")});
    return;
  }
  if (LstFav->selectedItems().isEmpty()) {
    Alternar({QLatin1StringView("> M"), QStringLiteral("> Marque la carpeta"),
              QStringLiteral("> Clic en la lista")});
    return;
  }
  const int seleccionada = LstFav->row(LstFav->selectedItems().constFirst());
  delete LstFav->takeItem(seleccionada);
  LstFav->setCurrentRow(std::max(seleccionada - 1, 0));
  FavoritasCambiadas = true;
  AgregarEstado({QStringLiteral("> Eliminada. Quedan %1").arg(LstFav->count()), {}});
}

void FraFavoritas::CmdCerrarFav_Click() {
  if (FavoritasCambiadas) GuardarFavoritas(gral_, Carpetas());
  gral_.VerFavoritas = false;
  hide();
  emit Cerrado();
}

QStringList FraFavoritas::Carpetas() const {
  QStringList carpetas;
  for (int i = 0; i < LstFav->count(); ++i) carpetas << LstFav->item(i)->text();
  return carpetas;
}

// Behind the entries that are equal but for letter case; returns its index.
int FraFavoritas::AgregarOrdenada(const QString& carpeta) {
  int lugar = 0;
  for (int hasta = LstFav->count(); lugar < hasta;) {
    const int medio = (lugar + hasta) / 2;
    if (orden_.Menor(carpeta, LstFav->item(medio)->text())) {
      hasta = medio;
    } else {
      lugar = medio + 1;
    }
  }
  LstFav->insertItem(lugar, carpeta);
  return lugar;
}

void FraFavoritas::PonerEstado(std::size_t linea, const LineaEstado& estado) {
  QLabel& etiqueta = *LblEstado[linea];
  const QFontMetrics letra = etiqueta.fontMetrics();
  const int sitio = etiqueta.width() - letra.horizontalAdvance(estado.texto);
  const QString unidad = letra.elidedText(estado.unidad, Qt::ElideMiddle, sitio);
  etiqueta.setText(estado.texto + unidad);
  PonerAyudaLiteral(etiqueta, unidad == estado.unidad ? QString() : estado.unidad);
  etiqueta.setAccessibleName(estado.texto + estado.unidad);
  estados_[linea] = estado;
}

void FraFavoritas::AgregarEstado(const LineaEstado& estado) {
  PonerEstado(0, LineaEstado(estados_[1]));
  PonerEstado(1, LineaEstado(estados_[2]));
  PonerEstado(2, estado);
}

void FraFavoritas::Alternar(const Alterna& alterna) {
  const bool dicho = estados_[2].texto.startsWith(alterna.principio);
  AgregarEstado({dicho ? alterna.consejo : alterna.aviso, {}});
}
