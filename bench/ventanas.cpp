#include "bench/ventanas.h"

#include <stdexcept>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>

namespace {

FrmTexto& TextoDe(FrmMain& principal) {
  principal.MostrarSinActivar();  // brings the text window
  principal.DarFoco();
  for (QWidget* ventana : QApplication::topLevelWidgets()) {
    if (auto* texto = qobject_cast<FrmTexto*>(ventana)) return *texto;
  }
  throw std::runtime_error("there is no text window");
}

}  // namespace

Ventanas::Ventanas()
    : principal_(gral_, escritorio_.Servicios()),
      texto_(TextoDe(principal_)),
      foto_texto_(texto_.size()),
      foto_lista_(principal_.size()) {
  gral_.ArchivoINI = carpeta.filePath(QStringLiteral("Velda.INI"));
  gral_.ArchivoFavoritas = carpeta.filePath(QStringLiteral("Favoritas.INI"));
  for (std::size_t i = 0; i < cajas_.size(); ++i) {
    cajas_[i] = texto_.findChild<CajaTexto*>(QStringLiteral("TextBox(%1)").arg(i));
  }
  HacerOpciones();
  Reposar();
}

// The panel is there once it was shown.
void Ventanas::HacerOpciones() {
  principal_.ImgMenu_Click(Opciones);
  ajustar_ = texto_.findChild<QCheckBox*>(QStringLiteral("ChkAjustar"));
  Exigir(ajustar_ != nullptr, "the options panel was not made");
  texto_.CmdCerrar_Click();
  principal_.DarFoco();
}

void Ventanas::AbrirArchivo(const QString& nombre, std::int64_t bytes) {
  const QString ruta = carpeta.filePath(nombre);
  EscribirArchivo(ruta, bytes);
  escritorio_.dialogos.respuesta = ruta;
  principal_.ImgMenu_Click(Abrir);
  Reposar();
  PintarTexto();
  ExigirTexto(nombre, bytes);
}

void Ventanas::Reposar() {
  do QApplication::processEvents();
  while (!Caja().Vista().Completo());
}

void Ventanas::ExigirTexto(const QString& nombre, std::int64_t bytes) const {
  Exigir(texto_.ElDocumento().Tamano() == bytes && texto_.Titulo().endsWith(u'/' + nombre),
         "the text window holds another file");
  Exigir(foto_texto_.TieneLetras(), "the text window shows no text");
  Exigir(escritorio_.mensajes.textos.isEmpty(), "the program complained");
}

void Ventanas::ExigirTotal(int archivos) const {
  const auto* total = principal_.findChild<QLabel*>(QStringLiteral("LblTotal"));
  Exigir(total->text().toInt() == archivos, "the list has another number of files");
}
