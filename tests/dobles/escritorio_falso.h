// A desktop that records what it was asked for and answers what the test told it to.
#pragma once

#include <functional>
#include <vector>

#include "platform/escritorio.h"
#include "platform/ventana.h"

struct EncimaFalsa : Encima {
  void Poner(Ventana& /*ventana*/, bool encima) override { puestas.push_back(encima); }
  std::vector<bool> puestas;
};

struct DialogosFalsos : DialogosArchivo {
  QString Abrir(Ventana& /*duena*/, const PeticionArchivo& peticion) override {
    abrir.push_back(peticion);
    return respuesta;
  }
  QString Guardar(Ventana& /*duena*/, const PeticionArchivo& peticion) override {
    guardar.push_back(peticion);
    return respuesta;
  }
  std::vector<PeticionArchivo> abrir;
  std::vector<PeticionArchivo> guardar;
  QString respuesta;  // empty: the user cancels
};

struct MensajesFalsos : Mensajes {
  void Critico(Ventana& /*duena*/, const QString& texto, const QString& titulo) override {
    titulos << titulo;
    textos << texto;
  }
  bool Preguntar(Ventana& /*duena*/, const QString& texto, const QString& titulo) override {
    titulos << titulo;
    textos << texto;
    return respuesta;
  }
  QStringList titulos;
  QStringList textos;
  bool respuesta = false;  // to a question
};

struct AbridorFalso : Abridor {
  void AbrirArchivo(const QString& ruta) override { abiertos << ruta; }
  void AbrirDireccion(const QString& direccion) override { abiertos << direccion; }
  QStringList abiertos;
};

struct PapeleraFalsa : Papelera {
  Envio Enviar(const QString& ruta) override {
    enviadas << ruta;
    return respuesta;
  }
  void Eliminar(const QString& ruta) override { eliminadas << ruta; }
  QStringList enviadas;
  QStringList eliminadas;
  Envio respuesta = Envio::Enviada;
};

struct AspectoFalso : DialogosAspecto {
  std::optional<EleccionFuente> PedirFuente(Ventana& /*duena*/,
                                            const EleccionFuente& actual) override {
    fuentes.push_back(actual);
    return fuente;
  }
  std::optional<QColor> PedirColor(Ventana& /*duena*/, const QColor& actual) override {
    colores.push_back(actual);
    return color;
  }
  std::vector<EleccionFuente> fuentes;  // what the dialogs started from
  std::vector<QColor> colores;
  std::optional<EleccionFuente> fuente;  // the answers; none: the user cancels
  std::optional<QColor> color;
};

// The real folders, on drives of the test's choice.
struct UnidadesFalsas : UnidadesReales {
  std::vector<Unidad> Listar() override { return unidades; }
  ResultadoCon<CarpetaLeida> Leer(const QString& carpeta, Busca que) override {
    if (inventadas.contains(carpeta)) return CarpetaLeida{carpeta, inventadas[carpeta]};
    const int fallo = fallos.value(carpeta);
    return fallo == 0 ? UnidadesReales::Leer(carpeta, que) : Resultado::Fallo(fallo);
  }
  std::vector<Unidad> unidades{{QStringLiteral("Sistema"), QStringLiteral("/")}};
  QHash<QString, int> fallos;              // folder -> errno
  QHash<QString, QStringList> inventadas;  // folder -> names, without a disk
};

struct EsperasFalsas : Esperas {
  Seguir Empezar(Ventana& /*duena*/, const QString& /*titulo*/, const QString& nombre,
                 std::size_t /*total*/) override {
    nombres << nombre;
    return [this](std::size_t /*hecho*/) { return seguir(); };
  }
  QStringList nombres;
  std::function<bool()> seguir = [] { return true; };  // what happens meanwhile; false: left
};

struct EscritorioFalso {
  Activacion activacion;
  EncimaFalsa encima;
  DialogosFalsos dialogos;
  MensajesFalsos mensajes;
  AbridorFalso abridor;
  PapeleraFalsa papelera;
  AspectoFalso aspecto;
  UnidadesFalsas unidades;
  EsperasFalsas esperas;
  CatalogoFuentes fuentes;
  Escritorio Servicios() {
    return {activacion, encima,  dialogos, mensajes, abridor,
            papelera,   aspecto, unidades, esperas,  fuentes};
  }
};
