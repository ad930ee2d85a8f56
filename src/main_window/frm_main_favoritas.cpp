// The favourite folders in the main window: their text files are listed in one go.
#include <utility>

#include <QHash>
#include <QLabel>

#include "main_window/frm_main.h"
#include "shared/favoritas.h"
#include "shared/rutas.h"

namespace {

constexpr int MargenError = 2;  // pixels around the notice

}  // namespace

void FrmMain::ComandoFavoritas() {
  const QStringList carpetas = LeerFavoritas(gral_);
  if (!carpetas.isEmpty()) {
    AbrirFavoritas(carpetas);
  } else if (!gral_.ArchivoNuevo) {
    gral_.VerFavoritas = true;
    TraerTexto();
  }
}

// A folder on a drive that is not there is counted; after any other failure FileList still holds
// the folder that it held before. One that is named twice is read once.
void FrmMain::AbrirFavoritas(const QStringList& carpetas) {
  int no_abiertas = 0;
  bool por_anotar = true;  // FileList's files are not among those collected
  QStringList rutas;
  QHash<QString, ResultadoCon<CarpetaLeida>> leidas;
  for (const QString& favorita : carpetas) {
    auto leida = leidas.find(favorita);
    const bool es_nueva = leida == leidas.end();
    if (es_nueva) {
      leida = leidas.insert(favorita, escritorio_.unidades.Leer(favorita, Busca::Textos));
    }
    if (leida->Bien()) {
      FileList = leida->Valor();
      por_anotar = es_nueva;
    } else if (UnidadNoDisponible(leida->Fallo())) {
      ++no_abiertas;
      continue;
    }
    if (std::exchange(por_anotar, false)) {
      const QString carpeta = ConBarra(FileList.carpeta);
      for (const QString& nombre : FileList.nombres) rutas << carpeta + nombre;
    }
  }
  const int fuera = lista_.AgregarVarios(rutas);
  MostrarTotal();
  if (no_abiertas > 0) AvisarNoAbiertas(no_abiertas);
  if (fuera > 0) AvisarListaLlena(fuera);
}

// Its place in the picture is narrower than the words: it grows to both sides and, where the window
// ends, into further lines.
void FrmMain::AvisarNoAbiertas(int cuantas) {
  LblError->setText(QStringLiteral("%1 Favoritas no abiertas.").arg(cuantas));
  const QRect sitio(0, 0, width() - 2 * MargenError, height());
  const QSize texto = LblError->fontMetrics()
                          .boundingRect(sitio, Qt::AlignCenter | Qt::TextWordWrap, LblError->text())
                          .size();
  QRect rect({}, texto.grownBy({MargenError, MargenError, MargenError, MargenError}));
  rect.moveCenter({width() / 2, LblError->geometry().center().y()});
  LblError->setGeometry(rect);
  LblError->raise();
  LblError->show();
  TmrError.start();
}

void FrmMain::TmrError_Timer() {
  LblError->hide();
}
