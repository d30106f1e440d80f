// What the orders share in declaring their arguments: Spanish help, checks and error texts.
#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Lote.h"

/// The program's own name, help, version and options.
void DeclararPrograma(CLI::App& programa, OpcionesLote& opciones);

/// A new order with its help; `ejecutar` becomes the order of the run when it is the one given.
CLI::App* NuevaOrden(CLI::App& programa, Lote& lote, const std::string& nombre, const std::string& descripcion,
                     const std::function<bool(Lote&)>& ejecutar);

/// A file argument: an option when the name begins with dashes, otherwise positional and needed. The
/// name of the file may not be empty.
CLI::Option* Fichero(CLI::App* orden, const std::string& nombre, std::string& ruta, const std::string& descripcion);

/// `--juego`, as the position in the list of games.
CLI::Option* OpcionJuego(CLI::App* orden, int& juego);

/// A whole number of `minimo` to `maximo`.
CLI::Option* EnteroEntre(CLI::App* orden, const std::string& nombre, int& valor, int minimo, int maximo,
                         const std::string& descripcion);

/// Two whole numbers of 0 or more, "A-B", as the texts of the two fields that they are for.
CLI::Option* OpcionIntervalo(CLI::App* orden, const std::string& nombre, std::string& desde, std::string& hasta,
                             const std::string& descripcion);

/// A whole number from `minimo` up that fits 32 bits.
CLI::Option* Entero(CLI::App* orden, const std::string& nombre, int32_t& valor, int32_t minimo,
                    const std::string& descripcion);

/// Numbers of 1 to 49 with commas between.
CLI::Option* ListaNumeros(CLI::App* orden, const std::string& nombre, std::vector<int>& numeros,
                          const std::string& descripcion);

/// The error of a parse and how the order is used, in Spanish.
std::string TextoError(const CLI::App& programa, const CLI::ParseError& error);
