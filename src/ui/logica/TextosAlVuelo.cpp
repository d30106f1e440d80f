#include "TextosAlVuelo.h"

#include <fmt/format.h>

#include "Boleto.h"
#include "modGeneral.h"

namespace {

std::string Apuestas(int32_t n, const Entorno& entorno) {
    return FormatoMiles(n, entorno.SeparadorMiles) + (n == 1 ? " apuesta" : " apuestas");
}

std::string ConTanto(int32_t n, int32_t total, const Entorno& entorno) {
    return FormatoMiles(n, entorno.SeparadorMiles) + " (" + TextoTantoPorCiento(n, total, entorno.SeparadorDecimal) +
           ")";
}

} // namespace

std::string TextoTantoPorCiento(int64_t parte, int64_t total, char decimal) {
    const int64_t centesimas = total == 0 ? 0 : (20000 * parte + total) / (2 * total);
    return fmt::format("{}{}{:02} %", centesimas / 100, decimal, centesimas % 100);
}

std::string FaltaBase(const EstadoTrabajo& trabajo) {
    if (trabajo.cboTipoCombinacion == PronosticoDesdeArchivo)
        return trabajo.NApuestasImportadas > 0 ? "" : "no hay ningún fichero de apuestas cargado";
    return ContarBase(trabajo) >= 6 ? "" : "la base no llega a 6 números";
}

std::string TextoAlVuelo(const CuentaAlVuelo& cuenta, const Entorno& entorno) {
    if (cuenta.Pasan == 0) return "Al vuelo: 0 (ninguna cumple todas)";
    return "Al vuelo: " + ConTanto(cuenta.Pasan, cuenta.Total, entorno);
}

std::string TextoPasan(int32_t pasan, int32_t total, const Entorno& entorno) {
    return "Pasan " + FormatoMiles(pasan, entorno.SeparadorMiles) + " de " +
           FormatoMiles(total, entorno.SeparadorMiles) + " (" +
           TextoTantoPorCiento(pasan, total, entorno.SeparadorDecimal) + ")";
}

std::string TextoPasanJuntas(int32_t pasan, int32_t total, const Entorno& entorno) {
    return "Con las otras activas: " + ConTanto(pasan, total, entorno);
}

std::string TextoCoste(const CosteCondicion& coste, const Entorno& entorno) {
    if (coste.Sola == 0) return "No elimina ninguna apuesta";
    std::string texto = "Sola elimina " + Apuestas(coste.Sola, entorno);
    if (!coste.Propia) return texto;
    if (*coste.Propia == coste.Sola) return texto + ", que ninguna otra condición elimina";
    return texto + "; sólo ella elimina " + FormatoMiles(*coste.Propia, entorno.SeparadorMiles) + " de ellas";
}
