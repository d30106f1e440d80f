// The bar of what a tool writes or works through.
#pragma once

#include <QProgressBar>

#include "EstadoTrabajo.h"

/// A bar called lblProgressBar that keeps its place while it is hidden.
QProgressBar* CrearBarraProgreso(std::string_view accesible);

void PintarBarraProgreso(QProgressBar& barra, const Espera& espera);
