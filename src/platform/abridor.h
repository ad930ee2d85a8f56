// Opening a page, a mail or a help file with the user's default program.
#pragma once

#include <QString>

class Abridor {
 public:
  virtual ~Abridor() = default;
  // A failure is silent.
  virtual void AbrirArchivo(const QString& ruta) = 0;
  virtual void AbrirDireccion(const QString& direccion) = 0;  // "https:", "mailto:"
};

class AbridorReal : public Abridor {
 public:
  void AbrirArchivo(const QString& ruta) override;
  void AbrirDireccion(const QString& direccion) override;
};
