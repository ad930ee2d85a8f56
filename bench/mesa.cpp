#include "bench/mesa.h"

#include <QApplication>
#include <QKeyEvent>

#include "bench/tabla.h"

namespace {

constexpr QSize Ventana(560, 480);

}  // namespace

void CargarEn(Documento& documento, const QString& ruta) {
  auto lector = LectorArchivo::Abrir(ruta, LectorArchivo::SiFalta::Fallar);
  Exigir(lector.Bien() && documento.Cargar(lector.Valor()).Bien(), "a load failed");
}

void Pulsar(QWidget& widget, int tecla, const QString& texto) {
  QKeyEvent evento(QEvent::KeyPress, tecla, {}, texto);
  QApplication::sendEvent(&widget, &evento);
}

Mesa::Mesa() : vacia_(Ventana, &ventana_), foto_(Ventana) {
  ventana_.resize(Ventana);
  caja_.PonerFuente(QFont(QStringLiteral("Liberation Mono"), 10));
  caja_.resize(Ventana);
  caja_.hide();
  ventana_.show();
  Mostrar();
  Reposar();
  Pintar();  // the glyphs are there from now on
  Esconder();
}

void Mesa::Cargar(const QString& ruta, std::int64_t bytes) {
  CargarEn(documento_, ruta);
  Exigir(Tamano() == bytes, "a load gave another size");
}

void Mesa::Reposar() {
  do QApplication::processEvents();
  while (caja_.isVisible() && !caja_.Vista().Completo());
}

void Mesa::AlMedio() {
  caja_.PonerCursor(Tamano() / 2, Tamano() / 2);
  Exigir(caja_.Arriba() > Tamano() / 4, "the middle of the text is not in sight");
}

void Mesa::ExigirLetras() const {
  Exigir(foto_.TieneLetras(), "a picture shows no text");
}

void Mesa::ExigirFilas(std::int64_t bytes) const {
  const Encuadre& vista = caja_.Vista();
  Exigir(vista.Completo() && vista.Reparto().Total() > bytes / LargoLinea, "rows are missing");
}
