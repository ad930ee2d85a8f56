// What texts of several scripts cost next to ASCII: the load, all rows known, a key with its
// picture; processor time, median of five. escrituras [megabytes]
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QTemporaryDir>

#include "text_box/caja_texto.h"

namespace {

template <typename Hacer>
double Milisegundos(Hacer hacer) {
  std::array<double, 5> veces{};
  for (double& vez : veces) {
    const std::clock_t antes = std::clock();
    hacer();
    vez = 1000.0 * static_cast<double>(std::clock() - antes) / CLOCKS_PER_SEC;
  }
  std::ranges::sort(veces);
  return veces[2];
}

// Sentences of words drawn by a fixed rule, a line end after some of them.
std::string Texto(const std::vector<std::string>& palabras, const char* hueco, std::size_t bytes) {
  std::string texto;
  std::size_t linea = 0;
  for (std::size_t i = 1; texto.size() < bytes; i = i * 1103515245 + 12345) {
    texto += palabras[i / 65536 % palabras.size()];
    const bool fin = texto.size() - linea > 400;
    texto += fin ? "\n" : hueco;
    if (fin) linea = texto.size();
  }
  return texto;
}

std::vector<std::string> Ideogramas() {
  std::vector<std::string> palabras;
  for (char32_t i = 0; i < 3000; ++i) {
    palabras.push_back(
        QString::fromUcs4(std::array{char32_t{0x4e00 + 7 * i}}.data(), 1).toStdString());
  }
  return palabras;
}

void Medir(const char* nombre, const std::string& texto, const std::string& archivo) {
  std::ofstream(archivo, std::ios::binary) << texto;
  const QString ruta = QString::fromStdString(archivo);
  Documento documento(Codificacion::DeUtf8());
  const double carga = Milisegundos([&] {
    auto lector = LectorArchivo::Abrir(ruta, LectorArchivo::SiFalta::Crear);
    if (!lector.Bien() || !documento.Cargar(lector.Valor()).Bien()) std::abort();
  });
  std::printf("%-12s load %7.1f ms", nombre, carga);
  for (const auto ajuste : {CajaTexto::Ajuste::AlAncho, CajaTexto::Ajuste::SinAjustar}) {
    CajaTexto caja(documento, ajuste);
    caja.resize(560, 480);
    caja.show();
    QApplication::processEvents();
    int puntos = 10;
    const double filas = Milisegundos([&] {
      caja.PonerFuente(QFont(QStringLiteral("DejaVu Sans"), 10 + puntos++ % 2));
      while (!caja.Vista().Completo()) QApplication::processEvents();
    });
    caja.PonerCursor(documento.Tamano() / 2, documento.Tamano() / 2);
    QImage foto(caja.viewport()->size(), QImage::Format_RGB32);
    caja.viewport()->render(&foto);
    const double tecla = Milisegundos([&] {
      QKeyEvent evento(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a"));
      QApplication::sendEvent(&caja, &evento);
      caja.viewport()->render(&foto);
    });
    std::printf("   %s rows %7.1f ms, key %5.2f ms",
                ajuste == CajaTexto::Ajuste::AlAncho ? "wrapped" : "lines", filas, tecla);
  }
  const double lector =
      Milisegundos([&] { (void)documento.CaracteresHasta(documento.Tamano() / 2); });
  std::printf("   count %5.2f ms\n", lector);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  const std::size_t bytes = (argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 100) << 20;
  const QTemporaryDir carpeta;
  const std::string archivo = carpeta.filePath(QStringLiteral("texto")).toStdString();
  const std::vector<std::string> ascii{"el",    "veloz",    "murcielago", "hindu", "comia",
                                       "feliz", "cardillo", "y",          "kiwi",  "manana"};
  const std::vector<std::string> castellano{
      "el", "veloz", "murci\u00e9lago", "hind\u00fa", "com\u00eda", "feliz", "cardillo",
      "y",  "kiwi",  "ma\u00f1ana"};
  const std::vector<std::string> ruso{
      "\u0421\u044a\u0435\u0448\u044c", "\u0435\u0449\u0451", "\u044d\u0442\u0438\u0445",
      "\u043c\u044f\u0433\u043a\u0438\u0445", "\u0431\u0443\u043b\u043e\u043a"};
  const std::vector<std::string> arabe{
      "\u0627\u0644\u0633\u0644\u0627\u0645", "\u0639\u0644\u064a\u0643\u0645",
      "\u0645\u0631\u062d\u0628\u0627", "\u0643\u062a\u0627\u0628"};
  Medir("ASCII", Texto(ascii, " ", bytes), archivo);
  Medir("Spanish", Texto(castellano, " ", bytes), archivo);
  Medir("Russian", Texto(ruso, " ", bytes), archivo);
  Medir("Chinese", Texto(Ideogramas(), "", bytes), archivo);
  Medir("Arabic", Texto(arabe, " ", bytes), archivo);
  return 0;
}
