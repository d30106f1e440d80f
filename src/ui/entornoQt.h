// The outside world filled with real boxes, file choosers and the desktop's own services.
#pragma once

#include <QWidget>

#include "Entorno.h"

/// Its boxes stand over the active window.
Entorno EntornoQt();
