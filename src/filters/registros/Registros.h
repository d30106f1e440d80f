// The parameters of the nineteen filters. Each record starts with the defaults of the reset; figures
// are flags in the order of the lists in Figuras.h, stored from index 0.
#pragma once

#include "Comunes.h"

struct RegistroALTOSBAJOS {
    TablaAciertos Bajos{}; ///< by count of numbers from 1 to 24
    TablaAciertos Altos{}; ///< by count of numbers from 25 on
    bool operator==(const RegistroALTOSBAJOS&) const = default;
};

struct RegistroDECENAS {
    std::array<TablaAciertos, 5> Decena{}; ///< 1-9, 10-19, 20-29, 30-39, 40-49
    std::array<uint8_t, 10> FigurasDecenas{};
    bool operator==(const RegistroDECENAS&) const = default;
};

/// Minimum and maximum of the differences of neighbours (1 to 2, 2 to 3, ... 5 to 6) and, last, of the
/// whole bet (1 to 6).
struct RegistroDISTANCIAS {
    std::array<Intervalo, 6> Distancia{};
    bool operator==(const RegistroDISTANCIAS&) const = default;
};

struct GrupoNumeros {
    MarcasNumeros numeros{};
    TablaAciertos aciertos{};
    std::array<uint8_t, 6> posiciones{1, 1, 1, 1, 1, 1};
    bool operator==(const GrupoNumeros&) const = default;
};

struct RegistroGRUPOS {
    static constexpr int Grupos = 210;
    std::array<GrupoNumeros, Grupos> grupo{};
    bool operator==(const RegistroGRUPOS&) const = default;
};

/// Six subgroups and six conditions for each of the 60 groups: slot (g - 1) x 6 + s - 1.
struct RegistroGRUPOSRELACIONADOS {
    static constexpr int Grupos = 60, PorGrupo = 6;
    std::array<MarcasNumeros, Grupos * PorGrupo> subgrupos{};
    std::array<TablaAciertos, Grupos * PorGrupo> condiciones{};
    bool operator==(const RegistroGRUPOSRELACIONADOS&) const = default;
};

struct RegistroHOMOLOGOS {
    TablaAciertos HomologosAcertados{};
    bool operator==(const RegistroHOMOLOGOS&) const = default;
};

struct RegistroPARESIMPARES {
    TablaAciertos ParesActivos{};
    bool operator==(const RegistroPARESIMPARES&) const = default;
};

struct RegistroSEGUIDOS {
    TablaAciertos NumerosSeguidos{}; ///< by the length of the longest run
    std::array<uint8_t, 11> FigurasSeguidos{};
    bool operator==(const RegistroSEGUIDOS&) const = default;
};

struct RegistroSUMAS {
    std::array<Intervalo, 10> intervalos{};
    bool operator==(const RegistroSUMAS&) const = default;
};

struct RegistroTERMINACIONES {
    std::array<TablaAciertos, 10> TerminadosEn{}; ///< by last digit
    uint8_t SumaMinima = 2, SumaMaxima = 53;      ///< always tested while the filter is on
    std::array<uint8_t, 10> FigurasTerminaciones{};
    bool operator==(const RegistroTERMINACIONES&) const = default;
};

struct RegistroPOSICIONES {
    std::array<MarcasNumeros, 6> Bola{};
    bool operator==(const RegistroPOSICIONES&) const = default;
};

struct RegistroEXTERIORESINTERIORES {
    TablaAciertos ExterioresInterioresActivos{};
    bool operator==(const RegistroEXTERIORESINTERIORES&) const = default;
};

struct RegistroSUPERIORESINFERIORES {
    TablaAciertos SuperioresInferioresActivos{};
    bool operator==(const RegistroSUPERIORESINFERIORES&) const = default;
};

struct RegistroCOLINDANTES {
    TablaAciertos ColindantesAcertados{};
    bool operator==(const RegistroCOLINDANTES&) const = default;
};

struct SorteoDelAnio {
    int16_t anio = 0, numero = 1;
    bool operator==(const SorteoDelAnio&) const = default;
};

struct BloqueSorteos {
    SorteoDelAnio DESDE, HASTA; ///< the reset sets both years to the current one
    int16_t sorteoDIAS = 0;     ///< 0 all, otherwise 1 Monday to 6 Saturday
    int32_t aciertosMinimoSORTEOS = 0, aciertosMaximoSORTEOS = 0;
    TablaAciertos acertarEN{};
    bool operator==(const BloqueSorteos&) const = default;
};

struct RegistroSORTEOSANTERIORES {
    static constexpr int Grupos = 20;
    std::array<BloqueSorteos, Grupos> grupo{};
    bool operator==(const RegistroSORTEOSANTERIORES&) const = default;
};

struct RegistroSUMASPORTRIOS {
    std::array<Intervalo, 5> intervalosT1{}; ///< sum of the three first numbers
    std::array<Intervalo, 5> intervalosT2{}; ///< of the three last
    bool operator==(const RegistroSUMASPORTRIOS&) const = default;
};

struct GrupoValoraciones {
    std::array<Intervalo, 4> intervalos{};
    std::array<int16_t, 50> valoraciones{}; ///< by number, 0 = no mark
    bool operator==(const GrupoValoraciones&) const = default;
};

struct RegistroVALORACIONES {
    static constexpr int Grupos = 10;
    std::array<GrupoValoraciones, Grupos> grupo{};
    bool operator==(const RegistroVALORACIONES&) const = default;
};

struct RegistroCOEFICIENTERENTABILIDAD {
    RegistroCOEFICIENTERENTABILIDAD();
    std::array<double, 50> PorcentajesApostados{}; ///< by number, percent
    std::array<double, 50> PorcentajesReales{};
    std::array<uint8_t, 101> RangosCR{}; ///< flag i allows the coefficient i / 10; 100 is never used
    bool operator==(const RegistroCOEFICIENTERENTABILIDAD&) const = default;
};

struct GrupoLimites {
    MarcasNumeros numeros{};
    TablaAciertos aciertos{};
    bool operator==(const GrupoLimites&) const = default;
};

struct RegistroGRUPOSENTRELIMITES {
    static constexpr int Grupos = 210;
    std::array<GrupoLimites, Grupos> grupo{};
    int32_t aciertosMinimoGRUPOSENTRELIMITES = 0, aciertosMaximoGRUPOSENTRELIMITES = Grupos;
    bool operator==(const RegistroGRUPOSENTRELIMITES&) const = default;
};
