// Which chapter of the manual tells about which window.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "Entorno.h"

struct CapituloVentana {
    std::string_view Ventana;  ///< name of the window
    std::string_view Capitulo; ///< file of the manual without its extension
    std::string_view Ancla;    ///< of the section, empty for the whole chapter
};

/// Every window with a chapter.
std::span<const CapituloVentana> CapitulosDeVentanas();

/// The page that opens the window's chapter, beside the manual's first page; empty for an unknown window.
std::string PaginaDeVentana(std::string_view ventana);

/// Opens an address of help in the browser; an empty one, or no browser, is told in a box.
bool AbrirAyuda(Entorno& entorno, const std::string& direccion);

/// Opens a page of the installed manual, its first one when `pagina` is empty.
bool AbrirManual(Entorno& entorno, const std::string& pagina);
