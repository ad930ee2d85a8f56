#include <functional>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include "platform/abridor.h"
#include "platform/dialogo_archivo.h"
#include "platform/dialogos_archivo.h"
#include "platform/espera_larga.h"
#include "platform/mensajes.h"
#include "platform/ventana.h"

namespace {

class Dialogos : public testing::Test {
 protected:
  Dialogos() { duena.Mostrar(); }
  // Does that with the next dialog, once it is open.
  template <typename Dialogo>
  void EnElSiguiente(const std::function<void(Dialogo&)>& que) {
    QTimer::singleShot(0, &duena, [this, que] {
      EXPECT_TRUE(activacion.HayDialogo());
      que(dynamic_cast<Dialogo&>(*QApplication::activeModalWidget()));
    });
  }

  Activacion activacion;
  Ventana duena{activacion, Ventana::Marco::Redimensionable};
};

TEST_F(Dialogos, a_message_is_shown_letter_by_letter_and_only_yes_is_yes) {
  MensajesReales mensajes(activacion);
  for (const auto& [tecla, si] :
       {std::pair{Qt::Key_Return, false}, {Qt::Key_Escape, false}, {Qt::Key_Y, true}}) {
    EnElSiguiente<QMessageBox>([tecla = tecla](QMessageBox& caja) {
      EXPECT_EQ(caja.textFormat(), Qt::PlainText);
      EXPECT_EQ(caja.text(), "<b>&uno</b>");
      EXPECT_GE(caja.width(), 300);
      tecla == Qt::Key_Y ? caja.button(QMessageBox::Yes)->click() : QTest::keyClick(&caja, tecla);
    });
    EXPECT_EQ(mensajes.Preguntar(duena, "<b>&uno</b>", "TITULO"), si) << tecla;
  }
  EnElSiguiente<QMessageBox>([](QMessageBox& caja) {
    EXPECT_EQ(caja.windowTitle(), "TITULO");
    EXPECT_EQ(caja.buttons().size(), 1);
    caja.accept();
  });
  mensajes.Critico(duena, "uno", "TITULO");
  EXPECT_FALSE(activacion.HayDialogo());
}

TEST_F(Dialogos, a_file_is_asked_for_from_its_folder_or_from_home_when_there_is_none) {
  DialogosArchivoReales dialogos(activacion);
  for (const auto& [pedida, empieza] : {std::pair<QString, QString>{"/usr", "/usr"},
                                        {"/no/existe", QDir::homePath()},
                                        {"", QDir::homePath()}}) {
    for (const bool guardar : {false, true}) {
      EnElSiguiente<DialogoArchivo>([&, empieza = empieza](DialogoArchivo& dialogo) {
        EXPECT_EQ(dialogo.directory().path(), empieza);
        EXPECT_EQ(dialogo.nameFilters(), (QStringList{"Textos (*.txt)", "Todos (*)"}));
        EXPECT_EQ(dialogo.acceptMode() == QFileDialog::AcceptSave, guardar);
        dialogo.reject();
      });
      const PeticionArchivo peticion{"Titulo", pedida, "Textos|*.txt|Todos|*"};
      EXPECT_EQ(guardar ? dialogos.Guardar(duena, peticion) : dialogos.Abrir(duena, peticion), "");
    }
  }
}

TEST_F(Dialogos, escape_leaves_the_work_and_only_a_long_one_shows_a_dialog) {
  const QString nombre = "<b>&uno</b>";
  EXPECT_TRUE(EsperasReales(activacion, std::chrono::hours(1)).Empezar(duena, {}, nombre, 100)(1));
  EXPECT_FALSE(activacion.HayDialogo());
  {
    const auto seguir =
        EsperasReales(activacion, std::chrono::hours(0)).Empezar(duena, {}, nombre, 100);
    EXPECT_TRUE(seguir(10));
    EXPECT_TRUE(activacion.HayDialogo());
    auto* dialogo = QApplication::activeModalWidget();
    ASSERT_NE(dialogo, nullptr);
    EXPECT_EQ(dialogo->findChild<QLabel*>()->text(), nombre);
    EXPECT_EQ(dialogo->findChild<QLabel*>()->textFormat(), Qt::PlainText);
    QTimer::singleShot(0, dialogo, [dialogo] { QTest::keyClick(dialogo, Qt::Key_Escape); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !seguir(20); }));
  }
  EXPECT_FALSE(activacion.HayDialogo());
}

TEST(Abridores, an_address_and_a_path_are_handed_over_whole) {
  QTextBrowser lector;
  for (const char* esquema : {"mailto", "file"}) {
    QDesktopServices::setUrlHandler(esquema, &lector, "setSource");
  }
  AbridorReal().AbrirDireccion("mailto:ana@example.org");
  EXPECT_EQ(lector.source(), QUrl("mailto:ana@example.org"));
  AbridorReal().AbrirArchivo("/a b/100%.htm");
  EXPECT_EQ(lector.source(), QUrl::fromLocalFile("/a b/100%.htm"));
  for (const char* esquema : {"mailto", "file"}) QDesktopServices::unsetUrlHandler(esquema);
}

}  // namespace
