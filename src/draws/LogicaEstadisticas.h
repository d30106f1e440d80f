// Statistics of the draw history: the draw file that is loaded, its update and the queries over it.
#pragma once

#include <string>
#include <vector>

#include "Entorno.h"
#include "Estadisticas.h"
#include "EstadoTrabajo.h"
#include "Sorteos.h"

/// Proposed name of the draw file, in the program's folder.
inline constexpr std::string_view FicheroEstadisticas = "estadisticas_local.txt";

struct LogicaEstadisticas {
    LogicaEstadisticas(EstadoTrabajo& estado, Entorno& entorno);

    // What the window shows.
    int cboTipoJuego = PRIMITIVA; ///< game of the update, and of what is offered
    std::string txtFicheroASCII;  ///< full path of the loaded file
    std::string lblSorteosCargados = "0", lblSorteosConsultados;
    std::string lblTemporadaDESDE = "-", lblSorteoDESDE = "-", lblTemporadaHASTA = "-", lblSorteoHASTA = "-";
    std::string txtTemporadaDESDE, txtTemporadaHASTA, txtSorteoDESDE, txtSorteoHASTA;
    int cboDia = 0;                        ///< 0 all, 1 Monday to 6 Saturday
    int optFiltro = 0;                     ///< statistic chosen, 0 to 9
    std::string lblDatos;                  ///< title of the statistic
    std::string txtDatos;                  ///< its text, LF line ends
    std::vector<BarraEstadistica> Figuras; ///< the same rows for a chart, empty with the text
    bool Actualizando = false;             ///< the wait panel shows and the controls are disabled

    Sorteos SorteosCargados;
    std::string RutaFicheroNuevo; ///< the file that an update looks for, or makes, when none is loaded

    /// Whether a long job runs, here or in the main window: the buttons of the file then do nothing.
    bool Ocupado() const { return trabajo.FormularioBloqueado; }
    /// Whether the game has this statistic.
    bool Ofrece(int indice) const;

    // Buttons, in files of their own: the draw file ...
    void cmdAbrirEstadisticas();
    /// A file dropped on the window.
    void Soltar(const std::string& ruta);
    /// Loads a file; after a failure, which its box tells, no draws are loaded.
    bool CargarFicheroSorteos(const std::string& ruta);
    void imgINIFichero();
    void InicializarDatosSorteos();
    /// ... its update from the service: true when the file was replaced and loaded again ...
    bool ActualizarDesdeInternet();
    /// ... and the statistics.
    void ElegirJuego(int juego);
    void ElegirEstadistica(int indice);
    /// Runs the query; false when a field stopped it.
    bool cmdConsultar();
    /// What the text shows as a table for a spreadsheet, headings first; empty with the text.
    std::string TextoTabla() const;

    EstadoTrabajo& trabajo;
    Entorno& entorno;
};
