// garantias: what the final system of a base file assures; minigarantias: the extended guarantees.
#include <algorithm>

#include <fmt/format.h>

#include "Argumentos.h"
#include "CalcularFichero.h"
#include "LogicaGarantias.h"
#include "Ordenes.h"
#include "Parada.h"

namespace {

struct ArgumentosGarantias {
    std::string Base, Sistema;
    bool Condicionado = false;
    int Aciertos = SeisAciertos; ///< position in the dialog's list
};

// The output has LF alone.
void Escribir(Lote& lote, std::string texto) {
    texto.erase(std::remove(texto.begin(), texto.end(), '\r'), texto.end());
    if (!texto.empty() && texto.back() != '\n') texto += '\n';
    lote.salida.Escribir(texto);
}

// The run with its progress line and the stop button.
bool Correr(Lote& lote, LogicaGarantias& logica, bool (LogicaGarantias::*medir)()) {
    lote.entorno.CederTurno = [&] {
        lote.consola.Progreso(
            [&] { return fmt::format("{} {:.0f} %", logica.lblEspera, 100 * logica.lblProgressBar); });
        if (ParadaPedida()) logica.Detener();
    };
    return (logica.*medir)();
}

bool Garantias(Lote& lote, const ArgumentosGarantias& argumentos) {
    if (!CalcularFichero(lote, argumentos.Base, argumentos.Sistema)) return false;
    LogicaGarantias logica(lote.sesion, lote.entorno);
    if (argumentos.Condicionado)
        logica.CambiarTipo(logica.optHabilitado[SobreLoImportado] ? SobreLoImportado : SobreLoCondicionado);
    else
        logica.CambiarAciertos(argumentos.Aciertos);
    const bool medido = Correr(lote, logica, &LogicaGarantias::Calcular);
    const bool todas = logica.cboTipoGarantias == TodasLasGarantias; // has written its reports
    const bool escrito = medido && (todas || logica.detener || logica.InformeGarantias(0));
    Escribir(lote, logica.resultados.txtResumen);
    return escrito;
}

bool MiniGarantias(Lote& lote, const ArgumentosGarantias& argumentos) {
    if (!CalcularFichero(lote, argumentos.Base, argumentos.Sistema)) return false;
    LogicaGarantias logica(lote.sesion, lote.entorno);
    if (!Correr(lote, logica, &LogicaGarantias::GarantiasExtendidas)) return false;
    Escribir(lote, logica.txtMiniGarantias);
    return true;
}

void LeerTipo(CLI::App* orden, bool& condicionado) {
    const auto leer = [&condicionado](const std::string& valor) {
        condicionado = valor == "condicionado";
        if (!condicionado && valor != "total") ArgumentoMalo("--tipo", "se espera total o condicionado, no " + valor);
    };
    OpcionLeida(orden, "--tipo", "T", leer,
                "total, sobre todos los sorteos posibles de la base (si falta), o condicionado");
}

void LeerAciertos(CLI::App* orden, int& aciertos) {
    const auto leer = [&aciertos](const std::string& valor) {
        const std::string& texto = valor;
        if (texto != "todas" && (texto.size() != 1 || texto[0] < '1' || texto[0] > '6'))
            ArgumentoMalo("--aciertos", "se espera un número de 1 a 6 o todas, no " + texto);
        aciertos = texto == "todas" ? TodasLasGarantias : texto[0] - '0';
    };
    OpcionLeida(orden, "--aciertos", "A", leer, "Aciertos sobre el sistema total: de 1 a 6 (6 si falta) o todas");
}

CLI::App* Declarar(CLI::App& programa, Lote& lote, const std::string& nombre, const std::string& descripcion,
                   bool (*ejecutar)(Lote&, const ArgumentosGarantias&),
                   const std::shared_ptr<ArgumentosGarantias>& argumentos) {
    CLI::App* orden = NuevaOrden(programa, lote, nombre, descripcion,
                                 [argumentos, ejecutar](Lote& l) { return ejecutar(l, *argumentos); });
    Fichero(orden, "BASE.xml", argumentos->Base, "Fichero base que se calcula");
    Fichero(orden, "--sistema", argumentos->Sistema, "Apuestas que se miden en lugar del sistema final");
    return orden;
}

} // namespace

void DeclararGarantias(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosGarantias>();
    CLI::App* orden = Declarar(programa, lote, "garantias", "Mide las garantías y los porcentajes del sistema final",
                               Garantias, argumentos);
    LeerTipo(orden, argumentos->Condicionado);
    LeerAciertos(orden, argumentos->Aciertos);
}

void DeclararMiniGarantias(CLI::App& programa, Lote& lote) {
    Declarar(programa, lote, "minigarantias", "Mide las garantías extendidas del sistema final", MiniGarantias,
             std::make_shared<ArgumentosGarantias>());
}
