// Editing at the caret of a view: what is typed, deleted, undone, pasted and moved. The text
// changes, the caret goes where the change ends, and who listens is told; what is seen of it is
// not known here.
#pragma once

#include <optional>

#include <QByteArray>
#include <QMimeData>
#include <QString>

#include "text_box/cursor_texto.h"
#include "text_box/documento.h"
#include "text_box/extracto.h"

class OyenteEdicion {
 public:
  virtual ~OyenteEdicion() = default;
  virtual void PorQuitar(const Rango& rango) = 0;  // goes next; may throw std::bad_alloc
  virtual void CursorMovido() = 0;
  virtual void FaltaMemoria() = 0;  // a change was not made
};

class EdicionTexto {
 public:
  // All of them outlive it.
  EdicionTexto(Documento& documento, CursorTexto& cursor, OyenteEdicion& oyente)
      : documento_(documento), cursor_(cursor), oyente_(oyente) {}

  void PonerSoloLectura(bool solo_lectura) { solo_lectura_ = solo_lectura; }
  bool SoloLectura() const { return solo_lectura_; }  // then nothing here changes the text

  void Escribir(const Rango& rango, const QByteArray& bytes);  // in its place, as typed
  void Poner(const Rango& rango, const QString& texto);        // in its place, as if pasted
  void Borrar(const Rango& rango);                             // or what is selected, if anything
  void Deshacer();
  void Rehacer();

  // What is selected, and the clipboard.
  void Eliminar();
  void Cortar();
  void Copiar() const;
  void Pegar();
  void Ofrecer() const;                    // as the primary selection, where there is one
  void PegarPrimaria(const Lugar& lugar);  // there, not in the place of what is selected
  QMimeData* DatosElegidos() const;        // the caller's

  // Text dragged to `pos`, from elsewhere and within the text. It is selected then.
  void Soltar(const QMimeData& datos, Posicion pos);
  void MoverElegido(Posicion pos);

 private:
  bool Cambiar(const Rango& rango, std::optional<Extracto> nuevo, Agrupacion agrupacion);
  void Invertir(const Cambio& por_hacer, Cambio (Documento::*invertir)());
  void Llevar(const Lugar& lugar);
  void Elegir(Posicion desde, Posicion hasta);

  std::optional<Extracto> Guardar(const QByteArray& bytes);
  std::optional<Extracto> Recibir(const QMimeData& datos);
  template <typename Traer>
  std::optional<Extracto> SiCabe(Traer traer);

  Documento& documento_;
  CursorTexto& cursor_;
  OyenteEdicion& oyente_;
  bool solo_lectura_ = false;
};
