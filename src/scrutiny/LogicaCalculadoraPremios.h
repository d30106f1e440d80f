// The prize calculator: what the hits of the last check are worth.
//
//     LogicaCalculadoraPremios calculadora(escrutar);
//     calculadora.txtDia = "04", calculadora.txtMes = "03", calculadora.txtAnio = "2016";
//     if (calculadora.cmdConsultarSorteo()) ... calculadora.txtPremiosTOTAL
#pragma once

#include <array>
#include <string>

#include "ConsultarServicioSorteos.h"
#include "LogicaEscrutar.h"

/// One text for each category: 6, 5+C, 5, 4, 3.
using TextosPremio = std::array<std::string, NCategoriasPremio>;

/// What a prize file keeps of a calculation.
struct PremiosGuardados {
    TextosPremio txtCalculadoraPremios, txtCalculadoraEuros{"0", "0", "0", "0", "0"};
    std::string txtAnio, txtNumeroSorteo = "0";
    int cboDia = -1; ///< 0 Monday to 6 Sunday, -1 none
};

struct LogicaCalculadoraPremios : PremiosGuardados {
    /// Opens with the counts of the last check and today's date. `escrutar` outlives it.
    explicit LogicaCalculadoraPremios(const LogicaEscrutar& escrutar);

    const LogicaEscrutar& escrutar;
    Entorno& entorno;

    // What the window shows besides.
    std::string txtDia, txtMes, txtPremiosTOTAL, txtPorcentajeTOTAL;
    bool Rentable = false; ///< at least what was spent has come back
    std::string txtRecaudacion = "0", txtBote = "0";
    TextosPremio txtSorteoPremios{"0", "0", "0", "0", "0"}, txtSorteoAciertos = txtSorteoPremios;
    bool Consultando = false; ///< the service is asked: the controls are disabled

    std::string Titulo() const;

    void CambiarPremios(size_t categoria, const std::string& texto);
    void CambiarEuros(size_t categoria, const std::string& texto);
    void cmdIniCalculadoraPremios();

    /// Euros of all prizes. A box without a number ends the sum with what it has by then.
    double CalcularTotal() const;

    /// Takes the prizes of the date's draw from the service. False after a box.
    bool cmdConsultarSorteo();

    /// Writes the report TOMBOLERA_TEMP.txt and shows it.
    bool cmdVerInformePremios();
    std::string TextoInforme() const;

    /// Ask for a file and save the calculation in it, or take it from there. False when cancelled, and
    /// after a box; a file that cannot be read leaves all as it was.
    bool GuardarPremiosXML();
    bool AbrirPremiosXML();
    bool CargarPremiosXML(const std::string& ruta);
    std::string GenerarPremiosXML() const;

    /// The calculation as lines of cells with a tab between, for the clipboard.
    std::string Copiar() const;

  private:
    void Recalcular();
    bool ConsultarSorteos(std::vector<SorteoConPremios>& sorteos);
    bool FalloAlCargar(const std::string& descripcion);
    void MostrarSorteo(const SorteoConPremios& sorteo);
};
