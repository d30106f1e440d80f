// Lists of numbers as text, for the clipboard.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Entorno.h"

struct NumerosLeidos {
    std::vector<int> Numeros;          ///< those within 1 to the maximum, in the order of the text
    std::vector<std::string> Erroneos; ///< everything else that stood between the separators
};

/// Reads "3, 7 12;15-20": numbers with any of blank, tab, line end, "," ";" "-" "+" and "." between.
NumerosLeidos LeerNumeros(std::string_view texto, int maximo);

/// The numbers with ", " between: "3, 7, 12".
std::string TextoNumeros(const std::vector<int>& numeros);

/// Calls `marcar` for each number of a pasted text. What is none is told and left out.
void PegarNumeros(Entorno& entorno, std::string_view texto, int maximo, const std::function<void(int)>& marcar);
