// The columns of the fixed-pitch reports.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The text filled with blanks to `ancho` characters, at its end ("D") or at its start ("I"). A text that
/// is empty or too long gives blanks alone.
std::string Rellenar(std::string_view texto, size_t ancho, char lado);
