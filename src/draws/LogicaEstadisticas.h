// Statistics of the draw history: the draw file that is loaded, its update and the queries over it.
#pragma once

#include <string>

#include "Entorno.h"
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
    int cboDia = 0;            ///< 0 all, 1 Monday to 6 Saturday
    int optFiltro = 0;         ///< statistic chosen, 0 to 9
    std::string lblDatos;      ///< title of the statistic
    std::string txtDatos;      ///< its text
    bool Actualizando = false; ///< the wait panel shows and the controls are disabled

    Sorteos SorteosCargados;

    // Buttons, in files of their own: the draw file ...
    void cmdAbrirEstadisticas();
    bool CargarFicheroSorteos(const std::string& ruta);
    void imgINIFichero();
    void InicializarDatosSorteos();
    /// ... its update from the service ...
    bool ActualizarDesdeInternet();
    /// ... and the statistics.
    void ElegirJuego(int juego);
    void ElegirEstadistica(int indice);
    bool cmdConsultar();

    EstadoTrabajo& trabajo;
    Entorno& entorno;
};
