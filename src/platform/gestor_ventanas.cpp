#include "platform/gestor_ventanas.h"

#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QInputEvent>
#include <QScreen>
#include <QWindow>

namespace {

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

bool Tiene(xcb_connection_t* conexion, xcb_window_t ventana, xcb_atom_t propiedad) {
  const Respuesta<xcb_get_property_reply_t> dicho(xcb_get_property_reply(
      conexion, xcb_get_property(conexion, 0, ventana, propiedad, XCB_ATOM_ANY, 0, 0), nullptr));
  return dicho != nullptr && dicho->type != XCB_ATOM_NONE;
}

}  // namespace

GestorVentanas::GestorVentanas() {
  const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) {
    return;
  }
  conexion_ = x11->connection();
  raiz_ = xcb_setup_roots_iterator(xcb_get_setup(conexion_)).data->root;
  const auto atomos = Atomos<4>(conexion_, {"_NET_ACTIVE_WINDOW", "_NET_SUPPORTING_WM_CHECK",
                                            "_NET_FRAME_EXTENTS", "WM_PROTOCOLS"});
  activa_ = atomos[0];
  gestor_ = atomos[1];
  marco_ = atomos[2];
  protocolos_ = atomos[3];
  qApp->installNativeEventFilter(this);
}

GestorVentanas::~GestorVentanas() = default;

bool GestorVentanas::Hay() const {
  return conexion_ != nullptr && Tiene(conexion_, raiz_, gestor_);
}

bool GestorVentanas::Activar(const QWindow& ventana, Quien quien) {
  if (!Hay()) {
    return false;
  }
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

bool GestorVentanas::MarcoDicho(const QWindow& ventana) const {
  return !Hay() || Tiene(conexion_, static_cast<xcb_window_t>(ventana.winId()), marco_);
}

std::optional<QPoint> GestorVentanas::Lugar(const QWindow& ventana) const {
  if (conexion_ == nullptr) {
    return {};
  }
  const auto id = static_cast<xcb_window_t>(ventana.winId());
  const Respuesta<xcb_translate_coordinates_reply_t> dicho(xcb_translate_coordinates_reply(
      conexion_, xcb_translate_coordinates(conexion_, id, raiz_, 0, 0), nullptr));
  if (dicho == nullptr) {
    return {};
  }
  const QPoint origen = ventana.screen()->geometry().topLeft();  // the same in both units
  return origen + (QPoint(dicho->dst_x, dicho->dst_y) - origen) / ventana.devicePixelRatio();
}

void GestorVentanas::AnotarHora(const QEvent& evento) {
  if (evento.isInputEvent()) {
    AnotarHora(static_cast<quint32>(static_cast<const QInputEvent&>(evento).timestamp()));
  }
}

void GestorVentanas::AnotarHora(quint32 hora) {
  if (static_cast<qint32>(hora - hora_) > 0) {
    hora_ = hora;
  }
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
      if (cambio->atom == marco_) {
        emit MarcoCambiado(cambio->window);
      }
      break;
    }
    case XCB_CLIENT_MESSAGE: {
      const auto* dicho = reinterpret_cast<const xcb_client_message_event_t*>(evento);
      if (dicho->type == protocolos_) {
        AnotarHora(dicho->data.data32[1]);
      }
      break;
    }
    default:
      break;
  }
  return false;
}
