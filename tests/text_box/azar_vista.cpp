#include "text_box/azar_vista.h"

#include <QClipboard>

namespace {

const char* const Teclas[] = {"Left",      "Right",        "Up",         "Down",
                              "Home",      "End",          "PgUp",       "PgDown",
                              "Ctrl+Left", "Ctrl+Right",   "Ctrl+Home",  "Ctrl+End",
                              "Ctrl+Up",   "Ctrl+Down",    "Shift+Left", "Shift+Down",
                              "Shift+End", "Shift+PgDown", "Shift+PgUp", "Ctrl+Shift+Left",
                              "Return",    "Return",       "Tab",        "Backspace",
                              "Backspace", "Del",          "Ctrl+Del",   "Ctrl+Z",
                              "Ctrl+Z",    "Ctrl+Y",       "Ctrl+X",     "Ctrl+C",
                              "Ctrl+V",    "Esc",          "Shift+Home", "Ctrl+Backspace"};

const char* const Fuentes[] = {"Liberation Mono", "Liberation Sans", "DejaVu Serif"};

// What was drawn of the box's text, as it is sent to the screen.
QImage Dibujado(const CajaTexto& caja) {
  const auto* todo = dynamic_cast<const QImage*>(caja.backingStore()->paintDevice());
  const qreal escala = caja.devicePixelRatioF();
  const QRect zona = caja.viewport()->geometry();
  return todo->copy(QRectF(zona.topLeft() * escala, zona.size() * escala).toAlignedRect());
}

}  // namespace

AzarVista::AzarVista(unsigned semilla)
    : azar_(semilla),
      alfabeto_(semilla / 2 % 3),
      banco_(semilla % 2 ? CajaTexto::Ajuste::AlAncho : CajaTexto::Ajuste::SinAjustar) {
  QApplication::clipboard()->setText(QStringLiteral("pegado\nen dos"));
  inicial_ = TextoAlAzar(Hasta(3) * 1500);
  banco_.documento.Poner(inicial_);
  banco_.documento.Observar(this);
}

std::string AzarVista::TextoAlAzar(int cuantos) {
  static const std::string bytes =
      std::string("aaabc dEf, \xf1\xe1 x  .\n\r\n\t\r\x80\x01") + '\0' + "largapalabra ";
  static const std::vector<std::string> escrituras = {
      "a",      "b",      " ",      " ",        "\n",     "\t",         "\u00f1",
      "\u00e1", "\u0301", "\u0416", "\u4e2d",   "\u3001", "\u0628",     "\u0645",
      "\u05d0", "\u0e33", "\u0915", "\u094d",   "\u200d", "\U0001f468", "\U0001f1ea",
      "\u200f", "\ufeff", "\xc3",   "\xf0\x9f", "\xff"};
  const int letras = int(escrituras.size()) - (alfabeto_ == 1 ? 3 : 0);  // the last are no letters
  std::string texto;
  while (int(texto.size()) < cuantos) {
    if (Hasta(40) == 0) {
      texto.append(std::size_t(Hasta(120)), 'm');
    } else if (alfabeto_ == 0) {
      texto += bytes[std::size_t(Hasta(int(bytes.size())))];
    } else {
      texto += escrituras[std::size_t(Hasta(letras))];
    }
  }
  return texto;
}

// Is what was drawn the same as all drawn now?
bool AzarVista::AlDia() {
  const QImage dibujado = Dibujado(banco_.caja);
  banco_.caja.viewport()->repaint();
  const QImage entera = Dibujado(banco_.caja);
  if (dibujado == entera) return true;
  dibujado.save(QDir::temp().filePath(QStringLiteral("azar_vista_dibujado.png")));
  entera.save(QDir::temp().filePath(QStringLiteral("azar_vista_entera.png")));
  return false;
}

std::string AzarVista::Paso() {
  CajaTexto& caja = banco_.caja;
  caja.activateWindow();  // with its caret
  for (int vez = 0; vez < 3; ++vez) QApplication::processEvents();
  const Posicion cursor = caja.Cursor();
  const bool seguido = SeVe(cursor) && SeVe(caja.Ancla());
  cambios_.clear();
  Actuar();
  Reposar(caja);
  tapadera_.hide();
  QApplication::processEvents();
  if (!AlDia() || accion_.ends_with("drawn")) {
    return accion_ + ": the screen was not brought up to date";
  }
  if (seguido && !CambioALaVista(cursor)) return accion_ + ": what changed is out of sight";
  return Comparar();
}

bool AzarVista::SeVe(Posicion pos) const {
  const Encuadre& vista = banco_.caja.Vista();
  const Posicion arriba = vista.Arriba();
  const Posicion fila = vista.FilaDe({pos, false});
  return fila >= arriba && fila <= vista.Andar(arriba, vista.FilasVisibles() - 1);
}

