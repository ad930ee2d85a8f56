#include "text_box/avisos_accesibles.h"

#include <algorithm>
#include <utility>

#include <QAccessible>

#include "text_box/texto_externo.h"

namespace {
constexpr Posicion MaximoLeido = 1 << 16;  // bytes: no reader reads more aloud
}

bool AvisosAccesibles::Callan() const {
  return !QAccessible::isActive() || !caja_.isVisible();
}

void AvisosAccesibles::CursorMovido(Posicion cursor, const Rango& elegido) {
  if (Callan()) return;
  const bool hay = elegido.desde != elegido.hasta;
  if (hay || seleccion_avisada_) {
    QAccessibleTextSelectionEvent seleccion(&caja_, CaracteresHasta(documento_, elegido.desde),
                                            CaracteresHasta(documento_, elegido.hasta));
    seleccion.setCursorPosition(CaracteresHasta(documento_, cursor));
    QAccessible::updateAccessibility(&seleccion);
    seleccion_avisada_ = hay;
  }
  QAccessibleTextCursorEvent movido(&caja_, CaracteresHasta(documento_, cursor));
  QAccessible::updateAccessibility(&movido);
}

void AvisosAccesibles::PorQuitar(Posicion desde, Posicion hasta) {
  if (!QAccessible::isActive()) return;
  por_quitar_ = documento_.Copia(desde, std::min(hasta, desde + MaximoLeido));
}

// Text removed by another hand than this box's is gone already: blanks stand for it.
void AvisosAccesibles::Cambiado(const Cambio& cambio) {
  QByteArray quitado = std::exchange(por_quitar_, {});
  if (Callan()) return;
  const Posicion cuanto = std::min(cambio.quitados, MaximoLeido);
  if (quitado.size() != cuanto) quitado = QByteArray(cuanto, ' ');  // changed in another box
  const QString viejo = documento_.CodificacionDelTexto().ATexto(quitado);
  const QString nuevo =
      TextoEntre(documento_, cambio.pos, cambio.pos + std::min(cambio.puestos, MaximoLeido));
  const int pos = CaracteresHasta(documento_, cambio.pos);
  if (viejo.isEmpty()) {
    QAccessibleTextInsertEvent evento(&caja_, pos, nuevo);
    QAccessible::updateAccessibility(&evento);
  } else if (nuevo.isEmpty()) {
    QAccessibleTextRemoveEvent evento(&caja_, pos, viejo);
    QAccessible::updateAccessibility(&evento);
  } else {
    QAccessibleTextUpdateEvent evento(&caja_, pos, viejo, nuevo);
    QAccessible::updateAccessibility(&evento);
  }
}
