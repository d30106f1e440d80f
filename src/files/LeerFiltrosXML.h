// The filters of a base file.
#pragma once

#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "Sesion.h"

/// The failures of a base file, one line for each failing block.
struct ErroresDeBase {
    std::string Texto;
    /// Adds nothing for an empty description.
    void Anadir(std::string_view descripcion, std::string_view nombre);
};

/// Restores the filters from the children of the `Filtros` element, by name and in any order.
void LeerFiltrosXML(pugi::xml_node filtros, Sesion& sesion, ErroresDeBase& errores);
