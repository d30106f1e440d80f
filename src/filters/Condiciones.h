// The conditions of a piece of work: the nineteen records, their rows and what they eliminated.
#pragma once

#include "Registros.h"
#include "Sorteos.h"
#include "lstFiltros.h"

/// What the user sets in the nineteen dialogs.
struct Parametros {
    RegistroALTOSBAJOS ALTOSBAJOS;
    RegistroDECENAS DECENAS;
    RegistroDISTANCIAS DISTANCIAS;
    RegistroGRUPOS GRUPOS;
    RegistroGRUPOSRELACIONADOS GRUPOSRELACIONADOS;
    RegistroHOMOLOGOS HOMOLOGOS;
    RegistroPARESIMPARES PARESIMPARES;
    RegistroSEGUIDOS SEGUIDOS;
    RegistroSUMAS SUMAS;
    RegistroTERMINACIONES TERMINACIONES;
    RegistroPOSICIONES POSICIONES;
    RegistroEXTERIORESINTERIORES EXTERIORESINTERIORES;
    RegistroSUPERIORESINFERIORES SUPERIORESINFERIORES;
    RegistroCOLINDANTES COLINDANTES;
    RegistroSORTEOSANTERIORES SORTEOSANTERIORES;
    RegistroSUMASPORTRIOS SUMASPORTRIOS;
    RegistroVALORACIONES VALORACIONES;
    RegistroCOEFICIENTERENTABILIDAD COEFICIENTERENTABILIDAD;
    RegistroGRUPOSENTRELIMITES GRUPOSENTRELIMITES;

    bool operator==(const Parametros&) const = default;
};

struct Condiciones : Parametros {
    /// The game's draws that SORTEOSANTERIORES judges by, as its dialog loaded them; empty when not loaded.
    Sorteos SorteosFiltro;

    ListaFiltros lstFiltros;
    std::array<int32_t, NFiltros> EliminadasPorFiltro{};
};
