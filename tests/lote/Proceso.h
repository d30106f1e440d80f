// Runs tombolera-lote as a user does and tells all that it left behind.
//
//     CarpetaTemporal carpeta;
//     const Resultado r = Correr({"ver", carpeta.Ruta("a.TOM")});
//     EXPECT_EQ(r.Salida, "01,02,03,04,05,06+07\n");
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

struct Resultado {
    int Estado = -1; ///< exit status, or 128 and the signal that killed it
    std::string Salida, Errores;
};

struct ComoCorrer {
    std::string Carpeta{};  ///< working folder, the test's own if empty
    std::string SalidaEn{}; ///< path that takes standard output instead of `Salida`
    bool SinLector = false; ///< standard output is a pipe that nobody reads
    bool Terminal = false;  ///< standard error is a terminal
    /// Called with all of standard error whenever there is more of it, until it says that it is done.
    std::function<bool(pid_t, const std::string&)> AlLeerErrores{};
    /// Called once the program has written something to standard output; nothing is read before.
    std::function<void(pid_t)> AlEscribir{};
};

Resultado Correr(const std::vector<std::string>& argumentos, const ComoCorrer& como = {});
