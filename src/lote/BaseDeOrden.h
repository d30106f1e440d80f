// The base file that an order begins with, its imported bets and its draws.
#pragma once

#include <string>

#include "Argumentos.h"
#include "Lote.h"

struct ArgumentosBase {
    std::string Base, Importar, Sorteos;
    bool Reintegros = false;
};

/// BASE.xml, --importar, --reintegros and --sorteos, in this order.
void DeclararArgumentosBase(CLI::App* orden, ArgumentosBase& argumentos);

/// Opens the base file, imports the bets and loads the draws, as their windows do. False after a box.
bool AbrirBase(Lote& lote, const ArgumentosBase& argumentos);
