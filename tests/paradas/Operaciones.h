// The long operations as a test of stops sees them: how each runs, how it is stopped and what it leaves.
#pragma once

#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "Guion.h"

/// Where an operation runs: a session of its own, and a folder that takes whatever it writes.
struct Mundo : Guion {
    CarpetaTemporal carpeta;
    const std::string salida = carpeta.Ruta("salida.TOM"); ///< the answer to every chooser

    Mundo();
    /// All bets of 1 to n, as conditioned and as final system.
    void Calcular(int n);
    /// Of the final system only each k-th bet stays, numbers and all.
    void Aclarar(int64_t k);
    /// A bet file of each k-th bet of the final system.
    std::string Fichero(const std::string& nombre, int64_t desde, int64_t k);
};

struct Operacion {
    std::function<void()> correr;
    /// What stands after it. After a stop it is the beginning of what a whole run leaves: nothing, or the
    /// findings made so far.
    std::function<std::string()> huella;
    /// The stop button. An operation without one runs out of memory instead.
    std::function<void()> parar{};
    /// What else must hold of what a stop leaves.
    std::function<void()> comprobar{};
    bool escapa = false;    ///< want of memory is its caller's business
    bool porPartes = false; ///< a stop leaves out lines of the print, anywhere
};

struct CasoParada {
    const char* nombre;
    Operacion (*crear)(Mundo&);
};

inline void PrintTo(const CasoParada& caso, std::ostream* salida) {
    *salida << caso.nombre;
}

/// Each operation keeps what it needs for as long as it lives.
const std::vector<CasoParada>& ParadasDeCalculo();
const std::vector<CasoParada>& ParadasDeFicheros();
const std::vector<CasoParada>& ParadasDeHerramientas();

/// A number that changes with any cell of the table.
std::string Resumen(const Tabla& tabla);
