// The 8-bit code page of text files at the edges of the program. Inside all text is UTF-8.
#pragma once

#include <string>
#include <string_view>

/// UTF-8 to Windows-1252; a character that the code page lacks, or a broken sequence, becomes "?".
std::string Utf8ACodigo8(std::string_view utf8);

/// Windows-1252 to UTF-8; the five codes without a character become "?".
std::string Codigo8AUtf8(std::string_view bytes);

/// Whether the text is sound UTF-8, as plain ASCII always is.
bool EsUtf8(std::string_view texto);
