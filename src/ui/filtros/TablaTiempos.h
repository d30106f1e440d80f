// The table of approximate times of the filter of earlier draws.
#pragma once

#include <QFrame>
#include <QPushButton>

/// Shows the table, `picImagenTabla`, while the pointer is over the button or after a press of it, and
/// hides it when the pointer or the focus leaves. The table belongs to the button.
QFrame* PonerTablaTiempos(QPushButton& boton);
