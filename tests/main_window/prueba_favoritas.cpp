#include <QLabel>

#include "programa.h"

namespace {

class FavoritasDePrograma : public Programa {
 protected:
  void Guardadas(const QStringList& carpetas) {
    ajustes.valores["Registros/Total"] = QByteArray::number(carpetas.size());
    for (int i = 0; i < carpetas.size(); ++i) {
      ajustes.valores[QString("Datos/F%1").arg(i + 1)] = carpetas[i].toLatin1();
    }
  }
  QString Carpeta(const QString& nombre, const std::vector<const char*>& archivos) const {
    for (const char* archivo : archivos) Archivo(nombre + '/' + archivo, archivo);
    return Ruta(nombre);
  }
  void Favoritas() { principal->ImgMenu_Click(5); }
  QLabel& Error() const { return *principal->findChild<QLabel*>("LblError"); }
  bool Gestor() const { return SeVe("FraFavoritas"); }
};

TEST_F(FavoritasDePrograma, the_folders_texts_are_listed_in_one_order_and_none_is_selected) {
  Guardadas(
      {Carpeta("uno", {"c.txt", "a.TXT", "nota.md"}), Carpeta("dos", {"b.txt", "A.txt"}) + u'/'});
  Favoritas();
  EXPECT_EQ(Entradas().join(u' '), "A.txt a.TXT b.txt c.txt");
  EXPECT_EQ(Total(), "04");
  EXPECT_EQ(Lista()->IndiceSeleccionado(), -1);
  EXPECT_EQ(gral->ArchivoActual, QString());
  Favoritas();
  EXPECT_EQ(Total(), "04");
  principal->DarFoco();
  principal->ImgMenu_Click(8);
  EXPECT_EQ(Titulo(), "Archivo: " + Ruta("dos/A.txt"));
  Escribir("X");
  Favoritas();
  EXPECT_EQ(Lista()->IndiceSeleccionado(), 0);
  EXPECT_EQ(EnCaja(), "XA.txt") << "what is listed and edited stays so";
  EXPECT_TRUE(Panel());
}

TEST_F(FavoritasDePrograma, drives_that_are_not_there_are_counted_in_a_notice_that_goes) {
  const QStringList carpetas{Ruta("sin disco"), Carpeta("uno", {"a.txt"}), Ruta("sin red")};
  Guardadas(carpetas);
  escritorio.unidades.fallos = {{carpetas[0], ENOMEDIUM}, {carpetas[2], ETIMEDOUT}};
  Favoritas();
  EXPECT_EQ(Entradas(), QStringList("a.txt"));
  EXPECT_EQ(Error().text(), "2 Favoritas no abiertas.");
  EXPECT_TRUE(Error().isVisibleTo(principal.get()));
  EXPECT_GE(Error().height(), Error().heightForWidth(Error().width())) << "cut";
  auto* reloj = principal->findChild<QTimer*>("TmrError");
  EXPECT_TRUE(reloj->isActive() && reloj->isSingleShot());
  EXPECT_EQ(reloj->interval(), 4000);
  principal->TmrError_Timer();
  EXPECT_FALSE(Error().isVisibleTo(principal.get()));
}

// What the hidden file list held before is taken again, so it comes back once it was removed.
TEST_F(FavoritasDePrograma,
       a_folder_that_fails_otherwise_is_not_counted_and_repeats_the_one_before) {
  const QString uno = Carpeta("uno", {"a.txt"});
  Guardadas({Ruta("no existe"), {}});
  Favoritas();
  EXPECT_EQ(Total(), "00");
  Guardadas({uno, Ruta("no existe"), {}, uno + "/a.txt"});
  Favoritas();
  EXPECT_EQ(Total(), "01");
  EXPECT_FALSE(Error().isVisibleTo(principal.get()));
  Lista()->Seleccionar(0);
  principal->ListBox_KeyDown(46);
  Guardadas({Ruta("no existe")});
  Favoritas();
  EXPECT_EQ(Total(), "01");
}

TEST_F(FavoritasDePrograma, without_folders_the_manager_is_asked_for_unless_a_text_is_new) {
  const QString uno = Carpeta("uno", {"a.txt"});
  principal->ImgMenu_Click(1);
  principal->DarFoco();
  Favoritas();
  EXPECT_FALSE(gral->VerFavoritas || Gestor());
  Guardadas({uno});
  Favoritas();
  EXPECT_EQ(Total(), "01");
  Texto()->CmdCancelar_Click();
  for (const char* total : {"0", "-1", "muchas", "99999"}) {
    ajustes.valores["Registros/Total"] = total;
    principal->DarFoco();
    EXPECT_FALSE(Gestor());
    Favoritas();
    EXPECT_TRUE(Gestor()) << total;
    EXPECT_EQ(escritorio.activacion.Activa(), Texto());
  }
  Texto()->Cerrar();
  Favoritas();
  EXPECT_TRUE(Gestor());
  ajustes.valores["Opciones/Favoritas"] = "Si";  // then at every start
  for (const bool hay : {false, true}) {
    if (hay) Guardadas({uno});
    principal->Cerrar();
    Arrancar();
    EXPECT_EQ(Gestor(), !hay);
    EXPECT_EQ(Total(), hay ? "01" : "00");
  }
}

TEST_F(FavoritasDePrograma, the_list_takes_no_more_than_16_bits_count_and_says_so) {
  for (int i = 0; i < 32767; ++i) {
    escritorio.unidades.inventadas["/x"]
        << QString("%1.txt").arg(i * 7919 % 32767, 5, 10, QChar(u'0'));
  }
  Guardadas({"/x"});
  Favoritas();
  Favoritas();
  EXPECT_EQ(Total(), "32767");
  const auto* total = principal->findChild<QLabel*>("LblTotal");
  EXPECT_LE(total->fontMetrics().horizontalAdvance(total->text()), total->width());
  QCoreApplication::processEvents();
  EXPECT_TRUE(escritorio.mensajes.titulos.isEmpty());
  Guardadas({"/x", Carpeta("y", {"de mas.txt", "y mas.txt"}), Ruta("y")});
  ajustes.valores["Opciones/Favoritas"] = "Si";
  Arrancar();
  EXPECT_EQ(Total(), "32767");
  EXPECT_TRUE(escritorio.mensajes.titulos.isEmpty()) << "before the windows are there";
  QCoreApplication::processEvents();
  EXPECT_EQ(escritorio.mensajes.titulos, QStringList("LISTA LLENA"));
  EXPECT_TRUE(escritorio.mensajes.textos[0].contains("2 archivos se han quedado fuera"));
  Abrir(Archivo("de mas.txt", {}));
  QCoreApplication::processEvents();
  EXPECT_EQ(escritorio.mensajes.titulos.size(), 2);
  EXPECT_EQ(Total(), "32767");
}

TEST(ListaDeVarios, many_at_once_stand_as_if_they_had_come_one_by_one) {
  ListaArchivos varios;
  ListaArchivos uno_a_uno;
  for (ListaArchivos* lista : {&varios, &uno_a_uno}) {
    for (const char* ruta : {"/a/m.txt", "/a/B.txt", "/b/m.txt"}) lista->Agregar(ruta);
    lista->Quitar(0);
  }
  const QStringList nuevas{"/c/m.txt", "/c/ñ.txt", "/a/m.txt", "/c/b.txt", "/c/M.txt",
                           "/d/m.txt", "/c/ñ.txt", "/c/z.txt", "/c/A.txt"};
  const QPersistentModelIndex marcada = varios.index(1, 0);
  const QString ruta_marcada = varios.Rutas(1);
  ASSERT_EQ(varios.AgregarVarios(nuevas), 0);
  for (const QString& ruta : nuevas) {
    if (uno_a_uno.Buscar(ruta) < 0) uno_a_uno.Agregar(ruta);
  }
  const auto rutas = [](const ListaArchivos& lista) {
    QStringList todas;
    for (int i = 0; i < lista.Total(); ++i) todas << lista.Rutas(i);
    return todas;
  };
  EXPECT_EQ(rutas(varios), rutas(uno_a_uno));
  EXPECT_EQ(varios.Rutas(marcada.row()), ruta_marcada);
  EXPECT_EQ(varios.Buscar("/c/z.txt"), varios.Total() - 1);
}

}  // namespace
