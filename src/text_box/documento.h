// One text with its lines and its undo, shown by any number of views.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include <QByteArray>

#include "shared/archivo.h"
#include "shared/texto_entero.h"
#include "text_box/bytes.h"
#include "text_box/caracteres.h"
#include "text_box/codificacion.h"
#include "text_box/historial.h"
#include "text_box/lineas.h"

// A view that follows the document.
class Observador {
 public:
  virtual ~Observador() = default;
  virtual void Reemplazado(const Cambio& cambio) = 0;  // after one replacement
  virtual void Recargado() = 0;                        // after the whole text is another
  virtual void Recodificado() {}                       // the same bytes are in another code page
};

class Documento {
 public:
  // `del_sistema`: the code page of a text that gives no hint of its own.
  explicit Documento(const Codificacion& del_sistema = Codificacion::Windows1252())
      : del_sistema_(&del_sistema) {}
  Documento(const Documento&) = delete;
  Documento& operator=(const Documento&) = delete;

  // Is asked after each small part of a reading, with the bytes read so far: may it go on?
  using Seguir = std::function<bool(std::size_t leidos)>;
  // Reads the whole file first; only when that has succeeded the text becomes the file's bytes,
  // undo is emptied and the views are told. On a failure nothing changes; ECANCELED when `seguir`
  // has said no.
  Resultado Cargar(LectorArchivo& lector, const Seguir& seguir = {});
  void Vaciar();
  void Poner(std::string_view bytes);  // a whole new text; undo is emptied
  void PonerTexto(QStringView texto);  // the same of characters, in UTF-8

  Posicion Tamano() const { return bytes_.Tamano(); }
  const Bytes& Texto() const { return bytes_; }
  const Lineas& LineasDelTexto() const { return lineas_; }
  // What the bytes mean: told from them when they are loaded, and kept then.
  const Codificacion& CodificacionDelTexto() const { return *codificacion_; }
  // Characters are to be put in: a text of ASCII alone, which is in any page, takes the one that
  // has them, and the views are told.
  void Admitir(QStringView texto);
  // How many characters start before `pos`, and where number `n` does; the end beyond the last.
  std::int64_t CaracteresHasta(Posicion pos) const;
  Posicion InicioDeCaracter(std::int64_t n) const;
  QByteArray Copia(Posicion desde, Posicion hasta) const;
  QByteArray Copia() const { return Copia(0, Tamano()); }
  TextoEntero Entero() const;  // as it is now, where it lies

  // What stands there now, whatever becomes of the text: nothing is copied for it.
  Extracto Extraer(Posicion desde, Posicion hasta) const;
  // The same of bytes that are not in the text; nothing when memory is out.
  std::optional<Extracto> Guardar(std::string_view bytes);

  // The one way a text changes. False (nothing changed) when memory is out.
  bool Reemplazar(Posicion pos, Posicion quitados, std::string_view nuevos, Agrupacion agrupacion);
  void Reemplazar(Posicion pos, Posicion quitados, Extracto nuevo, Agrupacion agrupacion);
  void CerrarGrupo() {
    historial_.CerrarGrupo();
  }  // the caret was moved, a pause: the next change starts a new step

  bool PuedeDeshacer() const { return historial_.HayHechas(); }
  bool PuedeRehacer() const { return historial_.HayDeshechas(); }
  // What the next of them would do; pos -1 when it is nothing.
  Cambio PorDeshacer() { return PorHacer(historial_.PorDeshacer()); }
  Cambio PorRehacer() { return PorHacer(historial_.PorRehacer()); }
  Cambio Deshacer();  // the replacement it made, to place the caret; pos -1 when none
  Cambio Rehacer();

  std::string_view FinDeLinea() const;  // the form that the text uses first; LF when it has none

  void Observar(Observador* observador);
  void DejarDeObservar(Observador* observador);

 private:
  void Sustituir(Bytes&& bytes, Sumas&& lineas, const Utf8::Recuento& recuento);
  bool EsAscii() const;
  Cambio Canjear(Operacion& operacion, Posicion quitados, Extracto nuevo);
  Cambio Invertir(Operacion* operacion, void (Historial::*anotar)());
  void Avisar(const Cambio& cambio) const;
  static Cambio PorHacer(const Operacion* operacion);

  Bytes bytes_;
  Lineas lineas_{bytes_};
  Caracteres caracteres_{bytes_};
  const Codificacion* del_sistema_;
  const Codificacion* codificacion_ = del_sistema_;
  Historial historial_;
  std::vector<Observador*> observadores_;
};
