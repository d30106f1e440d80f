// Many bet files against one list of draws.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "CategoriasPremio.h"
#include "Entorno.h"
#include "Sesion.h"
#include "Tabla.h"

/// A file of the list after the run.
struct FicheroEscrutado {
    std::string Nombre; ///< without its folder
    int32_t Apuestas = 0;
    bool Escrutado = false;            ///< otherwise it could not be read or was stopped
    std::array<int64_t, 7> Aciertos{}; ///< bets by hits over all draws
};

struct LogicaMultiEscrutinioMultiFichero {
    LogicaMultiEscrutinioMultiFichero(Sesion& s, Entorno& e) : sesion(s), entorno(e) {}

    Sesion& sesion;
    Entorno& entorno;

    // What the window shows.
    std::vector<std::string> lstFicheros; ///< full paths
    int Seleccionado = -1;                ///< in `lstFicheros`, -1 none
    std::string txtFicheroASCIISORTEOS;   ///< full path of the draws
    std::string lblApuCargadas = "0";
    bool chkTipoListadoPremios = false; ///< detailed reports in place of the summary
    std::string txtInforme;             ///< LF line ends
    bool Resumido = false;              ///< it is the summary: headings and a line a file
    std::string lblEstado = "Ventana de estado : -", lblImportando = "0";
    std::string lblEscrutando; ///< of the wait panel
    double lblProgressBar = 0; ///< 0 to 1
    bool Corriendo = false;    ///< the controls are disabled
    bool Escrutando = false;   ///< the wait panel and its stop show
    bool Cargando = false;     ///< the draws are being read

    std::string Titulo() const;
    bool Ocupada() const { return Corriendo || Cargando; }

    bool cmdADD();
    /// Adds these at the list's end; more than a thousand at once are refused.
    bool AnadirFicheros(const std::vector<std::string>& rutas);
    bool cmdDEL();
    void cmdDELALL();

    bool cmdDesdeFicheroSORTEOS();
    /// Reads the draws; a file that cannot be read, or has none, leaves those that were loaded.
    bool CargarSorteos(const std::string& ruta);
    void imgINICombinacionSORTEOS();

    bool imgEscrutar();
    /// Skips the file in hand; the run goes on with the next one.
    void cmdStop() { PararMultiFichero = true; }
    bool imgVerInformeResumenPremios();
    bool PuedeCerrar();

    std::vector<FicheroEscrutado> Escrutados; ///< of the last run
    bool PararMultiFichero = false;

  private:
    bool Validar();
    bool TratarFichero(size_t i);
    void AnotarCabecera(size_t i, const FicheroEscrutado& fichero);
    bool EscrutarFichero(size_t i, FicheroEscrutado& fichero);
    bool EscribirDetalle(size_t i, FicheroEscrutado& fichero);
    bool Recorrer(FicheroEscrutado& fichero, const std::function<bool(size_t, const CuentaAciertos&)>& alContar);

    Tabla SorteosFichero, ApuestasActuales;
    std::vector<Sorteado> sorteos_; ///< of the run
};

/// The files of a run with a heading, columns between tabs, for a spreadsheet.
std::string TablaEscrutados(const std::vector<FicheroEscrutado>& ficheros);
