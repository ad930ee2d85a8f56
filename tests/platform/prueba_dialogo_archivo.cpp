#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTest>

#include "platform/dialogo_archivo.h"
#include "shared/carpeta_de_prueba.h"

namespace {

class ElDialogoDeArchivo : public testing::Test {
 protected:
  ElDialogoDeArchivo() {
    for (const char* nombre : {"viejas", "a \"b\" c", "b", "sub/uno"}) {
      carpeta.Escribir(nombre, "x");
    }
    dialogo.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Entrada("viejas").isValid(); }));
  }
  QModelIndex Entrada(const QString& nombre) {
    const QModelIndex raiz = lista().rootIndex();
    return raiz.model()
        ->match(raiz.model()->index(0, 0, raiz), Qt::DisplayRole, nombre, 1, Qt::MatchExactly)
        .value(0);
  }
  void Pulsar(const QString& nombre) {
    const QRect sitio = lista().visualRect(Entrada(nombre));
    QTest::mouseClick(lista().viewport(), Qt::LeftButton, {}, sitio.center());
  }
  void Escribir(const QString& texto) {
    campo().setFocus();
    campo().selectAll();
    QTest::keyClicks(&campo(), texto);
    QTest::keyClick(&campo(), Qt::Key_Return);
  }
  QLineEdit& campo() { return *dialogo.findChild<QLineEdit*>("fileNameEdit"); }
  QAbstractItemView& lista() { return *dialogo.findChild<QAbstractItemView*>("listView"); }

  CarpetaDePrueba carpeta;
  DialogoArchivo dialogo{"Guardar", carpeta.Ruta(""), {"Todos (*)"}, QFileDialog::AcceptSave};
};

TEST_F(ElDialogoDeArchivo, what_is_typed_is_the_answer_unchanged) {
  const QString aqui = carpeta.Ruta("") + "/";
  for (const auto& [texto, esperado] : std::initializer_list<std::pair<QString, QString>>{
           {"Notas \"viejas\"", aqui + "Notas \"viejas\""},
           {"\"viejas\"", aqui + "\"viejas\""},
           {" con blancos ", aqui + " con blancos "},
           {":/nombre", aqui + ":/nombre"},
           {"~/nueva.txt", QDir::homePath() + "/nueva.txt"},
           {"~nadie se llama asi", aqui + "~nadie se llama asi"},
           {"sub/../no \"hay\"", aqui + "no \"hay\""},
           {"viejas", aqui + "viejas"}}) {
    Pulsar("viejas");
    Escribir(texto);
    EXPECT_EQ(dialogo.result(), QDialog::Accepted) << qPrintable(texto);
    EXPECT_EQ(dialogo.Elegido(), esperado) << qPrintable(dialogo.Elegido());
    dialogo.open();
  }
}

TEST_F(ElDialogoDeArchivo, a_folder_is_entered_and_what_names_no_file_stays_in_the_field) {
  for (const QString& texto : {QString("nueva/"), QString("viejas/"), QString(300, u'x')}) {
    Escribir(texto);
    EXPECT_EQ(campo().text(), texto);
  }
  Escribir("sub");
  EXPECT_EQ(dialogo.directory().dirName(), "sub");
  EXPECT_EQ(campo().text(), "");
  Escribir("..");
  EXPECT_EQ(dialogo.directory(), QDir(carpeta.Ruta("")));
  Pulsar("sub");
  dialogo.accept();
  EXPECT_EQ(dialogo.directory().dirName(), "sub");
  EXPECT_TRUE(dialogo.isVisible() && dialogo.Elegido().isEmpty());
}

TEST_F(ElDialogoDeArchivo, what_is_selected_is_the_answer_whatever_its_name) {
  Pulsar("a \"b\" c");
  EXPECT_EQ(campo().text(), "a \"b\" c");
  dialogo.accept();
  EXPECT_EQ(dialogo.Elegido(), carpeta.Ruta("a \"b\" c"));
}

TEST_F(ElDialogoDeArchivo, no_file_is_opened_to_show_it) {  // under /proc some have no end
  const QDateTime antes = QDateTime::fromSecsSinceEpoch(86400);
  QFile nuevo(carpeta.Escribir("nuevo", "x"));
  EXPECT_TRUE(nuevo.open(QIODevice::ReadWrite) && nuevo.setFileTime(antes, QFile::FileAccessTime));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Entrada("nuevo").isValid(); }));
  EXPECT_EQ(QFileInfo(nuevo).lastRead(), antes);
}

}  // namespace
