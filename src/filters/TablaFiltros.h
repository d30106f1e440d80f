// The table of the nineteen filters: names, texts and the evaluator of each row.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Entorno.h"
#include "Reparto.h"
#include "Sesion.h"

/// Marks in `ApuestaEliminada` the live bets of `TablaApuestas` that the filter rejects and returns
/// how many it marked. Yields every 4000 bets; shows no messages; cannot be stopped.
using Evaluador = int32_t (*)(Sesion&, Entorno&);

/// The spread of the live bets of `TablaApuestas`, whose flags are those of `EstadoApuesta` after the
/// evaluator. Yields as it does.
using Repartidor = std::vector<ApartadoReparto> (*)(Sesion&, Entorno&);

struct DescripcionFiltro {
    std::string_view nombre;   ///< in the base file
    std::string_view Fila;     ///< row label, 22 characters
    std::string_view Progreso; ///< stands in the conditioned counter while the filter runs
    std::string_view Informe;  ///< heads its line in the report of eliminated bets
    std::string_view Resumen;  ///< heads its section in the summary
    std::string_view Bloques;  ///< name given to TextoBloquesUsados, empty for a filter without blocks
    bool ParaEurodreams;       ///< false for those that depend on the ticket of 49
    Evaluador Filtrar;
    Repartidor Repartir;
};

/// Row k of the list is entry k; this is also the order of evaluation.
extern const std::array<DescripcionFiltro, NFiltros> TablaFiltros;

/// Rows of the filters, for code that speaks of one of them.
enum FilaDe : int {
    kALTOSBAJOS,
    kDECENAS,
    kDISTANCIAS,
    kGRUPOS,
    kGRUPOSRELACIONADOS,
    kHOMOLOGOS,
    kPARESIMPARES,
    kSEGUIDOS,
    kSUMAS,
    kTERMINACIONES,
    kPOSICIONES,
    kEXTERIORESINTERIORES,
    kSUPERIORESINFERIORES,
    kCOLINDANTES,
    kSORTEOSANTERIORES,
    kSUMASPORTRIOS,
    kVALORACIONES,
    kCOEFICIENTERENTABILIDAD,
    kGRUPOSENTRELIMITES
};

/// The row label of any of the twenty rows.
std::string_view NombreFila(int k);

/// Whether row k's condition exists for the current game.
bool DisponibleEnJuego(int k, const EstadoTrabajo& trabajo);

/// "n de N" for the five filters with blocks, by the name that the table gives; empty for another name.
std::string TextoBloquesUsados(const Condiciones& condiciones, std::string_view nombre);
