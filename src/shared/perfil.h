// The settings as the program sees them: one value at a time, through one buffer. Nothing is kept:
// every read and every write goes to the file.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

#include "shared/archivo.h"
#include "shared/constantes.h"

// A value to be written, in bytes of the code page.
struct Ajuste {
  QString seccion;
  QString clave;
  QByteArray valor;
};

// The private-profile files, one value by section and key. Values are bytes of the code page.
class AccesoPerfil {
 public:
  AccesoPerfil() = default;
  AccesoPerfil(const AccesoPerfil&) = delete;
  AccesoPerfil& operator=(const AccesoPerfil&) = delete;
  virtual ~AccesoPerfil() = default;

  // The value at full length, or `defecto` when the file, the section or the key is missing.
  virtual QByteArray LeerCadena(QStringView seccion, QStringView clave, const QByteArray& defecto,
                                const QString& ruta) = 0;
  // The same for several keys of one section, in their order.
  virtual QList<QByteArray> LeerCadenas(QStringView seccion, std::span<const QString> claves,
                                        const QByteArray& defecto, const QString& ruta) {
    QList<QByteArray> valores;
    for (const QString& una : claves) valores << LeerCadena(seccion, una, defecto, ruta);
    return valores;
  }
  // Creates or replaces the key; section and file are created when missing. Its failures are not
  // reported.
  virtual void EscribirCadena(QStringView seccion, QStringView clave, const QByteArray& valor,
                              const QString& ruta) = 0;
  // The same for several keys of one file, in their order.
  virtual void EscribirCadenas(std::span<const Ajuste> ajustes, const QString& ruta,
                               Duracion /*duracion*/) {
    for (const Ajuste& uno : ajustes) EscribirCadena(uno.seccion, uno.clave, uno.valor, ruta);
  }
};

// The files on the disk. A write holds a flock(2) on the file's folder, so that programs running
// at the same time lose none of each other's keys; keys that are written together are all stored
// or none is. A lock that somebody does not let go is waited for once. A file that exists but
// cannot be read is not written, and neither is one that would not change. Several keys are read
// and looked for in one go.
class AccesoPerfilArchivo : public AccesoPerfil {
 public:
  using Esperar = std::function<void(std::chrono::milliseconds)>;

  // `por_crear` is the one folder that is made when it is missing.
  explicit AccesoPerfilArchivo(const QString& por_crear = {}, Esperar esperar = {});

  QByteArray LeerCadena(QStringView seccion, QStringView clave, const QByteArray& defecto,
                        const QString& ruta) override;
  QList<QByteArray> LeerCadenas(QStringView seccion, std::span<const QString> claves,
                                const QByteArray& defecto, const QString& ruta) override;
  void EscribirCadena(QStringView seccion, QStringView clave, const QByteArray& valor,
                      const QString& ruta) override;
  void EscribirCadenas(std::span<const Ajuste> ajustes, const QString& ruta,
                       Duracion duracion) override;

 private:
  Descriptor BloquearCarpeta(const QString& carpeta);

  QString por_crear_;
  Esperar esperar_;
  bool atascado_ = false;  // the lock was waited for in vain, and was not free since
};

// The one buffer and the calls on it.
class Perfil {
 public:
  explicit Perfil(AccesoPerfil& acceso) : acceso_(acceso) { Buffer.fill(' '); }

  // Places the value in Buffer, cut to 99 characters, with a NUL behind it; what was further
  // behind stays.
  void Leer(const QString& ruta, QStringView seccion, QStringView clave, QStringView defecto);
  // The same, and gives back the whole value however long it is.
  QString LeerLargo(const QString& ruta, QStringView seccion, QStringView clave,
                    QStringView defecto);
  // Whole values of several keys of one section; the last one stays in Buffer.
  QStringList LeerLargos(const QString& ruta, QStringView seccion, std::span<const QString> claves,
                         QStringView defecto);

  // The forms in which a value that was read is used.
  QString Valor() const;            // the first Longitud characters
  bool EsSi() const;                // the first two are "Si"
  bool EsInicial() const;           // the first seven are "Inicial": nothing is stored
  int Entero16(int defecto) const;  // clamped to 16 bits; `defecto` for what is no whole number
  std::optional<std::int32_t> Color() const;
  std::optional<double> Puntos() const;
  std::int16_t Total() const;

  // Writes the text as it is, without blanks behind it.
  void Escribir(const QString& ruta, QStringView seccion, QStringView clave, QStringView texto);
  // Places the text in Buffer, cut or filled with blanks to 100 characters, and writes Buffer.
  void EscribirBuffer(const QString& ruta, QStringView seccion, QStringView clave,
                      QStringView texto);
  // The same field of 100 characters, but a longer text is written whole.
  void EscribirLargo(const QString& ruta, QStringView seccion, QStringView clave,
                     QStringView texto);

  // While one lives, what is written is kept back; with its end all of it goes to its one file.
  // None is made while another lives.
  class Juntos {
   public:
    Juntos(Perfil& perfil, QString ruta, Duracion duracion = Duracion::SinSincronizar);
    Juntos(const Juntos&) = delete;
    Juntos& operator=(const Juntos&) = delete;
    ~Juntos();

   private:
    friend class Perfil;
    Perfil& perfil_;
    QString ruta_;
    Duracion duracion_;
    std::vector<Ajuste> ajustes_;
  };

  std::array<char, LongitudBuffer> Buffer;  // bytes of the code page
  std::int16_t Longitud = 0;                // characters of the last read

 private:
  QString Recoger(const QByteArray& valor);
  QByteArrayView Leido() const { return {Buffer.data(), Longitud}; }
  void Entregar(const QString& ruta, QStringView seccion, QStringView clave,
                const QByteArray& valor);

  AccesoPerfil& acceso_;
  Juntos* juntos_ = nullptr;
};
