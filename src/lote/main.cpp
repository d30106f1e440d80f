#include <cstdio>
#include <exception>

#include <CLI/CLI.hpp>

#include "Argumentos.h"
#include "Ordenes.h"
#include "Parada.h"
#include "Sesiones.h"

namespace {

int Terminar(Lote& lote, bool hecho) {
    const bool escrito = lote.salida.Cerrar();
    if (ParadaPedida()) return EstadoInterrumpido;
    if (!escrito) lote.consola.Linea("ERROR: No se ha podido escribir el resultado (" + lote.salida.Fallo() + ")");
    return hecho && escrito ? EstadoBien : EstadoMensaje;
}

bool Ejecutar(Lote& lote) {
    lote.entorno = CrearEntornoLote(lote.opciones, lote.sesion, lote.consola);
    IniciarSesion(lote.sesion, lote.entorno);
    try {
        return lote.Orden(lote);
    } catch (const std::exception& error) {
        return Fallo(lote.entorno, std::string("ERROR: ") + error.what());
    }
}

} // namespace

int main(int argc, char** argv) {
    PrepararSenales();
    Lote lote;
    CLI::App programa;
    DeclararPrograma(programa, lote.opciones);
    DeclararCalcular(programa, lote);
    DeclararAlVuelo(programa, lote);
    DeclararReparto(programa, lote);
    DeclararBase(programa, lote);
    DeclararEstadisticas(programa, lote);
    DeclararActualizar(programa, lote);
    DeclararVer(programa, lote);
    DeclararResumen(programa, lote);
    DeclararEliminadas(programa, lote);
    DeclararAnalisis(programa, lote);
    DeclararGenerar(programa, lote);
    DeclararSistemaPropio(programa, lote);
    DeclararGarantias(programa, lote);
    DeclararMiniGarantias(programa, lote);
    DeclararHuecos(programa, lote);
    DeclararEscrutar(programa, lote);
    DeclararPremios(programa, lote);
    DeclararMultiescrutinio(programa, lote);
    DeclararMultifichero(programa, lote);
    DeclararAlgebra(programa, lote);
    DeclararRentabilidad(programa, lote);
    try {
        programa.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        lote.salida.Escribir(programa.help());
        return Terminar(lote, true);
    } catch (const CLI::CallForVersion&) {
        lote.salida.Escribir(std::string("tombolera-lote ") + TOMBOLERA_VERSION + "\n");
        return Terminar(lote, true);
    } catch (const CLI::ParseError& error) {
        std::fputs(TextoError(programa, error).c_str(), stderr);
        return EstadoArgumentos;
    }
    return Terminar(lote, Ejecutar(lote));
}
