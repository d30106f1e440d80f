// The utility of the coefficient of profitability: how many bets of a file fall on each value, and the
// bets of the values chosen in a file of their own.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "Entorno.h"
#include "PorcentajesCR.h"
#include "RepartirPorCR.h"
#include "Sesion.h"

/// Its tables of percentages are its own, not those of the filter. Holds 7 bytes for each bet loaded, one
/// more once they are calculated, and 7 for each one that is being saved.
struct LogicaCoeficienteRentabilidad {
    Sesion& sesion;
    Entorno& entorno;

    TextosPorcentajes txtPorcentajesApostados{}, txtPorcentajesReales{};
    std::vector<std::string> lstCR{};       ///< the hundred rows, none before the calculation
    std::array<bool, ValoresCR> Elegidos{}; ///< the boxes of the rows
    std::string lblApuCargadas = "0";       ///< how many bets, or how many so far
    std::string txtFicheroASCII{};          ///< whole path, empty if none
    Tabla ApuestasCR{};                     ///< the bets loaded, numbers in the order of the file
    Tabla CoeficienteCR{};                  ///< one row: ten times each bet's coefficient, at most 99
    std::array<int32_t, ValoresCR> ApuestasPorCR{};
    bool Trabajando = false; ///< nothing but the stop and repaints until it ends
    bool Calculando = false; ///< what can be stopped is under way
    bool detener = false;    ///< the stop
    Espera picVentanaEspera{};

    void Abrir();
    TextosPorcentajes& Textos(TablaCR tabla);

    /// Asks for a file of bets and loads it; Cargar is false, with its boxes shown, when it gave none.
    void cmdDesdeFichero();
    bool Cargar(const std::string& ruta);

    void CambiarPorcentaje(TablaCR tabla, size_t i, const std::string& texto);
    void imgINIPorcentajes(TablaCR tabla);
    void imgAbrirPorcentajes(TablaCR tabla);
    bool CargarPorcentajes(TablaCR tabla, const std::string& ruta);
    void imgGuardarPorcentajes(TablaCR tabla);

    /// Fills the list; false when a check, the stop or the memory ended it.
    bool imgCalcular();
    void ElegirCR(size_t i, bool elegido);
    /// "Apuestas: 1.204", those of the rows chosen.
    std::string lblApuestasSeleccionadasCR() const;
    /// Asks for a file and saves the bets of the rows chosen, row by row and each row in the order of the
    /// file; true when they were saved.
    bool imgGrabarApuestasCR();
    void Detener();

    /// Refused while something runs.
    bool PuedeCerrar() const { return !Trabajando; }

    /// The rows as a table, a tab between value and count.
    std::string Copiar() const;

  private:
    void VaciarLista();
    bool Repartir();
    int64_t Seleccionadas() const;
    Tabla JuntarElegidas() const;
    std::string TextoCR(size_t i) const;
};
