#include "text_box/avisos_accesibles.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QAccessible>

#include "shared/pagina_codigos.h"

namespace {
constexpr Posicion MaximoLeido = 1 << 16;  // bytes: no reader reads more aloud
}

int EnteroAccesible(Posicion pos) {
  return static_cast<int>(std::min<Posicion>(pos, std::numeric_limits<int>::max()));
}

bool AvisosAccesibles::Callan() const {
  return !QAccessible::isActive() || !caja_.isVisible();
}

void AvisosAccesibles::CursorMovido(Posicion cursor, const Tramo& elegido) {
  if (Callan()) return;
  const bool hay = elegido.desde != elegido.hasta;
  if (hay || seleccion_avisada_) {
    QAccessibleTextSelectionEvent seleccion(&caja_, EnteroAccesible(elegido.desde),
                                            EnteroAccesible(elegido.hasta));
    seleccion.setCursorPosition(EnteroAccesible(cursor));
    QAccessible::updateAccessibility(&seleccion);
    seleccion_avisada_ = hay;
  }
  QAccessibleTextCursorEvent movido(&caja_, EnteroAccesible(cursor));
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
  const QString viejo = PaginaCodigos::ATexto(quitado);
  const QString nuevo = PaginaCodigos::ATexto(
      documento_.Copia(cambio.pos, cambio.pos + std::min(cambio.puestos, MaximoLeido)));
  const int pos = EnteroAccesible(cambio.pos);
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
