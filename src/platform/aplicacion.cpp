#include "platform/aplicacion.h"

#include <clocale>
#include <csignal>
#include <cstring>
#include <langinfo.h>

#include <QLocale>
#include <QPalette>
#include <QSettings>
#include <QStyleFactory>
#include <QToolTip>

#include "platform/fuentes.h"

namespace {

constexpr auto VariablePlataforma = "QT_QPA_PLATFORM";
constexpr qreal PuntosControles = 8.25;

// Of the locale that the user has set, before the toolkit changes it for the program.
bool LocalUtf8() {
  const locale_t local = newlocale(LC_CTYPE_MASK, "", nullptr);
  if (local == nullptr) return false;  // there is no such one: the system goes on as "C"
  const bool utf8 = std::strcmp(nl_langinfo_l(CODESET, local), "UTF-8") == 0;
  freelocale(local);
  return utf8;
}

QPalette PaletaClara() {
  QPalette paleta(QColor(0xf0, 0xf0, 0xf0));
  paleta.setColor(QPalette::Base, Qt::white);
  paleta.setColor(QPalette::Light, Qt::white);
  paleta.setColor(QPalette::Midlight, QColor(0xe4, 0xe7, 0xea));
  paleta.setColor(QPalette::Mid, QColor(0xc4, 0xc9, 0xce));
  paleta.setColor(QPalette::Dark, QColor(0xa6, 0xad, 0xb4));
  paleta.setColor(QPalette::Shadow, QColor(0x7d, 0x85, 0x8d));  // edges: no black
  paleta.setColor(QPalette::AlternateBase, QColor(0xf5, 0xf7, 0xfa));
  paleta.setColor(QPalette::Highlight, QColor(0x26, 0x5f, 0xb3));
  paleta.setColor(QPalette::HighlightedText, Qt::white);
  paleta.setColor(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xe1));
  paleta.setColor(QPalette::ToolTipText, Qt::black);
  return paleta;
}

}  // namespace

Aplicacion::Plataforma::Plataforma()
    : elegida(!qEnvironmentVariableIsSet(VariablePlataforma)), utf8(LocalUtf8()) {
  if (elegida) qputenv(VariablePlataforma, "xcb;wayland");
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication::setDesktopSettingsAware(false);
  // The toolkit's file dialog would keep a settings file of its own: there is no folder for it.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

void Aplicacion::Plataforma::Soltar() const {
  if (elegida) qunsetenv(VariablePlataforma);
}

Aplicacion::Aplicacion(char* programa)
    : argumentos_{programa, nullptr}, aplicacion_(cuantos_, argumentos_.data()) {
  plataforma_.Soltar();
  std::signal(SIGXFSZ, SIG_IGN);  // a save beyond the size limit fails with a reason instead
  QApplication::setQuitOnLastWindowClosed(false);
  PonerIdioma();
  PonerAspecto();
}

void Aplicacion::PonerIdioma() {
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);  // else it is looked up in the texts
  QCoreApplication::installTranslator(&traductor_);
}

QString Aplicacion::Traductor::translate(const char* contexto, const char* texto,
                                         const char* aclaracion, int cuantos) const {
  std::call_once(leidos_,
                 [&] { (void)textos_.load(QStringLiteral(":/traducciones/qtbase_es.qm")); });
  return textos_.translate(contexto, texto, aclaracion, cuantos);
}

void Aplicacion::PonerAspecto() {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Windows")));
  QApplication::setPalette(PaletaClara());
  QApplication::setFont(FuenteDe(FuenteControles, PuntosControles));
  QToolTip::setFont(FuenteDe(FuenteControles, PuntosControles));
}
