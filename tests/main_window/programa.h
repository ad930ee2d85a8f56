// The whole program over a recording desktop: real windows, real files, in a folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QTest>

#include "dobles/escritorio_falso.h"
#include "main_window/frm_main.h"
#include "main_window/lista_archivos.h"
#include "main_window/vista_lista.h"
#include "shared/carpeta_de_prueba.h"
#include "text_box/caja_texto.h"
#include "text_window/frm_texto.h"

// Settings in memory, with a note of every write.
class AjustesAnotados : public AccesoPerfil {
 public:
  QByteArray LeerCadena(QStringView seccion, QStringView clave, const QByteArray& defecto,
                        const QString& /*ruta*/) override {
    return valores.value(Nombre(seccion, clave), defecto);
  }
  void EscribirCadena(QStringView seccion, QStringView clave, const QByteArray& valor,
                      const QString& /*ruta*/) override {
    valores[Nombre(seccion, clave)] = valor;
    escritas << Nombre(seccion, clave) + '=' + QString::fromLatin1(valor);
  }

  QHash<QString, QByteArray> valores;
  QStringList escritas;

 private:
  static QString Nombre(QStringView seccion, QStringView clave) {
    return seccion.toString() + u'/' + clave.toString();
  }
};

class Programa : public testing::Test {
 protected:
  void SetUp() override { Arrancar(); }
  // A closed text window goes while the desktop that it knows is still there.
  ~Programa() override {
    principal.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  // Once more, with the settings that are now in `ajustes`.
  void Arrancar() {
    gral = std::make_unique<ModGral>(ajustes);
    principal = std::make_unique<FrmMain>(*gral, escritorio.Servicios());
    principal->MostrarSinActivar();
    ajustes.escritas.clear();
  }

  QString Ruta(const QString& nombre) const { return carpeta.Ruta(nombre); }
  QString Archivo(const QString& nombre, const QByteArray& contenido) const {
    return carpeta.Escribir(nombre, contenido);
  }
  QByteArray EnDisco(const QString& nombre) const { return carpeta.Leer(nombre); }

  void Abrir(const QString& ruta) {
    escritorio.dialogos.respuesta = ruta;
    PulsarIcono(0);
    escritorio.dialogos.respuesta.clear();
  }
  // Files that hold their names.
  void AbrirTodos(const QStringList& nombres) {
    for (const QString& nombre : nombres) Abrir(Archivo(nombre, nombre.toUtf8()));
  }
  // What a user does in the main window makes it the active one first.
  void PulsarIcono(int indice) const {
    principal->DarFoco();
    principal->ImgMenu_Click(indice);
  }
  void PulsarEntrada() const {
    principal->DarFoco();
    principal->ListBox_Click();
  }
  void TeclaEnLista(Qt::Key tecla) const {
    principal->DarFoco();
    QTest::keyClick(Lista(), tecla);
  }
  FrmTexto* Texto() const {
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
      auto* texto = qobject_cast<FrmTexto*>(ventana);
      if (texto != nullptr && texto->Visible()) return texto;
    }
    return nullptr;
  }
  CajaTexto* Caja() const { return Texto()->findChild<CajaTexto*>("TextBox(0)"); }
  QByteArray EnCaja() const { return Texto()->ElDocumento().Copia(); }
  QString Titulo() const { return Texto()->Titulo(); }
  void Escribir(const QString& texto) {
    Texto()->DarFoco();
    QTest::keyClicks(Caja(), texto);
  }
  VistaLista* Lista() const { return principal->findChild<VistaLista*>(); }
  QString Total() const {
    return principal->findChild<QWidget*>("LblTotal")->property("text").toString();
  }
  bool SeVe(const char* panel) const {
    const auto* suyo = Texto()->findChild<QWidget*>(panel);
    return suyo != nullptr && suyo->isVisibleTo(Texto());
  }
  bool Panel() const { return SeVe("FraGuardar"); }
  QStringList Entradas() const {
    QStringList nombres;
    for (int i = 0; i < Lista()->model()->rowCount(); ++i) {
      nombres << Lista()->model()->index(i, 0).data().toString();
    }
    return nombres;
  }

  CarpetaDePrueba carpeta;
  AjustesAnotados ajustes;
  EscritorioFalso escritorio;
  std::unique_ptr<ModGral> gral;
  std::unique_ptr<FrmMain> principal;
};
