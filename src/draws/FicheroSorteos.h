// The draw file: one line a draw, "01,02,03,04,05,06,CC,RR 2010 1 J".
#pragma once

#include <functional>
#include <string>

#include "LectorLineas.h"
#include "Sorteos.h"

/// What a draw file holds.
struct ContenidoSorteos {
    Sorteos sorteos; ///< in the file's order; complementary and digit are not kept
    /// Year and number of the first and of the last draw, as their lines write them.
    std::string anioPrimero, sorteoPrimero, anioUltimo, sorteoUltimo;
    bool lleno = false; ///< as many draws as there is room for were read, the rest was not
};

/// Reads an open draw file; lines of fewer than 25 characters do not count. Calls `progreso` with the
/// draws so far at every 3000th. On a failure false: `fallo` tells it, and is empty for a number outside
/// 1 to 49. Throws std::bad_alloc.
bool LeerFicheroSorteos(LectorLineas& lineas, ContenidoSorteos& contenido, std::string& fallo,
                        const std::function<void(size_t)>& progreso);

/// Replaces a draw file by these draws, behind an empty line. On a failure false, with its description,
/// and the file as it was; a draw without a weekday is one.
bool EscribirFicheroSorteos(const std::string& ruta, const Sorteos& sorteos, std::string& fallo);
