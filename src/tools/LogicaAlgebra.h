// The algebra of combinations: two systems loaded from files make a third, or one is put in order.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "Entorno.h"
#include "Sesion.h"

/// Positions of `optTipo`.
enum : int { OrdenarSistema1, SumaDirecta, SumaSinRepetidas, Interseccion, Resta };

/// A system as it was loaded: each bet with its numbers ascending. Row 7 plays no part.
struct SistemaCargado {
    Tabla Apuestas;
    std::string txtFicheroASCII;      ///< whole path of its file, empty if none
    std::string txtApuCargadas;       ///< how many bets, or how many so far
    std::array<bool, 50> lblNumero{}; ///< by number, those that occur
    std::array<int32_t, 50> AparicionesNumero{};

    int32_t N() const { return static_cast<int32_t>(Apuestas.Apuestas()); }
    /// "12 Números".
    std::string lblTipoCombinacion() const;
};

/// A result is no system of the main window: nothing there changes.
struct LogicaAlgebra {
    Sesion& sesion;
    Entorno& entorno;

    std::array<SistemaCargado, 2> Sistema{};
    int optTipo = OrdenarSistema1;
    int cboTipoOrdenacion = 0;                       ///< 0 ascending, 1 descending
    std::vector<std::string> txtVentanaResultados{}; ///< the log, a line each
    Tabla SistemaResultado{};                        ///< rows 1 to 6
    int32_t NResultado = 0;
    bool Trabajando = false; ///< nothing but the stop and repaints until it ends
    bool Calculando = false; ///< what can be stopped is under way
    bool detener = false;    ///< the stop
    Espera picVentanaEspera{};

    void Abrir();
    std::string Titulo() const;
    static std::string TextoTipo(int tipo);
    static std::string TextoOrdenacion(int orden);

    /// Asks for the file of system `i` + 1 and loads it. A failure shows the reader's box and leaves the
    /// system empty.
    void cmdDesdeFichero(size_t i);
    void Cargar(size_t i, const std::string& ruta);
    /// Files dropped beside the systems' own places: two are the two systems, one is the second if that
    /// alone is missing, else the first.
    void Soltar(const std::vector<std::string>& rutas);
    void imgINICombinacion(size_t i);
    /// Clears the log.
    void ElegirTipo(int tipo);

    /// Runs the chosen operation and fills the log; false when a check, the stop or the memory ended it.
    bool imgCalcular();
    /// Asks for a file and saves the result; true when it was saved.
    bool imgGuardar();
    void Detener();

    /// Refused while something runs.
    bool PuedeCerrar() const { return !Trabajando; }

    /// The log as a table: what stands before and behind the last " : " of a line, a tab between.
    std::string Copiar() const;

  private:
    bool Operar();
    bool OperarConMemoria();
    void Anotar();
    std::string Miles(int64_t n) const;
};
