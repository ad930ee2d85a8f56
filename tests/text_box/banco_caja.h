// A text box on a bench: its state as one line of text, keys by their names.
//
// In the state "|" is the caret and "^" the other end of the selection: "uno ^dos| tres".
#pragma once

#include <string>

#include <QApplication>
#include <QImage>
#include <QKeySequence>
#include <QStringList>
#include <QTest>

#include "text_box/caja_texto.h"

class BancoCaja : private OyenteTeclas {
 public:
  explicit BancoCaja(CajaTexto::Ajuste ajuste = CajaTexto::Ajuste::AlAncho,
                     const QSize& tamano = {320, 160})
      : caja(documento, ajuste) {
    caja.PonerFuente(QFont(QStringLiteral("Liberation Mono"), 10));
    caja.resize(tamano);
    caja.PonerOyente(this);
    caja.show();
    caja.activateWindow();
    caja.setFocus();
    QApplication::processEvents();
  }

  void Poner(std::string estado) {
    const auto sacar = [&estado](char marca) {
      const std::size_t sitio = estado.find(marca);
      if (sitio != std::string::npos) estado.erase(sitio, 1);
      return sitio == std::string::npos ? Posicion(-1) : Posicion(sitio);
    };
    Posicion ancla = sacar('^');
    const Posicion cursor = sacar('|');
    if (ancla > cursor) --ancla;  // counted with the caret's mark
    documento.Poner(estado);
    caja.PonerCursor(cursor, ancla < 0 ? cursor : ancla);
  }

  std::string Estado() const {
    std::string estado = documento.Copia().toStdString();
    const Posicion cursor = caja.Cursor();
    const Posicion ancla = caja.Ancla();
    estado.insert(std::size_t(cursor), 1, '|');
    if (ancla != cursor) estado.insert(std::size_t(ancla + (ancla > cursor ? 1 : 0)), 1, '^');
    return estado;
  }

  // Keys by name, blanks between them: "Ctrl+Left Del a".
  void Teclas(const char* nombres) {
    const QStringList teclas = QString::fromUtf8(nombres).split(u' ');
    for (const QString& nombre : teclas) {
      const QKeyCombination tecla = QKeySequence(nombre)[0];
      const bool letra = nombre.size() == 1;
      QKeyEvent evento(QEvent::KeyPress, tecla.key(), tecla.keyboardModifiers(),
                       letra ? nombre : QString());
      QApplication::sendEvent(&caja, &evento);
    }
  }

  void Raton(QEvent::Type tipo, const QPoint& punto, Qt::KeyboardModifiers modificadores = {},
             Qt::MouseButton boton = Qt::LeftButton) {
    const bool apretado = tipo != QEvent::MouseButtonRelease;
    const bool mueve = tipo == QEvent::MouseMove;
    QMouseEvent evento(tipo, punto, caja.viewport()->mapToGlobal(punto),
                       mueve ? Qt::NoButton : boton, apretado ? boton : Qt::NoButton,
                       modificadores);
    QApplication::sendEvent(caja.viewport(), &evento);
  }
  void Clic(const QPoint& punto, Qt::KeyboardModifiers modificadores = {}) {
    Raton(QEvent::MouseButtonPress, punto, modificadores);
    Raton(QEvent::MouseButtonRelease, punto, modificadores);
  }

  // The middle of the left edge of the character at `pos`.
  QPoint Sitio(Posicion pos) const {
    return caja.Vista().Rectangulo({pos, false}).center() + QPoint(1, 0);
  }
  QImage Foto() { return caja.viewport()->grab().toImage(); }

  Documento documento;
  CajaTexto caja;
  std::string avisos;  // what was announced: "c" a character, "s" Delete, "m" no memory
  bool deja_escribir = true;

 private:
  bool TextBox_KeyPress() override {
    avisos += 'c';
    return deja_escribir;
  }
  void TextBox_KeyDown() override { avisos += 's'; }
  void FaltaMemoria() override { avisos += 'm'; }
};
