// FrmMain, the main window: the list of open files and the ten icon commands.
#pragma once

#include <array>
#include <memory>

#include <QPixmap>
#include <QTimer>

#include "main_window/lista_archivos.h"
#include "platform/escritorio.h"
#include "platform/ventana.h"
#include "shared/mod_gral.h"

class EtiquetaTotal;
class FrmAutor;
class FrmTexto;
class Imagen;
class QLabel;
class VistaLista;

class FrmMain : public Ventana {
  Q_OBJECT

 public:
  // The numbers of the icons: IconoAbrir, IconoNuevo ...
  enum : int {
#define ICONO(comando, ...) Icono##comando,
#include "main_window/iconos.inc"
    Iconos
  };

  FrmMain(ModGral& gral, const Escritorio& escritorio);
  ~FrmMain() override;

  void Form_Load() override;
  void Form_Resize() override;
  void Form_Activate() override;  // runs the save dialog for a new text
  void Form_Deactivate() override;
  void Form_Unload() override;  // ends the program
  void Form_MouseMove();

  void ImgMenu_Click(int indice);  // any other number than 0 to 9 does nothing
  void ImgMenu_MouseMove(int indice);

  void AgregarArchivo();  // lists the file of ArchivoActual, or selects its entry
  void ListBox_Click();
  void ListBox_KeyDown(int codigo);                  // 46 is Delete
  void AbrirFavoritas(const QStringList& carpetas);  // lists their text files
  void TmrError_Timer();

 protected:
  void mouseMoveEvent(QMouseEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  struct Comando {
    QStringView texto;  // caption while the mouse is over the icon
    RectTwips menu;
    RectTwips sel;
    bool espera_texto_nuevo;  // ignored while a new text is under way
    void (FrmMain::*ejecutar)();
  };
  static const std::array<Comando, Iconos>& Comandos();
  static constexpr RectTwips RectTotal{200, 1835, 225, 195};

  void CrearIconos();
  void CrearLista();
  void CrearEtiquetas();
  void LeerAjustes();
  QString TextoDe(int indice) const;
  void PonerRotulo(const QString& rotulo);
  void PintarRotulo(QPainter& pintor) const;

#define ICONO(comando, ...) void Comando##comando();
#include "main_window/iconos.inc"

  PeticionArchivo Peticion(const QString& titulo) const;
  void EnviarPapelera(const QString& ruta);
  void AutorCerrado();
  void GuardarTextoNuevo();
  void VolverALaLista();
  void Seleccionar(int indice);
  void MostrarTotal();
  void AvisarNoAbiertas(int cuantas);
  void AvisarListaLlena(int fuera);  // files that were left out
  FrmTexto& Texto();                 // loaded when it is not
  void TraerTexto();
  void ReponerTexto();
  void TextoCerrado();
  static void RestaurarMinimizada(Ventana& ventana);

  ModGral& gral_;
  Escritorio escritorio_;
  ListaArchivos lista_;
  std::unique_ptr<FrmTexto> texto_;
  std::unique_ptr<FrmAutor> autor_;
  QString CarpetaActual;
  bool ActivarVisible = false;  // the next "S.Visible" puts the window above all others
  int IconoActual = 0;          // the icon whose highlight was shown last
  QPixmap fondo_;
  QString rotulo_;  // the command's name in the picture

  VistaLista* ListBox = nullptr;
  EtiquetaTotal* LblTotal = nullptr;
  QLabel* LblError = nullptr;
  QTimer TmrError{this};  // hides LblError
  CarpetaLeida FileList;  // the folder that was listed last, and its text files
  std::array<Imagen*, Iconos> ImgMenu{};
  std::array<Imagen*, Iconos> ImgSel{};
};
