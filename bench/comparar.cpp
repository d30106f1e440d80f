// One round of the comparisons of comparar.py: a line for each with key, name, seconds, seconds of the floor,
// answer and, with --literales, the seconds of the plain version and how it was measured; tabs between.
//
//     comparar FOLDER [--literales]
#include <algorithm>
#include <cstring>

#include <fmt/format.h>

#include "ContraLiterales.h"
#include "Reloj.h"

int main(int argc, char** argv) {
    if (argc < 2) return std::fputs("comparar FOLDER [--literales]\n", stderr), 2;
    const bool literales = argc > 2 && std::strcmp(argv[2], "--literales") == 0;
    for (const Comparacion& c : Comparaciones(argv[1])) {
        int64_t respuesta = 0;
        double suelo = 1e9, propio = 1e9;
        for (int vez = 0; vez < 2; ++vez) { // the second time the system has the memory at hand
            suelo = std::min(suelo, Segundos(c.suelo));
            if (c.preparar) c.preparar();
            propio = std::min(propio, Segundos([&] { respuesta = c.hacer(); }));
        }
        const TiempoLiteral literal = literales && c.literal ? c.literal() : TiempoLiteral{};
        fmt::print("{}\t{}\t{:.6f}\t{:.6f}\t{}\t{:.6f}\t{}\n", c.clave, c.nombre, propio, suelo, respuesta,
                   literal.segundos, literal.como);
        std::fflush(stdout);
    }
}
