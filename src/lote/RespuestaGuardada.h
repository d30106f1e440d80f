// An answer of the draw-data service that was stored as a file.
#pragma once

#include "Entorno.h"

/// From now on the service answers with the content of this file, whatever it is asked.
void ResponderConFichero(Entorno& entorno, const std::string& ruta);
