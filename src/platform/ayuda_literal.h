// Tooltips that are names: of files, folders and drives.
#pragma once

class QString;
class QWidget;

// `texto` as the control's tooltip, letter by letter whatever it looks like; in one line where the
// screen is wide enough for it. Empty: no tooltip.
void PonerAyudaLiteral(QWidget& control, const QString& texto);
