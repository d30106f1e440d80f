// The filters with blocks, as the measurements set them.
#pragma once

#include <vector>

#include "Condiciones.h"
#include "TablaFiltros.h"

struct CasoBloques {
    const char* nombre;
    FilaDe k;
    double permitido; ///< times one reading of the table
    void (*elegir)(Condiciones&);
};

/// Each sets its own record alone.
const std::vector<CasoBloques>& CasosBloques();
