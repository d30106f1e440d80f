// The analysis of the final system: how often each number and each digit stands in it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "Entorno.h"
#include "Sesion.h"

struct LogicaAnalisis {
    LogicaAnalisis(const Sesion& s, Entorno& e) : sesion(s), entorno(e) {}

    const Sesion& sesion;
    Entorno& entorno;

    int32_t publicApuestasAnalizar = 0; ///< given by the caller

    /// Bets by number and by digit.
    std::array<int32_t, NumeroMaximoBoleto + 1> Numeros{};
    std::array<int32_t, 10> Digitos{};

    // What is shown. Labels are empty below one bet and above `NumeroMaximo`.
    std::array<std::string, NumeroMaximoBoleto + 1> lblN;
    std::array<std::string, 10> lblR;
    std::array<bool, NumeroMaximoBoleto + 1> lblNConApuestas{}; ///< coloured: some bet holds the number
    std::array<bool, 10> lblRConApuestas{};
    std::string TituloDigitos; ///< of the digit panel, empty where the game has none
    bool EnPorcentajes = false;

    /// Counts the first `publicApuestasAnalizar` bets of the final system and shows the counts.
    void Abrir();

    /// `imgSwitch`: between counts and percentages, without counting again.
    void Cambiar();
    /// What `imgSwitch` offers.
    std::string ConsejoSwitch() const { return EnPorcentajes ? "Ver número de apuestas" : "Ver porcentajes"; }

    /// The report of what the labels hold, UTF-8 with "\n".
    std::string TextoInforme() const;

    /// Writes the report as TOMBOLERA_ANALISIS.txt; `fallo` says why not.
    bool Escribir(std::string& fallo) const;

    /// `imgVerAnalisis`: writes the report and shows it. One that cannot be written is not told.
    void VerAnalisis() const;

    /// Both views as a table for a spreadsheet: number or digit, bets, percentage, with tabs between.
    std::string TextoTabla() const;

    /// The heat map: from 0 for the numbers in fewest bets to 1 for those in most, half way when all are
    /// in as many. Nothing for a number that is in no bet.
    std::optional<double> Calor(int numero) const;
    /// The two ends of that scale, in the view that is shown; empty without bets.
    std::string lblMenor, lblMayor;

    /// What a number, or a digit, tells on hover: "Número 12: 1.260 apuestas, 42,86%".
    std::string ConsejoNumero(int numero) const;
    std::string ConsejoDigito(int digito) const;

    /// A count of bets as percentage of those analysed, with two decimals at most: "42,86%".
    std::string Porcentaje(int32_t apuestas) const;

  private:
    void Rotular();
    std::string Rotulo(int32_t apuestas) const;
    std::string Consejo(std::string_view que, int cual, int32_t apuestas) const;

    int32_t menor_ = 0, mayor_ = 0; // bets of the numbers in fewest and in most, among those in some
};
