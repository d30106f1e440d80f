// A file of bets and the draw it is checked against, as arguments of an order.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Argumentos.h"
#include "LogicaEscrutar.h"

struct ArgumentosSorteo {
    std::string Fichero;
    int Juego = PRIMITIVA;
    std::vector<int> Numeros;
    int32_t Complementario = 0;
};

/// Declares them. What depends on the game is looked at when all have been read, and then `comprobar` runs.
void DeclararSorteo(
    CLI::App* orden, ArgumentosSorteo& argumentos, std::function<void()> comprobar = [] {});

/// The error of an argument outside its range.
void ExigirEntre(const std::string& nombre, int valor, int minimo, int maximo);

/// Opens the window's fields on the file and marks the draw. False when the file has no bets.
bool CargarYMarcar(LogicaEscrutar& escrutar, const ArgumentosSorteo& argumentos);
