// The first key in a list in which nothing is selected.
#pragma once

class QAbstractItemView;
class QKeyEvent;

// While nothing is selected a key that goes down, or Home, selects the first entry, one that goes
// up, or End, the last. False: nothing was done, the key is the list's own.
bool SeleccionarPorTecla(QAbstractItemView& lista, const QKeyEvent& evento);
