// The desktop's recycle bin.
#pragma once

#include <QString>

enum class Envio {
  Enviada,
  SinPapelera,  // the file is there and could be erased, but no bin takes it and can restore it
  Fallo,        // it has vanished, or its folder lets nothing be removed
};

class Papelera {
 public:
  virtual ~Papelera() = default;
  // Full path of one file; a symbolic link goes itself, not what it points to. Only when it was
  // sent is the file gone from its folder.
  virtual Envio Enviar(const QString& ruta) = 0;
  // Erases it for good. A failure is silent.
  virtual void Eliminar(const QString& ruta) = 0;
};

// The bin as freedesktop.org's Trash standard lays it down: ~/.local/share/Trash, or one at the top
// of the volume.
class PapeleraReal : public Papelera {
 public:
  Envio Enviar(const QString& ruta) override;
  void Eliminar(const QString& ruta) override;
};
