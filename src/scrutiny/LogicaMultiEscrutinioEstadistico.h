// A bet file against a slice of the history, with the prizes that were paid.
#pragma once

#include <string>
#include <vector>

#include "Entorno.h"
#include "Estadisticas.h"
#include "InformeMultiEscrutinio.h"
#include "Sesion.h"
#include "Sorteos.h"
#include "Tabla.h"

struct LogicaMultiEscrutinioEstadistico {
    LogicaMultiEscrutinioEstadistico(Sesion& s, Entorno& e);

    Sesion& sesion;
    Entorno& entorno;

    // What the window shows.
    int cboTipoJuego = PRIMITIVA; ///< PRIMITIVA or BONOLOTO
    std::string lblSorteosCargados = "0";
    std::string lblTemporadaDESDE = "-", lblSorteoDESDE = "-", lblTemporadaHASTA = "-", lblSorteoHASTA = "-";
    std::string txtFicheroASCII; ///< full path of the bets
    std::string lblApuCargadas = "0";
    std::string txtTemporadaDESDE = "1985", txtTemporadaHASTA, txtSorteoDESDE = "1", txtSorteoHASTA = "999";
    int cboDia = 0;            ///< 0 all, 1 Monday to 6 Saturday
    std::string txtDatos;      ///< the report as it fits a window; LF line ends
    bool Cargando = false;     ///< draws or bets are being read
    bool Escrutando = false;   ///< the wait panel shows and only the stop is enabled
    double lblProgressBar = 0; ///< 0 to 1

    std::string Titulo() const;
    bool Ocupada() const { return Cargando || Escrutando; }

    void ElegirJuego(int juego);
    /// Fetches the whole history of the game. On a failure no draws are loaded.
    bool cmdCargar();
    bool cmdDesdeFichero();
    /// Reads the bets; a file without any leaves those that were loaded.
    bool CargarApuestas(const std::string& ruta);

    bool cmdEscrutar();
    /// The same run, and its report as a file.
    bool imgVerInforme();
    void cmdStop() { PararMulti = true; }
    bool PuedeCerrar() const { return !Ocupada(); }

    /// The whole report of the last run, and what it found draw by draw.
    std::string Informe;
    std::vector<GanadoEnSorteo> Ganado;

    Sorteos SorteosCargados;
    std::vector<PremiosSorteo> Premios; ///< of the draw of the same place
    Tabla ApuestasMulti;
    bool PararMulti = false;

  private:
    bool LeerConsulta(ConsultaSorteos& consulta);
    bool Validar(ConsultaSorteos& consulta);
    bool LeerRespuesta(std::string& mensaje);
    void MostrarSorteos(size_t cargados);
    bool ElegirSorteos(const ConsultaSorteos& consulta, std::vector<size_t>& elegidos, std::string& fallo) const;
    bool EscrutarSorteos(const ConsultaSorteos& consulta, std::string& fallo);
    void Recorrer(const std::vector<size_t>& elegidos);
};
