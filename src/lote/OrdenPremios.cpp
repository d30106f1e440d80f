// premios: what a system won in the draw of a date.
#include "Argumentos.h"
#include "ArgumentosSorteo.h"
#include "LogicaCalculadoraPremios.h"
#include "Ordenes.h"
#include "RespuestaGuardada.h"
#include "Sesiones.h"

namespace {

struct ArgumentosPremios : ArgumentosSorteo {
    std::string Dia, Mes, Anio, Sorteos;
};

void OpcionFecha(CLI::App* orden, ArgumentosPremios& argumentos) {
    const auto leer = [&argumentos](const std::string& valor) {
        const std::string& fecha = valor;
        const size_t una = fecha.find('/'), otra = fecha.find('/', una == std::string::npos ? una : una + 1);
        if (una == std::string::npos || otra == std::string::npos)
            ArgumentoMalo("--fecha", "se espera DD/MM/AAAA, no " + fecha);
        argumentos.Dia = fecha.substr(0, una);
        argumentos.Mes = fecha.substr(una + 1, otra - una - 1);
        argumentos.Anio = fecha.substr(otra + 1);
    };
    OpcionLeida(orden, "--fecha", "DD/MM/AAAA", leer, "Fecha del sorteo, con los ceros que le pone el servicio")
        .Obligatoria();
}

bool Premios(Lote& lote, const ArgumentosPremios& argumentos) {
    CambiarJuego(lote.sesion, argumentos.Juego);
    LogicaEscrutar escrutar(lote.sesion, lote.entorno);
    escrutar.chkReintegros = false;
    if (!escrutar.imgCalculadoraPremios() || !CargarYMarcar(escrutar, argumentos) || !escrutar.EscrutarSistema())
        return false;
    if (!argumentos.Sorteos.empty()) ResponderConFichero(lote.entorno, argumentos.Sorteos);
    LogicaCalculadoraPremios calculadora(escrutar);
    calculadora.txtDia = argumentos.Dia;
    calculadora.txtMes = argumentos.Mes;
    calculadora.txtAnio = argumentos.Anio;
    if (!calculadora.cmdConsultarSorteo() || !calculadora.cmdVerInformePremios()) return false;
    lote.salida.Escribir(calculadora.TextoInforme());
    return true;
}

} // namespace

void DeclararPremios(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosPremios>();
    CLI::App* orden = NuevaOrden(programa, lote, "premios", "Calcula lo que ganó un fichero de apuestas en un sorteo",
                                 [argumentos](Lote& l) { return Premios(l, *argumentos); });
    DeclararSorteo(orden, *argumentos);
    OpcionFecha(orden, *argumentos);
    Fichero(orden, "--sorteos", argumentos->Sorteos, "Respuesta guardada del servicio, en lugar de consultarlo");
}
