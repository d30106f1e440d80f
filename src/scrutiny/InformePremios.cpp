// The report of the prize calculator.
#include <fmt/format.h>

#include "FormatoImporte.h"
#include "Informes.h"
#include "LogicaCalculadoraPremios.h"
#include "modGeneral.h"

namespace {

constexpr int32_t ApuestasDelBoleto = 8; // of both games that get here

std::string LetraDia(int dia) {
    return dia >= 0 && dia < static_cast<int>(LetrasDia.size()) ? std::string(1, LetrasDia[static_cast<size_t>(dia)])
                                                                : std::string();
}

} // namespace

std::string LogicaCalculadoraPremios::TextoInforme() const {
    const int32_t apuestas = escrutar.ApuestasATRATAR;
    const int32_t boletos = apuestas / ApuestasDelBoleto + (apuestas % ApuestasDelBoleto != 0);
    const EstadoTrabajo& trabajo = escrutar.sesion.trabajo;
    const CombinacionReferencia& sorteo = escrutar.sesion.referencia;
    std::string texto;
    const auto linea = [&texto](const std::string& contenido) { texto += contenido + "\n"; };
    linea("Tipo de Juego            : " + trabajo.TipoJuego());
    linea("Fecha Sorteo             : " + txtDia + "/" + txtMes + "/" + txtAnio);
    linea("Número Sorteo            : " + txtNumeroSorteo);
    linea("Día                      : " + LetraDia(cboDia));
    linea("Combinación Escrutada    :  " + NombreFicheroActual(trabajo));
    linea("Total Apuestas           : " + FormatoMiles(apuestas, entorno.SeparadorMiles));
    linea("Total Boletos(de 8 apu.) : " + FormatoMiles(boletos, entorno.SeparadorMiles));
    linea(fmt::format("Números Ganadores        : {}", fmt::join(sorteo.CombinacionGanadora, ",")));
    linea(fmt::format("Nº Complementario        : {}", sorteo.Complementario));
    linea("Resultados");
    linea("----------");
    linea("Categoría NºPremios Euros");
    for (size_t c = 0; c < NCategoriasPremio; ++c)
        linea(fmt::format("{:<10}{:<10}{}", NombresPremio[c], txtCalculadoraPremios[c], txtCalculadoraEuros[c]));
    linea("Invertido             : " + FormatoImporte(apuestas, entorno.SeparadorDecimal) + " Euros");
    linea("Total Cobrado         : " + txtPremiosTOTAL + " Euros");
    linea("Porcentaje Recuperado : " + txtPorcentajeTOTAL);
    return texto;
}

bool LogicaCalculadoraPremios::cmdVerInformePremios() {
    if (Recortar(txtAnio).empty() || Recortar(txtNumeroSorteo).empty())
        return Fallo(entorno, "ERROR: ALGUN CAMPO ESTA VACIO");
    Recalcular();
    return MostrarInforme(entorno, "TOMBOLERA_TEMP.txt", TextoInforme());
}
