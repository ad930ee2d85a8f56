// azar_documento [seed] [files]: random files through the text window, until one comes back wrong.
#include <iostream>
#include <random>

#include <QTest>

#include "shared/pagina_codigos.h"
#include "text_window/mesa_texto.h"

class AzarDocumento : MesaTexto {
 public:
  explicit AzarDocumento(std::uint64_t semilla) : azar_(semilla) {
    const bool ajustar = Hasta(1) == 0;
    gral.ArchivoINI =
        carpeta.Escribir("Velda.INI", QByteArray("[Opciones]\nAjustar=") + (ajustar ? "Si" : "No"));
    Mostrar();
    caja_ = texto->findChild<CajaTexto*>(ajustar ? "TextBox(0)" : "TextBox(1)");
  }

  // One file; false when it does not come back as it should.
  bool Paso() {
    const QByteArray bytes = UnosBytes(UnTamano());
    gral.ArchivoActual = carpeta.Escribir("texto", bytes);
    gral.ArchivoCargado.clear();
    texto->DarFoco();
    cierto_ = bytes;
    bool bien = EsCierto("loaded");
    const bool deshacer = Hasta(1) == 0;
    for (int i = Hasta(1) == 0 ? 1 + Hasta(deshacer ? 5 : 0) : 0; bien && i > 0; --i) {
      Editar();
      bien = EsCierto("edited");
    }
    while (deshacer && texto->ElDocumento().PuedeDeshacer()) Tecla(Qt::Key_Z, Qt::ControlModifier);
    if (deshacer) cierto_ = bytes;
    bien = bien && EsCierto("undone");
    carpeta.Escribir("texto", "otro");
    texto->CmdGuardar_Click();
    if (Hasta(7) == 0) QCoreApplication::processEvents();
    mal_ = bien ? "saved" : mal_;
    return bien && escritorio.mensajes.titulos.isEmpty() && carpeta.Leer("texto") == cierto_;
  }
  const char* Mal() const { return mal_; }

 private:
  void TestBody() override {}

  int Hasta(qsizetype maximo) { return static_cast<int>(azar_() % std::uint64_t(maximo + 1)); }
  bool EsCierto(const char* cuando) {
    mal_ = cuando;
    return texto->ElDocumento().Copia() == cierto_;
  }
  void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) { QTest::keyClick(caja_, tecla, con); }

  int UnTamano() {
    const int clase = Hasta(99);
    return Hasta(clase < 20 ? 12 : clase < 98 ? 4000 : 400'000);
  }

  QByteArray UnosBytes(int cuantos) {
    static const QByteArrayList piezas{"\r",           "\n",       "\r\n", "\x1A",
                                       "\xEF\xBB\xBF", "\xFF\xFE", "\t "};
    const int rareza = 1 << Hasta(8);  // how far apart the pieces stand
    QByteArray bytes;
    while (bytes.size() < cuantos) {
      bytes += Hasta(rareza) == 0 ? piezas[Hasta(6)] : QByteArray(1, static_cast<char>(azar_()));
    }
    return bytes.left(cuantos);
  }

  // The form that the text uses first.
  QByteArray FinDeLinea() const {
    const qsizetype cr = cierto_.indexOf('\r');
    const qsizetype lf = cierto_.indexOf('\n');
    if (cr < 0 || (lf >= 0 && lf < cr)) return "\n";
    return lf == cr + 1 ? "\r\n" : "\r";
  }

  void Editar() {
    const qsizetype ancla = Hasta(cierto_.size());
    caja_->PonerCursor(Hasta(1) == 0 ? ancla : Hasta(cierto_.size()), ancla);
    qsizetype desde = std::min(caja_->Cursor(), caja_->Ancla());
    qsizetype hasta = std::max(caja_->Cursor(), caja_->Ancla());
    QByteArray nuevos;
    const int modo = Hasta(4);
    if (modo == 0) {
      if (desde == hasta) hasta += cierto_.mid(hasta, 2) == "\r\n" ? 2 : 1;
      Tecla(Qt::Key_Delete);
    } else if (modo == 1) {
      if (desde == hasta && desde > 0) desde -= cierto_.first(desde).endsWith("\r\n") ? 2 : 1;
      Tecla(Qt::Key_Backspace);
    } else if (modo == 2) {
      nuevos = FinDeLinea();
      Tecla(Qt::Key_Return);
    } else {
      nuevos = UnosBytes(Hasta(40)).replace('\r', "").replace('\n', "");
      caja_->Insertar(PaginaCodigos::ATexto(nuevos + "\r\n"));
      nuevos += FinDeLinea();
    }
    cierto_.replace(desde, hasta - desde, nuevos);
  }

  std::mt19937_64 azar_;
  QByteArray cierto_;
  CajaTexto* caja_ = nullptr;
  const char* mal_ = "";  // what was done when it went wrong
};

int main(int argc, char** argv) {
  constexpr int PorSemilla = 400;
  const QApplication app(argc, argv);
  if (::access("/dev/shm", W_OK) == 0) qputenv("TMPDIR", "/dev/shm");  // each save is synced
  std::uint64_t semilla = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
  const std::uint64_t cuantos = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : UINT64_MAX;
  for (std::uint64_t hechos = 0; hechos < cuantos; ++semilla) {
    std::cout << "seed " << semilla << ", " << hechos << " files done" << std::endl;
    AzarDocumento azar(semilla);
    for (int i = 0; i < PorSemilla && hechos < cuantos; ++i, ++hechos) {
      if (azar.Paso()) continue;
      std::cout << "file " << i << ": " << azar.Mal() << std::endl;
      return 1;
    }
  }
  return 0;
}
