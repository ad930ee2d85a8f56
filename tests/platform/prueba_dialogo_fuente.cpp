#include <gtest/gtest.h>
#include <memory>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include "platform/dialogo_fuente.h"

namespace {

enum Columna { Familia, Estilo, Tamano };

const EleccionFuente Falta{{"Letra que falta", 9.75, true, false, true, false}, Qt::red};

class ElDialogoDeFuente : public testing::Test {
 protected:
  ElDialogoDeFuente() {
    EXPECT_TRUE(idioma.load(":/traducciones/qtbase_es.qm"));
    QApplication::installTranslator(&idioma);
    dialogo = std::make_unique<DialogoFuente>(Falta);
    dialogo->show();
  }
  QAbstractItemView& Lista(Columna columna) {
    return *dialogo->findChildren<QAbstractItemView*>(Qt::FindDirectChildrenOnly).at(columna);
  }
  QLineEdit& Campo(Columna columna) {
    return *dialogo->findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly).at(columna);
  }
  void Pulsar(Columna columna, const QString& entrada) {
    QAbstractItemView& lista = Lista(columna);
    const auto halladas =
        lista.model()->match(lista.model()->index(0, 0), Qt::DisplayRole, entrada);
    ASSERT_EQ(halladas.size(), 1) << qPrintable(entrada);
    lista.scrollTo(halladas.first());
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                      lista.visualRect(halladas.first()).center());
  }

  QTranslator idioma;  // what is found by its English name is not found any more
  std::unique_ptr<DialogoFuente> dialogo;
};

TEST_F(ElDialogoDeFuente, what_is_not_touched_comes_back_as_it_was) {
  EXPECT_EQ(dialogo->Elegida(), Falta);
  auto tachado = Falta;
  tachado.fuente.tachada = true;
  dialogo->findChildren<QCheckBox*>().first()->click();
  EXPECT_EQ(dialogo->Elegida(), tachado) << "an effect alone changes neither family nor size";
}

TEST_F(ElDialogoDeFuente, a_family_that_is_missing_and_a_broken_size_change_when_chosen) {
  Pulsar(Familia, "Liberation Mono");
  auto elegida = Falta;
  elegida.fuente.nombre = "Liberation Mono";
  EXPECT_EQ(dialogo->Elegida(), elegida);
  Pulsar(Tamano, "10");  // the entry that stood for 9.75
  EXPECT_EQ(dialogo->Elegida().fuente.puntos, 10);
  Campo(Tamano).clear();
  EXPECT_EQ(dialogo->Elegida().fuente.puntos, 9.75) << "no size at all";
}

TEST_F(ElDialogoDeFuente, the_styles_are_shown_in_spanish_and_chosen_by_the_fonts_own_names) {
  Pulsar(Familia, "Liberation Mono");
  EXPECT_EQ(Campo(Estilo).text(), "Negrita");
  Pulsar(Estilo, "Negrita cursiva");
  EXPECT_EQ(Campo(Estilo).text(), "Negrita cursiva");
  EXPECT_TRUE(dialogo->Elegida().fuente.negrita && dialogo->Elegida().fuente.cursiva);
  Pulsar(Estilo, "Normal");
  EXPECT_FALSE(dialogo->Elegida().fuente.negrita || dialogo->Elegida().fuente.cursiva);
  const DialogoFuente cursiva({{"Courier", 10, false, true}, Qt::black});
  EXPECT_TRUE(cursiva.currentFont().italic() && !cursiva.currentFont().bold());
  EXPECT_EQ(cursiva.currentFont().family(), "Liberation Mono");
}

TEST_F(ElDialogoDeFuente, its_button_asks_for_the_colour) {
  for (const bool aceptar : {false, true}) {
    QTimer::singleShot(0, dialogo.get(), [aceptar] {
      auto* colores = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
      EXPECT_EQ(colores->currentColor(), QColor(Qt::red));
      colores->setCurrentColor(Qt::black);
      for (auto* parte : colores->findChildren<QWidget*>()) {
        if (parte->inherits("QColorPicker")) {  // full saturation, a hue a third of the way on
          QTest::mouseClick(parte, Qt::LeftButton, {}, {parte->width() * 2 / 3, 2});
        }
      }
      EXPECT_GT(colores->currentColor().value(), 200) << "black was left by a click on a colour";
      colores->setCurrentColor(Qt::blue);
      aceptar ? colores->accept() : colores->reject();
    });
    dialogo->findChild<QPushButton*>("BotonColor")->click();
    EXPECT_EQ(dialogo->Elegida().color, aceptar ? QColor(Qt::blue) : QColor(Qt::red));
  }
}

}  // namespace