// A change made at the caret, which was at `cursor`: the caret is in sight, and so is what comes
// before it up to the place of the change, as far as there is room.
bool AzarVista::CambioALaVista(Posicion cursor) const {
  if (cambios_.size() != 1 || banco_.caja.Cursor() != cambios_[0].pos + cambios_[0].puestos) {
    return true;
  }
  const Cambio& cambio = cambios_[0];
  if (cursor < cambio.pos || cursor > cambio.pos + cambio.quitados) return true;
  const Encuadre& vista = banco_.caja.Vista();
  const Posicion ultima = vista.Andar(vista.Arriba(), vista.FilasVisibles() - 1);
  const Posicion fila = vista.FilaDe({banco_.caja.Cursor(), false});
  return SeVe(banco_.caja.Cursor()) && (SeVe(cambio.pos) || fila == ultima);
}

void AzarVista::Actuar() {
  const int suerte = Hasta(100);
  if (suerte >= 90) Tapar();
  if (suerte < 60) {
    Teclear();
  } else if (suerte < 65) {
    Rodar();
  } else if (suerte < 80) {
    Raton();
  } else {
    Cambiar();
  }
}

void AzarVista::Teclear() {
  if (Hasta(3) == 0) {
    accion_ = std::string(1, char('a' + Hasta(26)));
  } else {
    accion_ = Teclas[std::size_t(Hasta(int(std::size(Teclas))))];
  }
  banco_.Teclas(accion_.c_str());
}

void AzarVista::Raton() {
  const QSize zona = banco_.caja.viewport()->size();
  const auto punto = [&] { return QPoint(Hasta(zona.width() + 20), Hasta(zona.height())); };
  accion_ = "mouse";
  const QPoint inicio = punto();
  const bool mayus = Hasta(4) == 0;
  const auto tipo = Hasta(4) ? QEvent::MouseButtonPress : QEvent::MouseButtonDblClick;
  banco_.Raton(tipo, inicio, mayus ? Qt::ShiftModifier : Qt::NoModifier);
  const CajaTexto& caja = banco_.caja;
  const bool elegido = caja.Cursor() != caja.Ancla();
  // A drag of the selection itself would wait for the desktop.
  if (Hasta(2) && (!elegido || mayus)) banco_.Raton(QEvent::MouseMove, punto());
  banco_.Raton(QEvent::MouseButtonRelease, punto());
}

// Something lies above the text, or a part of it has to be drawn for another's sake.
void AzarVista::Tapar() {
  QWidget& zona = *banco_.caja.viewport();
  const QRect parte(Hasta(zona.width()), Hasta(zona.height()), 1 + Hasta(200), 1 + Hasta(100));
  if (Hasta(2)) return zona.update(parte);
  tapadera_.setGeometry(parte.translated(zona.pos()));
  tapadera_.show();
  tapadera_.raise();
  if (Hasta(2)) QApplication::processEvents();
}

