// FraFavoritas, the manager of the favourite folders. While it is shown LstFav is the working copy;
// closing it writes the file, if a folder was added or removed.
#pragma once

#include <array>

#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "shared/mod_gral.h"
#include "shared/orden.h"
#include "text_window/lista_carpetas.h"
#include "text_window/lista_favoritas.h"
#include "text_window/lista_unidades.h"
#include "text_window/marco_titulado.h"

class FraFavoritas : public MarcoTitulado {
  Q_OBJECT

 public:
  FraFavoritas(ModGral& gral, Unidades& unidades, QWidget* padre);

  void GestionarFavoritas();  // fills and shows it
  void DrvUnidad_Change();
  void CmdAnhadir_Click();
  void CmdQuitar_Click();
  void CmdCerrarFav_Click();

  std::array<QLabel*, 3> LblInfoFav{};
  std::array<QLabel*, 3> LblEstado{};  // a log: the newest line is the last
  QFrame* Shape1 = nullptr;            // the border of the status lines
  QPushButton* CmdCerrarFav = nullptr;
  ListaUnidades* DrvUnidad = nullptr;
  ListaCarpetas* DirCarpeta = nullptr;
  ListaFavoritas* LstFav = nullptr;
  QToolButton* CmdAnhadir = nullptr;
  QToolButton* CmdQuitar = nullptr;

 signals:
  void Cerrado();

 private:
  // A status line; a drive's name at its end is shortened where it is too long.
  struct LineaEstado {
    QString texto;
    QString unidad;
  };
  struct Alterna;

  void CrearEtiquetas();
  void DisponerListas() const;

  void PonerEstado(std::size_t linea, const LineaEstado& estado);
  void AgregarEstado(const LineaEstado& estado);
  void Alternar(const Alterna& alterna);
  void AvisarNoAbierta(const Resultado& fallo);
  bool SeleccionarUnidad();
  QStringList Carpetas() const;
  int AgregarOrdenada(const QString& carpeta);

  ModGral& gral_;
  OrdenNombres orden_;
  std::array<LineaEstado, 3> estados_;
  Unidad UnidadAnterior;  // the drive list's entry when the panel was opened
  bool FavoritasCambiadas = false;
};
