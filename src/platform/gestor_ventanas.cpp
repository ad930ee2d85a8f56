#include "platform/gestor_ventanas.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QInputEvent>
#include <QScreen>
#include <QWindow>

namespace {

constexpr unsigned Botones = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;

struct Liberar {
  void operator()(void* respuesta) const { std::free(respuesta); }
};
template <typename T>
using Respuesta = std::unique_ptr<T, Liberar>;

template <std::size_t N>
std::array<xcb_atom_t, N> Atomos(xcb_connection_t* conexion,
                                 const std::array<std::string_view, N>& nombres) {
  std::array<xcb_intern_atom_cookie_t, N> pedidos;
  for (std::size_t i = 0; i < N; ++i) {
    pedidos[i] =
        xcb_intern_atom(conexion, 0, static_cast<uint16_t>(nombres[i].size()), nombres[i].data());
  }
  std::array<xcb_atom_t, N> atomos{};
  for (std::size_t i = 0; i < N; ++i) {
    const Respuesta<xcb_intern_atom_reply_t> dicho(
        xcb_intern_atom_reply(conexion, pedidos[i], nullptr));
    atomos[i] = dicho != nullptr ? dicho->atom : xcb_atom_t{XCB_ATOM_NONE};
  }
  return atomos;
}

Respuesta<xcb_get_property_reply_t> Propiedad(xcb_connection_t* conexion, xcb_window_t ventana,
                                              xcb_atom_t nombre) {
  constexpr std::uint32_t Palabras = 1024;  // more than any of them has
  return Respuesta<xcb_get_property_reply_t>(xcb_get_property_reply(
      conexion, xcb_get_property(conexion, 0, ventana, nombre, XCB_ATOM_ANY, 0, Palabras),
      nullptr));
}

}  // namespace

GestorVentanas::GestorVentanas() {
  const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) return;
  conexion_ = x11->connection();
  raiz_ = xcb_setup_roots_iterator(xcb_get_setup(conexion_)).data->root;
  const auto atomos = Atomos<4>(
      conexion_, {"_NET_ACTIVE_WINDOW", "_NET_SUPPORTED", "_NET_FRAME_EXTENTS", "WM_PROTOCOLS"});
  activa_ = atomos[0];
  sabidas_ = atomos[1];
  marco_ = atomos[2];
  protocolos_ = atomos[3];
  qApp->installNativeEventFilter(this);
}

GestorVentanas::~GestorVentanas() = default;

// Without a manager, or with one that does not know the hint, nobody will ever say it.
bool GestorVentanas::Sabe(quint32 indicacion) const {
  if (conexion_ == nullptr) return false;
  const auto dicho = Propiedad(conexion_, raiz_, sabidas_);
  if (dicho == nullptr || dicho->format != 32) return false;
  const auto* primera = static_cast<const xcb_atom_t*>(xcb_get_property_value(dicho.get()));
  return std::find(primera, primera + dicho->value_len, indicacion) != primera + dicho->value_len;
}

bool GestorVentanas::Activar(const QWindow& ventana, Quien quien) {
  if (!Sabe(activa_)) return false;
  const QWindow* ahora = QGuiApplication::focusWindow();
  xcb_client_message_event_t mensaje{};
  mensaje.response_type = XCB_CLIENT_MESSAGE;
  mensaje.format = 32;
  mensaje.window = static_cast<xcb_window_t>(ventana.winId());
  mensaje.type = activa_;
  mensaje.data.data32[0] = static_cast<quint32>(quien);
  mensaje.data.data32[1] = hora_;
  mensaje.data.data32[2] = ahora != nullptr ? static_cast<xcb_window_t>(ahora->winId()) : 0;
  xcb_send_event(conexion_, 0, raiz_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&mensaje));
  xcb_flush(conexion_);
  return true;
}

bool GestorVentanas::BotonPulsado() const {
  if (conexion_ == nullptr) return false;
  const Respuesta<xcb_query_pointer_reply_t> dicho(
      xcb_query_pointer_reply(conexion_, xcb_query_pointer(conexion_, raiz_), nullptr));
  return dicho != nullptr && (dicho->mask & Botones) != 0;
}

std::optional<QMargins> GestorVentanas::Marco(const QWindow& ventana) const {
  const auto nativo = MarcoNativo(ventana);
  return nativo ? std::optional((*nativo / ventana.devicePixelRatio()).toMargins())
                : std::optional<QMargins>();
}

std::optional<QMarginsF> GestorVentanas::MarcoNativo(const QWindow& ventana) const {
  if (!Sabe(marco_)) return QMarginsF(ventana.frameMargins()) * ventana.devicePixelRatio();
  const auto dicho = Propiedad(conexion_, static_cast<xcb_window_t>(ventana.winId()), marco_);
  if (dicho == nullptr || dicho->format != 32 || dicho->value_len < 4) return {};
  const auto* lados = static_cast<const quint32*>(xcb_get_property_value(dicho.get()));
  return QMarginsF(lados[0], lados[2], lados[1], lados[3]);
}

std::optional<QPointF> GestorVentanas::Esquina(const QWindow& ventana) const {
  if (QGuiApplication::platformName() == u"wayland") return {};
  if (conexion_ == nullptr) return QPointF(ventana.framePosition());
  const auto id = static_cast<xcb_window_t>(ventana.winId());
  const Respuesta<xcb_translate_coordinates_reply_t> dicho(xcb_translate_coordinates_reply(
      conexion_, xcb_translate_coordinates(conexion_, id, raiz_, 0, 0), nullptr));
  const auto marco = MarcoNativo(ventana);
  if (dicho == nullptr || !marco) return {};
  const QPointF nativa(dicho->dst_x - marco->left(), dicho->dst_y - marco->top());
  const QPointF origen = ventana.screen()->geometry().topLeft();  // the same in both units
  return origen + (nativa - origen) / ventana.devicePixelRatio();
}

void GestorVentanas::AnotarHora(const QEvent& evento) {
  if (evento.isInputEvent()) {
    AnotarHora(static_cast<quint32>(static_cast<const QInputEvent&>(evento).timestamp()));
  }
}

void GestorVentanas::AnotarHora(quint32 hora) {
  if (static_cast<qint32>(hora - hora_) > 0) hora_ = hora;
}

// Closing by the frame is a message, not a press: its time is the user's last deed, too.
bool GestorVentanas::nativeEventFilter(const QByteArray& /*tipo*/, void* mensaje,
                                       qintptr* /*resultado*/) {
  const auto* evento = static_cast<const xcb_generic_event_t*>(mensaje);
  switch (evento->response_type & 0x7fU) {
    case XCB_FOCUS_IN:
      emit TecladoEn(reinterpret_cast<const xcb_focus_in_event_t*>(evento)->event);
      break;
    case XCB_PROPERTY_NOTIFY: {
      const auto* cambio = reinterpret_cast<const xcb_property_notify_event_t*>(evento);
      AnotarHora(cambio->time);
      if (cambio->atom == marco_) emit MarcoCambiado(cambio->window);
      break;
    }
    case XCB_CLIENT_MESSAGE: {
      const auto* dicho = reinterpret_cast<const xcb_client_message_event_t*>(evento);
      if (dicho->type == protocolos_) AnotarHora(dicho->data.data32[1]);
      break;
    }
    default:
      break;
  }
  return false;
}
