// The check of a system against one draw: what its window shows and what its controls do.
//
//     LogicaEscrutar escrutar(sesion, entorno);
//     escrutar.Abrir();
//     for (const int n : {4, 11, 23, 30, 38, 47}) escrutar.PulsarNumero(n);
//     if (escrutar.EscrutarSistema()) ... escrutar.lstPremios
#pragma once

#include <array>
#include <string>
#include <vector>

#include "Entorno.h"
#include "NucleoEscrutar.h"
#include "Sesion.h"

/// Positions of `optModo`.
enum : int { CombinacionActual = 0, CombinacionNueva = 1 };

struct LogicaEscrutar {
    LogicaEscrutar(Sesion& sesion, Entorno& entorno);

    Sesion& sesion;
    Entorno& entorno;

    // What the window shows.
    std::array<bool, NumeroMaximoBoleto + 1> lblNumero{}; ///< from 1; at most six are on
    int cboComplementario = 0;                            ///< 0 none, otherwise the number
    int cboReintegro = 0;                                 ///< index: the reintegro, or the sueño less 1
    int optModo = CombinacionActual;
    bool chkReintegros = false;
    std::string txtFicheroASCII; ///< full path
    std::string lblApuestasFichero = "0";
    std::vector<std::string> lstPremios; ///< category, tab and count; a row without a count is a rule
    std::string lblApuestas = "0", lblBoletos = "0";
    bool Escrutando = false; ///< a run is on, or a file is read: the controls are disabled
    bool Pendiente = false;  ///< the draw has changed since the results were counted

    // What the prize calculator takes.
    int32_t ApuestasATRATAR = 0;
    bool EscrutinioHecho = false;
    std::array<std::string, NCategoriasPremio> txtCalculadoraPremios{"0", "0", "0", "0", "0"};

    std::string Titulo() const;             ///< of the window
    std::string lblTipoCombinacion() const; ///< "6 Números Seleccionados"
    std::string lblApuestasActuales() const;
    bool MuestraReintegros() const { return JuegoActual().TieneDigito(); } ///< also `cboReintegro`
    bool MuestraComplementario() const { return !EsEURODREAMS(); }
    bool EnBase(int numero) const; ///< whether the number is in the current base
    int32_t ApuestasPorBoleto() const { return JuegoActual().ApuestasPorBoleto; }
    int32_t Boletos() const; ///< tickets of the bets under check, rounded up

    /// On every activation: the stored draw on the grid, the bets of the mode, and a check.
    void Abrir();
    void PulsarNumero(int numero);
    void CambiarComplementario(int indice);
    void CambiarReintegro(int indice) { cboReintegro = indice, Pendiente = true; }
    void imgININumeros();
    void PulsarModo(int modo);
    void CambiarReintegros(bool marcado);

    /// Asks for a file of bets and loads it.
    void cmdDesdeFichero();
    /// Takes these bets under check, as "Combinación nueva". False when the file has none.
    bool CargarFichero(const std::string& ruta);

    /// The check of the game in hand. False when it did not run: then the results stay as they were.
    bool EscrutarSistema();

    /// Runs the check and writes and shows the report of the tickets that win.
    bool imgVerBoletosPremiados();

    /// Whether the prize calculator serves the game; a box says so if not.
    bool imgCalculadoraPremios();

    /// The results as lines of cells with a tab between, for the clipboard.
    std::string Copiar() const;

  private:
    const Juego& JuegoActual() const { return sesion.trabajo.JuegoActual(); }
    bool EsEURODREAMS() const { return sesion.trabajo.cboTipoJuego == EURODREAMS; }
    Sorteado SorteoElegido() const;
    void GuardarSorteo();
    void ElegirApuestas();
    bool ComprobarSorteo();
    bool ContarApuestas(CuentaEscrutinio& cuenta);
    void MostrarResultados(const CuentaEscrutinio& cuenta);
    bool EscribirPremiados(const std::string& ruta, std::string& fallo);
    std::string LineaBoleto(int32_t primera, int32_t ultima) const;

    const Tabla* ApuestasEscrutar = nullptr; ///< the bets under check, the system's or the file's
    Tabla ApuestasFichero;
    int32_t NApuestasFichero = 0;
    Tabla AciertosApuesta;
};
