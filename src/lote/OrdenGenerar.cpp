// generar-numeros, generar-porcentajes: random bets into a bet file.
#include "Argumentos.h"
#include "LogicaGeneradorApuestas.h"
#include "LogicaGeneradorApuestasXPorcentaje.h"
#include "Ordenes.h"
#include "Sesiones.h"

namespace {

struct ArgumentosGenerar {
    int Juego = PRIMITIVA;
    std::vector<int> Numeros;
    std::string Porcentajes, Guardar;
    int32_t Apuestas = 1;
};

bool GenerarNumeros(Lote& lote, const ArgumentosGenerar& argumentos) {
    CambiarJuego(lote.sesion, argumentos.Juego);
    lote.entorno.PedirGuardar = Responder(argumentos.Guardar);
    LogicaGeneradorApuestas generador(lote.sesion.trabajo, lote.entorno);
    for (const int n : argumentos.Numeros) {
        if (n > lote.sesion.trabajo.NumeroMaximo())
            return Fallo(lote.entorno, "ERROR: El boleto no tiene el número " + std::to_string(n));
        generador.lblNumero[static_cast<size_t>(n)] = true;
    }
    generador.txtApuestas = std::to_string(argumentos.Apuestas);
    return generador.cmdGenerar();
}

bool GenerarPorcentajes(Lote& lote, const ArgumentosGenerar& argumentos) {
    CambiarJuego(lote.sesion, argumentos.Juego);
    lote.entorno.PedirGuardar = Responder(argumentos.Guardar);
    LogicaGeneradorApuestasXPorcentaje generador(lote.sesion.trabajo, lote.entorno);
    if (!generador.CargarPorcentajes(argumentos.Porcentajes)) return false;
    generador.txtApuestas = std::to_string(argumentos.Apuestas);
    return generador.cmdGenerar();
}

void DeclararComunes(CLI::App* orden, ArgumentosGenerar& argumentos) {
    Entero(orden, "--apuestas", argumentos.Apuestas, 0, "Cuántas apuestas se generan").Obligatoria();
    Fichero(orden, "--guardar", argumentos.Guardar, "Fichero de apuestas que se escribe").Obligatoria();
}

} // namespace

void DeclararGenerar(CLI::App& programa, Lote& lote) {
    const auto numeros = std::make_shared<ArgumentosGenerar>();
    CLI::App* orden = NuevaOrden(programa, lote, "generar-numeros", "Genera apuestas al azar con unos números",
                                 [numeros](Lote& l) { return GenerarNumeros(l, *numeros); });
    OpcionJuego(orden, numeros->Juego);
    ListaNumeros(orden, "--numeros", numeros->Numeros, "Números del boleto, separados por comas").Obligatoria();
    DeclararComunes(orden, *numeros);

    const auto porcentajes = std::make_shared<ArgumentosGenerar>();
    orden = NuevaOrden(programa, lote, "generar-porcentajes", "Genera apuestas al azar según unos porcentajes",
                       [porcentajes](Lote& l) { return GenerarPorcentajes(l, *porcentajes); });
    OpcionJuego(orden, porcentajes->Juego);
    Fichero(orden, "--porcentajes", porcentajes->Porcentajes, "Fichero de porcentajes").Obligatoria();
    DeclararComunes(orden, *porcentajes);
}
