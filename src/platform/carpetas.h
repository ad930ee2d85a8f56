// What a folder holds, and whether a folder that cannot be read is on a drive that is not there.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include <QString>
#include <QStringList>

#include "platform/montajes.h"
#include "shared/resultado.h"

enum class Busca { Subcarpetas, Textos };  // Textos: regular files "*.txt", in any letter case

struct CarpetaLeida {
  QString carpeta;      // in upper case where that is the same folder, else as it was given
  QStringList nombres;  // without the hidden ones; in no order
};

// Reads an absolute folder now, however long it takes. Symbolic links count as what they lead to.
ResultadoCon<CarpetaLeida> LeerCarpeta(const QString& carpeta, Busca que);

// Does the failure mean that the drive is not available?
bool UnidadNoDisponible(const Resultado& fallo);
// Did this folder, which is missing, lie on a volume that was mounted in `base` and is no more?
bool EnVolumenAusente(const QString& carpeta, const QString& base,
                      const std::vector<Montaje>& montajes);

// Reads folders that may never answer. Each is read by a thread of its own; one that takes too
// long is left behind, and its drive counts as not answering until that thread comes back.
class LectorPaciente {
 public:
  using Leer = std::function<ResultadoCon<CarpetaLeida>(const QString&, Busca)>;
  static constexpr std::chrono::milliseconds Paciencia{4000};

  explicit LectorPaciente(std::chrono::milliseconds paciencia = Paciencia, Leer leer = LeerCarpeta);
  // `punto` names the drive. ETIMEDOUT when it does not answer.
  ResultadoCon<CarpetaLeida> operator()(const QString& punto, const QString& carpeta, Busca que);

 private:
  struct Tarea;
  bool SigueAtascada(const QString& punto);

  std::chrono::milliseconds paciencia_;
  Leer leer_;
  std::vector<std::shared_ptr<Tarea>> atascadas_;
};
