// What the about box and the command line tell of the program.
#pragma once

#include <string>
#include <string_view>

inline constexpr std::string_view NombrePrograma = "TOMBOLERA";
inline constexpr std::string_view VersionPrograma = "11.1";

/// The day of the build as dd/mm/yyyy.
std::string FechaCompilacion();