void AzarVista::Rodar() {
  accion_ = "wheel";
  const QPointF punto(5, 5);
  const QPoint vueltas(0, (Hasta(7) - 3) * 120);
  QWheelEvent evento(punto, banco_.caja.viewport()->mapToGlobal(punto), {}, vueltas, Qt::NoButton,
                     Hasta(4) ? Qt::NoModifier : Qt::ShiftModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(banco_.caja.viewport(), &evento);
}

void AzarVista::Cambiar() {
  CajaTexto& caja = banco_.caja;
  const int tamano = int(banco_.documento.Tamano());
  switch (Hasta(8)) {
    case 0:
      accion_ = "size";
      return caja.resize(60 + Hasta(400), 40 + Hasta(200));
    case 1: {
      accion_ = "font";
      QFont fuente(QString::fromLatin1(Fuentes[Hasta(3)]), 7 + Hasta(8));
      fuente.setUnderline(Hasta(4) == 0);
      fuente.setItalic(Hasta(3) == 0);
      fuente.setBold(Hasta(4) == 0);
      return caja.PonerFuente(fuente);
    }
    case 2:
      accion_ = "vertical bar";
      return caja.verticalScrollBar()->setValue(Hasta(caja.verticalScrollBar()->maximum() + 1));
    case 3:
      accion_ = "horizontal bar";
      return caja.horizontalScrollBar()->setValue(Hasta(caja.horizontalScrollBar()->maximum() + 1));
    case 4: {
      accion_ = "colours";
      const auto color = [&] { return QColor::fromRgb(QRgb(Hasta(1 << 24))); };
      return caja.PonerColores(color(), Hasta(2) ? color() : Qt::white);
    }
    case 7:
      return CambiarDesdeFuera();
    case 5:
      return Componer();
    default:
      accion_ = "hide and show";
      caja.hide();
      caja.PonerCursor(Hasta(tamano + 1), Hasta(tamano + 1));
      return caja.show();
  }
}

void AzarVista::CambiarDesdeFuera() {
  accion_ = "another's change";
  const int tamano = int(banco_.documento.Tamano());
  const int desde = Hasta(tamano + 1);
  const int quitados = Hasta(std::min(60, tamano - desde + 1));
  const std::string nuevos = TextoAlAzar(Hasta(30));
  if (!banco_.documento.Reemplazar(desde, quitados, nuevos, Agrupacion::Sola)) std::abort();
  cambios_.clear();  // none at the caret
}

void AzarVista::Componer() {
  accion_ = "composed text";
  for (const char* texto : {"xyz", "gj\u00c5", "g"}) {
    QInputMethodEvent previo(QString::fromUtf8(texto), {});
    QApplication::sendEvent(&banco_.caja, &previo);
    QApplication::processEvents();
    if (!AlDia()) accion_ += ", not drawn";
  }
  QInputMethodEvent fin;
  fin.setCommitString(Hasta(2) ? QStringLiteral("\u00e1") : QString());
  QApplication::sendEvent(&banco_.caja, &fin);
}

// Until nothing is left to be done when idle.
void AzarVista::Reposar(const CajaTexto& caja) {
  do QApplication::processEvents();
  while (!caja.Vista().Completo());
  QApplication::processEvents();
}

std::unique_ptr<CajaTexto> AzarVista::Gemela(Documento& documento) {
  const CajaTexto& caja = banco_.caja;
  auto gemela = std::make_unique<CajaTexto>(
      documento, caja.horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff
                     ? CajaTexto::Ajuste::AlAncho
                     : CajaTexto::Ajuste::SinAjustar);
  gemela->PonerFuente(caja.Fuente());
  gemela->PonerColores(caja.ColorTexto(), caja.ColorFondo());
  gemela->resize(caja.size());
  gemela->show();
  Reposar(*gemela);
  gemela->PonerCursor(caja.Cursor(), caja.Ancla());
  gemela->PonerArriba(caja.Arriba());
  gemela->horizontalScrollBar()->setValue(caja.horizontalScrollBar()->value());
  return gemela;
}

std::string AzarVista::Comparar() {
  CajaTexto& caja = banco_.caja;
  Documento documento;
  // In the same code page, whatever the bytes are by now.
  documento.Poner(banco_.documento.CodificacionDelTexto().ABytes(u"\u00f1").toStdString());
  if (!documento.Reemplazar(0, documento.Tamano(), banco_.documento.Copia().toStdString(),
                            Agrupacion::Sola)) {
    std::abort();
  }
  const std::unique_ptr<CajaTexto> gemela = Gemela(documento);
  gemela->clearFocus();
  caja.clearFocus();
  const QImage foto = banco_.Foto();
  const QImage otra = gemela->viewport()->grab().toImage();
  caja.setFocus();
  const auto barra = [](const QScrollBar* b) {
    return std::to_string(b->value()) + " of " + std::to_string(b->maximum()) + " ";
  };
  const auto barras = [&](const CajaTexto& c) {
    return barra(c.verticalScrollBar()) + barra(c.horizontalScrollBar());
  };
  if (barras(caja) != barras(*gemela)) {
    return accion_ + ": bars " + barras(caja) + "but " + barras(*gemela);
  }
  const Lugar cursor{caja.Cursor(), false};
  // Where a row is broken the caret may stand at either side of it.
  const bool uno = caja.Vista().FilaDe(cursor) == caja.Vista().FilaDe({caja.Cursor(), true});
  const auto sitio = [](const CajaTexto& c) { return c.inputMethodQuery(Qt::ImCursorRectangle); };
  if (uno && sitio(caja) != sitio(*gemela)) return accion_ + ": another place for the caret";
  if (foto == otra) return {};
  foto.save(QDir::temp().filePath(QStringLiteral("azar_vista_uno.png")));
  otra.save(QDir::temp().filePath(QStringLiteral("azar_vista_otra.png")));
  return accion_ + ": another picture";
}

std::string AzarVista::DeshacerTodo() {
  const std::string al_final = banco_.documento.Copia().toStdString();
  int pasos = 0;
  for (; banco_.documento.PuedeDeshacer(); ++pasos) banco_.Teclas("Ctrl+Z");
  if (banco_.documento.Copia().toStdString() != inicial_) return "undo: another text";
  for (; pasos > 0; --pasos) banco_.Teclas("Ctrl+Y");
  return banco_.documento.Copia().toStdString() == al_final ? "" : "redo: another text";
}
