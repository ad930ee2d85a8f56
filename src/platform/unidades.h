// The drives of the system, and the folders on them.
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

#include "platform/carpetas.h"
#include "shared/resultado.h"

struct Unidad {
  QString nombre;
  QString raiz;  // its root folder

  bool operator==(const Unidad&) const = default;
};

class Unidades {
 public:
  virtual ~Unidades() = default;
  // "Personal" (the user's home folder) first, "Sistema" ("/"), and the volumes mounted in /media,
  // /run/media and /mnt, one for each device.
  virtual std::vector<Unidad> Listar() = 0;
  // The folder's names in the order of lists. A failure of the drive, a missing folder on a volume
  // that is not mounted any more, and a network drive that does not answer within
  // LectorPaciente::Paciencia are UnidadNoDisponible.
  virtual ResultadoCon<CarpetaLeida> Leer(const QString& carpeta, Busca que) = 0;
};

class UnidadesReales : public Unidades {
 public:
  std::vector<Unidad> Listar() override;
  ResultadoCon<CarpetaLeida> Leer(const QString& carpeta, Busca que) override;

 private:
  LectorPaciente lector_;
};

// The volumes among the mounts.
std::vector<Unidad> Volumenes(const std::vector<Montaje>& montajes);
