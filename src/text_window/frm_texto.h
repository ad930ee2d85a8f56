// FrmTexto, the text window: one document in two text boxes, and the panels over them. The main
// window leaves a request in the shared state and shows it or gives it the focus.
#pragma once

#include <array>

#include "platform/escritorio.h"
#include "platform/ventana.h"
#include "shared/mod_gral.h"
#include "text_box/caja_texto.h"
#include "text_window/aspecto.h"

class FraFavoritas;
class FraGuardar;
class FraOpciones;

class FrmTexto : public Ventana, private OyenteTeclas {
  Q_OBJECT

 public:
  // `principal` is the window that gets the focus back.
  FrmTexto(ModGral& gral, const Escritorio& escritorio, Ventana& principal);
  ~FrmTexto() override;

  void Form_Load() override;
  void Form_Resize() override;
  void Form_Activate() override;
  void Form_Deactivate() override;
  void Form_Unload() override;

  // Loads the file named by ArchivoActual. False: the user would not wait for it, and the text,
  // the caption and the save panel are as they were.
  bool CargarArchivo();
  void CmdGuardar_Click();
  void CmdCancelar_Click();
  void CmdFuente_Click();
  void CmdFColor_Click();
  void ChkAjustar_Click();    // shows the box that wraps, or the one that does not
  void CmdFavoritas_Click();  // from the options panel to the favourites manager
  void CmdCerrar_Click();     // closes the options panel and stores what it shows
  const Documento& ElDocumento() const { return documento_; }

 private:
  void CrearCajas();
  void EsperarFuentes();
  RectTwips LeerRectangulo();

  FraGuardar& PanelGuardar();
  FraOpciones& PanelOpciones();
  FraFavoritas& PanelFavoritas();
  void ColocarGuardar();
  void EsconderGuardar();
  void MostrarOpciones();
  bool VeOpciones() const;
  bool VeFavoritas() const;
  void CerrarPaneles();

  void LeerOpciones();
  void PonerFuente();
  void PonerColores();
  void PintarPaneles();

  CajaTexto& CajaVisible();
  void PonerArchivo(const QString& archivo);
  void PonerSinArchivo(const QString& titulo);
  void MostrarTextoNuevo();
  void QuedarSinArchivo();
  Resultado Leer(const QString& archivo);
  void ErrorAlLeer(const Resultado& fallo);
  void DejarCarga();
  void DarFocoAPrincipal();
  bool HayArchivoActual() const;
  bool MuestraArchivo() const;
  QString ArchivoMostrado() const;

  bool TextBox_KeyPress() override;
  void TextBox_KeyDown() override;
  void FaltaMemoria() override;
  void MarcarEdicion();

  ModGral& gral_;
  Escritorio escritorio_;
  Ventana& principal_;
  Documento documento_{gral_.SistemaUtf8 ? Codificacion::DeUtf8() : Codificacion::Windows1252()};

  std::array<CajaTexto*, 2> TextBox{};  // 0 wraps, 1 does not; children of the window
  FraGuardar* FraGuardar_ = nullptr;    // null until they are needed
  FraOpciones* FraOpciones_ = nullptr;
  FraFavoritas* FraFavoritas_ = nullptr;
  Aspecto aspecto_;
  NumeroColor color_dialogo_ = NumeroNegro;  // what the font and colour dialogs held last
};
