// The state of the current piece of work: game, ticket, bet tables, counters and reduction settings.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Juegos.h"
#include "Tabla.h"

/// Positions of the list of base modes.
enum : int { PronosticoManual = 0, PronosticoAleatorio = 1, PronosticoDesdeArchivo = 2 };

/// Positions of the list of digit modes.
enum : int { AlDirecto = 0, Secuenciales = 1, Aleatorios = 2 };
inline constexpr std::array<std::string_view, 3> NombresTipoReintegro{"Al directo", "Secuenciales", "Aleatorios"};

/// The three counts of the main window. While a filter runs, or an import analyses, `Progreso`
/// holds the text that stands in place of the conditioned count.
struct Contadores {
    int32_t Iniciales = 0;
    int32_t Condicionadas = 0;
    int32_t Reducidas = 0; ///< 0 tells everybody that no system is available
    std::string Progreso;
};

struct AjustesReduccion {
    int16_t TipoReduccion = 0; ///< 0 none, 1 "al 5" ... 4 "al 2"
    int16_t PorcentajeReduccion = 100;
    int32_t NApuestasExactas = 1;
    int16_t ActivarNumeroApuestas = 0; ///< flags, non-zero = on
    int16_t ActivarCiclos = 1;
    int16_t Aleatorio = 0;
    int16_t ApuestasExactas = 0;

    bool operator==(const AjustesReduccion&) const = default;
};

/// What is being written, for the wait panel.
struct Espera {
    bool Visible = false;
    double Fraccion = 0; ///< 0 to 1
};

struct EstadoTrabajo {
    // Game and ticket. Marks are indexed by the number or digit itself.
    int cboTipoJuego = PRIMITIVA;
    int cboTipoCombinacion = PronosticoManual;
    int cboTipoReintegro = AlDirecto;
    std::array<bool, NumeroMaximoBoleto + 1> lblNumero{};
    std::array<bool, 10> lblReintegro{};
    bool chkReintegros = true;
    bool chkGuardarAutomaticamente = false;
    std::string txtFicheroASCII; ///< full path of the imported file, empty if none

    // The base, rebuilt from the marks on demand.
    int16_t NumerosBase = 0;
    std::array<uint8_t, NumeroMaximoBoleto + 1> BaseNumeros{}; ///< 1 to NumerosBase, ascending

    // Bet tables. `TablaApuestas` and `ApuestasCondicionadas` hold positions in `BaseNumeros`,
    // `ApuestasReducidas` and `ApuestasImportadas` real numbers with the digit in row 7.
    int32_t ApuestasEnTabla = 0;
    Tabla TablaApuestas;
    Tabla ApuestaEliminada; ///< one row: 0 alive, 1 eliminated; the bytes behind the last bet are 1
    Tabla ApuestasCondicionadas;
    Tabla ApuestasReducidas;
    Tabla ApuestasImportadas;
    int32_t NApuestasImportadas = 0;
    uint32_t Importacion = 0; ///< grows with every import
    bool SinEliminadas = false;

    AjustesReduccion Reduccion;
    Contadores Contador;
    bool CombinacionGuardada = true;
    std::string Titulo = "TOMBOLERA 11.1";

    // What runs now.
    bool EstadoCalculando = false;
    bool FormularioBloqueado = false;
    Espera picVentanaEspera;

    const Juego& JuegoActual() const { return Juegos[static_cast<size_t>(cboTipoJuego)]; }
    std::string TipoJuego() const { return std::string(JuegoActual().Nombre); }
    int16_t NumeroMaximo() const { return JuegoActual().NumeroMaximo; }
};

/// The title without a file, and what stands before a file's name in it.
inline constexpr std::string_view TituloPrograma = "TOMBOLERA 11.1";
inline constexpr std::string_view PrefijoTitulo = "TOMBOLERA 11.1 - Fichero : ";

/// The current file's name as the title tells it: the text behind ": ". "Sin guardar.xml" when the
/// title names none.
std::string NombreFicheroActual(const EstadoTrabajo& trabajo);
