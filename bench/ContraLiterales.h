// Each heavy operation beside the plain version of the tests and beside touching as many bytes of memory.
#pragma once

#include <functional>
#include <string>
#include <vector>

/// Seconds, and what the plain version took on its own size turned into this one.
struct TiempoLiteral {
    double segundos = 0;
    std::string como; ///< its size and how it was brought to this one, empty where it ran on the same
};

struct Comparacion {
    std::string clave, nombre;
    std::function<int64_t()> hacer;         ///< its answer depends on all of the work
    std::function<void()> suelo;            ///< the least that has to be done with the memory, or the file
    std::function<TiempoLiteral()> literal; ///< empty where none ends
    std::function<void()> preparar{};       ///< not measured
};

/// All of them, in the order of the table. They keep the whole ticket, in order and shuffled, and its files in
/// `carpeta`, which are written if they are not there.
std::vector<Comparacion> Comparaciones(const std::string& carpeta);
