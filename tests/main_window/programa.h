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

  // What is in the text window in one line: "name: text", with a "*" behind the name while the save
  // panel is there.
  QString Estado() const {
    QString nombre = Titulo().remove("Archivo: ").remove(Ruta("") + u'/');
    return nombre + (Panel() ? "*: " : ": ") + QString::fromUtf8(EnCaja());
  }
  void Hacer(const QString& paso) {
    const QString que = paso.section(' ', 0, 0);
    const QString con = paso.section(' ', 1);
    const QString ruta = con.isEmpty() || con.startsWith('/') ? con : Ruta(con);
    if (que == "disco") {
      Archivo(con.section('=', 0, 0), con.section('=', 1).toUtf8());
    } else if (que == "abrir") {
      Abrir(ruta);
    } else if (que == "escribir") {
      Escribir(con);
    } else if (que == "tecla") {
      const QKeyCombination tecla = QKeySequence(con)[0];
      QTest::keyClick(Caja(), tecla.key(), tecla.keyboardModifiers());
    } else if (que == "guardar") {
      escritorio.dialogos.respuesta = ruta;
      Texto()->DarFoco();
      Texto()->CmdGuardar_Click();
      escritorio.dialogos.respuesta.clear();
    } else if (que == "cancelar") {
      Texto()->CmdCancelar_Click();
    } else if (que == "icono") {
      PulsarIcono(con.toInt());
    } else if (que == "entrada") {
      Lista()->Seleccionar(con.toInt());
      PulsarEntrada();
    } else if (que == "lista") {
      TeclaEnLista(static_cast<Qt::Key>(QKeySequence(con)[0].key()));
    } else if (que == "volver") {
      Texto()->DarFoco();
      principal->DarFoco();
      Texto()->DarFoco();
    } else if (que == "cerrar") {
      Texto()->Cerrar();
    } else {
      ADD_FAILURE() << "no such step: " << qPrintable(paso);
    }
  }
  // Steps, each with what is in the text window then; none: it is not looked at.
  void Pasos(const std::vector<std::pair<QString, QString>>& pasos) {
    for (const auto& [paso, estado] : pasos) {
      Hacer(paso);
      EXPECT_TRUE(estado.isEmpty() || Estado() == estado) << qPrintable(paso + ": " + Estado());
    }
  }

  CarpetaDePrueba carpeta;
  AjustesAnotados ajustes;
  EscritorioFalso escritorio;
  std::unique_ptr<ModGral> gral;
  std::unique_ptr<FrmMain> principal;
};
