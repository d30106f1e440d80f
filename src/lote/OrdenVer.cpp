// ver: the bets of a file, one a line.
#include <fmt/format.h>

#include "Argumentos.h"
#include "Ordenes.h"
#include "Parada.h"
#include "Sesiones.h"
#include "modImportarASCII.h"

namespace {

struct ArgumentosVer {
    std::string Fichero;
    int Juego = PRIMITIVA;
    bool Reintegros = false;
};

bool Ver(Lote& lote, const ArgumentosVer& argumentos) {
    CambiarJuego(lote.sesion, argumentos.Juego);
    Tabla apuestas;
    const int32_t cuantas = LeerApuestas(argumentos.Fichero, argumentos.Reintegros, apuestas, nullptr,
                                         lote.sesion.trabajo.JuegoActual(), lote.entorno);
    if (cuantas == 0) return Fallo(lote.entorno, AvisoSinApuestas);
    std::string linea;
    for (int32_t i = 1; i <= cuantas && lote.salida.Abierta() && !ParadaPedida(); ++i) {
        linea.clear();
        for (int r = 1; r <= 7; ++r)
            fmt::format_to(std::back_inserter(linea), "{:02}{}", apuestas(r, i), ",,,,,+\n"[r - 1]);
        lote.salida.Escribir(linea);
    }
    return true;
}

} // namespace

void DeclararVer(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosVer>();
    CLI::App* orden = NuevaOrden(programa, lote, "ver", "Escribe las apuestas de un fichero, una por línea",
                                 [argumentos](Lote& l) { return Ver(l, *argumentos); });
    Fichero(orden, "F", argumentos->Fichero, "Fichero de apuestas");
    OpcionJuego(orden, argumentos->Juego);
    Bandera(orden, "--reintegros", argumentos->Reintegros, "Carga también los reintegros o los sueños");
}
