// multifichero: many bet files against one list of draws.
#include <fmt/format.h>

#include "Argumentos.h"
#include "LogicaMultiEscrutinioMultiFichero.h"
#include "Ordenes.h"
#include "Parada.h"

namespace {

struct ArgumentosMultifichero {
    std::string Sorteos;
    std::vector<std::string> Ficheros;
    bool Detalle = false;
};

bool Multifichero(Lote& lote, const ArgumentosMultifichero& argumentos) {
    LogicaMultiEscrutinioMultiFichero logica(lote.sesion, lote.entorno);
    logica.chkTipoListadoPremios = argumentos.Detalle;
    if (!logica.AnadirFicheros(argumentos.Ficheros)) return false;
    logica.CargarSorteos(argumentos.Sorteos);
    bool parado = false; // one interruption is one press of the stop button: it skips one file
    lote.entorno.CederTurno = [&] {
        lote.consola.Progreso([&] {
            return logica.Escrutando ? fmt::format("{} {:.0f} %", logica.lblEscrutando, 100 * logica.lblProgressBar)
                                     : logica.lblEstado;
        });
        if (!ParadaPedida() || parado || !logica.Escrutando) return;
        parado = true;
        logica.cmdStop();
    };
    const bool hecho = logica.imgEscrutar();
    lote.salida.Escribir(logica.txtInforme);
    return hecho;
}

} // namespace

void DeclararMultifichero(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosMultifichero>();
    CLI::App* orden = NuevaOrden(programa, lote, "multifichero",
                                 "Cuenta los aciertos de varios ficheros de apuestas en una lista de sorteos",
                                 [argumentos](Lote& l) { return Multifichero(l, *argumentos); });
    Fichero(orden, "SORTEOS.txt", argumentos->Sorteos, "Fichero de texto con los sorteos, seis números por línea");
    Ficheros(orden, "F", argumentos->Ficheros, "Ficheros de apuestas, hasta mil");
    Bandera(orden, "--detalle", argumentos->Detalle, "Escribe un informe por fichero, con una línea por sorteo");
}
