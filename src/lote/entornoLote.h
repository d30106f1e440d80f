// The outside world of the batch front end.
#pragma once

#include <string>

#include "Consola.h"
#include "Entorno.h"
#include "Sesion.h"

struct OpcionesLote {
    bool Si = false;           ///< answer of every question
    std::string Carpeta = "."; ///< of the report files
    std::string Servicio;      ///< base address of the draw-data service, empty for the configured one
};

/// The filling of `Entorno`: boxes and questions go to the console. All arguments outlive it.
Entorno CrearEntornoLote(const OpcionesLote& opciones, const Sesion& sesion, Consola& consola);

/// A chooser that answers always this path.
std::function<std::string(const PeticionFichero&)> Responder(const std::string& ruta);
