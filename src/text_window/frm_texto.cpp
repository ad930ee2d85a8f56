#include "text_window/frm_texto.h"

#include "platform/dibujos.h"
#include "text_window/panel_favoritas.h"
#include "text_window/titulos.h"

namespace {

constexpr QStringView Seccion = u"PosTam";

}  // namespace

FrmTexto::FrmTexto(ModGral& gral, const Escritorio& escritorio, Ventana& principal)
    : Ventana(escritorio.activacion, Marco::Redimensionable),
      gral_(gral),
      escritorio_(escritorio),
      principal_(principal) {
  setObjectName(QStringLiteral("FrmTexto"));
  setWindowIcon(Icono(QStringLiteral("texto")));
  setMinimumSize(1, 1);
  PonerTitulo(TituloSinArchivo);
  CrearCajas();
}

// The boxes watch the document, which would be gone before the window's children are.
FrmTexto::~FrmTexto() {
  for (const CajaTexto* caja : TextBox) delete caja;
}

void FrmTexto::CrearCajas() {
  constexpr std::array ajustes{CajaTexto::Ajuste::AlAncho, CajaTexto::Ajuste::SinAjustar};
  for (int i = 0; i < 2; ++i) {
    TextBox[i] = new CajaTexto(documento_, ajustes[i], this);
    TextBox[i]->setObjectName(QStringLiteral("TextBox(%1)").arg(i));
    TextBox[i]->setAccessibleName(QStringLiteral("Texto"));
    TextBox[i]->setFrameShape(QFrame::NoFrame);
    TextBox[i]->PonerOyente(this);
  }
  TextBox[1]->hide();
  EsperarFuentes();
}

void FrmTexto::EsperarFuentes() {
  const auto poner = [this] {
    for (CajaTexto* caja : TextBox) caja->PonerEsperaFuentes(!escritorio_.fuentes.Leido());
  };
  if (!escritorio_.fuentes.Leido()) {
    poner();
    connect(&escritorio_.fuentes, &CatalogoFuentes::Llegado, this, poner);
  }
}

void FrmTexto::Form_Load() {
  gral_.perfil.Leer(gral_.ArchivoINI, Seccion, u"TextoEdo", u"0");
  const int estado = gral_.perfil.Entero16(0);
  PonerRectangulo(LeerRectangulo());
  if (estado == static_cast<int>(EstadoVentana::Minimizada) ||
      estado == static_cast<int>(EstadoVentana::Maximizada)) {
    PonerEstado(static_cast<EstadoVentana>(estado));
  }
  LeerOpciones();
  documento_.Vaciar();
  PonerSinArchivo(TituloSinArchivo);
}

RectTwips FrmTexto::LeerRectangulo() {
  const auto leer = [this](QStringView clave, qint16 defecto) {
    gral_.perfil.Leer(gral_.ArchivoINI, Seccion, clave, QString::number(defecto));
    return gral_.perfil.Entero16(defecto);
  };
  RectTwips rect;
  rect.izquierda = leer(u"TextoIzda", 3200);
  rect.arriba = leer(u"TextoArriba", 1425);
  rect.ancho = leer(u"TextoAncho", 8500);
  rect.alto = leer(u"TextoAlto", 7200);
  return rect;
}

void FrmTexto::Form_Resize() {
  if (Estado() == EstadoVentana::Minimizada) return;
  for (CajaTexto* caja : TextBox) caja->setGeometry(rect());
  ColocarGuardar();
}

// Serves the one request that the main window left, in this order.
void FrmTexto::Form_Activate() {
  if (gral_.ArchivoNuevo) {
    MostrarTextoNuevo();
  } else if (gral_.VerOpciones) {
    MostrarOpciones();
  } else if (gral_.VerFavoritas) {
    PanelFavoritas().GestionarFavoritas();
  } else if (gral_.ArchivoActual == ArchivoNinguno) {
    QuedarSinArchivo();
  } else if (gral_.ArchivoActual != gral_.ArchivoCargado) {
    CargarArchivo();
  }
}

void FrmTexto::Form_Deactivate() {
  CerrarPaneles();
}

void FrmTexto::Form_Unload() {
  CerrarPaneles();
  const EstadoVentana estado = Estado();
  const Perfil::Juntos juntos(gral_.perfil, gral_.ArchivoINI);
  const auto escribir = [this](QStringView clave, int valor) {
    gral_.perfil.Escribir(gral_.ArchivoINI, Seccion, clave, QString::number(valor));
  };
  escribir(u"TextoEdo", static_cast<int>(estado));
  if (estado == EstadoVentana::Normal) {
    const RectTwips rect = Rectangulo();
    escribir(u"TextoIzda", rect.izquierda);
    escribir(u"TextoArriba", rect.arriba);
    escribir(u"TextoAncho", rect.ancho);
    escribir(u"TextoAlto", rect.alto);
  }
  DarFocoAPrincipal();
}

void FrmTexto::DarFocoAPrincipal() {
  if (principal_.Estado() == EstadoVentana::Minimizada) {
    principal_.PonerEstado(EstadoVentana::Normal);
  }
  principal_.DarFoco();
}
