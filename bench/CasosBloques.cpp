#include "CasosBloques.h"

#include "Rnd.h"

namespace {

Azar AzarFijo() {
    Azar azar;
    azar.Sembrar(1);
    return azar;
}

MarcasNumeros DiezNumeros(Azar& azar) {
    MarcasNumeros marcas{};
    for (int i = 0; i < 10; ++i) marcas[static_cast<size_t>(1 + azar.Entero(49))] = 1;
    return marcas;
}

template <size_t Grupos>
void ElegirGRUPOS(Condiciones& c) {
    Azar azar = AzarFijo();
    c.GRUPOS = {};
    for (size_t g = 0; g < Grupos; ++g)
        c.GRUPOS.grupo[g] = {DiezNumeros(azar), {1, 1, 1, 1, 0, 0, 0}, {1, 0, 1, 1, 0, 1}};
}

template <size_t Grupos>
void ElegirGRUPOSENTRELIMITES(Condiciones& c) {
    Azar azar = AzarFijo();
    c.GRUPOSENTRELIMITES = {};
    for (size_t g = 0; g < Grupos; ++g) c.GRUPOSENTRELIMITES.grupo[g] = {DiezNumeros(azar), {0, 1, 1, 0, 0, 0, 0}};
    c.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES = Grupos * 2 / 5;
    c.GRUPOSENTRELIMITES.aciertosMaximoGRUPOSENTRELIMITES = Grupos * 2 / 3;
}

template <size_t Subgrupos, size_t NCondiciones>
void ElegirGRUPOSRELACIONADOS(Condiciones& c) {
    Azar azar = AzarFijo();
    c.GRUPOSRELACIONADOS = {};
    for (size_t i = 0; i < Subgrupos; ++i) c.GRUPOSRELACIONADOS.subgrupos[i] = DiezNumeros(azar);
    for (size_t i = 0; i < NCondiciones; ++i)
        c.GRUPOSRELACIONADOS.condiciones[i][1] = c.GRUPOSRELACIONADOS.condiciones[i][i % 3] = 1;
}

template <size_t Grupos>
void ElegirVALORACIONES(Condiciones& c) {
    Azar azar = AzarFijo();
    c.VALORACIONES = {};
    for (size_t g = 0; g < Grupos; ++g) {
        for (int16_t& marca : c.VALORACIONES.grupo[g].valoraciones) marca = static_cast<int16_t>(1 + azar.Entero(100));
        c.VALORACIONES.grupo[g].intervalos = {{{100, 200}, {220, 260}, {280, 320}, {340, 600}}};
    }
}

void ElegirPOSICIONES(Condiciones& c) {
    for (size_t k = 0; k < 6; ++k)
        for (size_t n = 1; n <= 49; ++n) c.POSICIONES.Bola[k][n] = (n * 7 + k) % 9 != 0;
}

// Percentages from `minimo` to `minimo` + `ancho` in both tables; every other coefficient is chosen, so
// that each edge of a class counts.
void ElegirCR(Condiciones& c, double minimo, double ancho) {
    Azar azar = AzarFijo();
    RegistroCOEFICIENTERENTABILIDAD& registro = c.COEFICIENTERENTABILIDAD;
    for (size_t n = 1; n <= 49; ++n) {
        registro.PorcentajesApostados[n] = minimo + ancho * azar.Rnd();
        registro.PorcentajesReales[n] = minimo + ancho * azar.Rnd();
    }
    for (size_t i = 0; i < 100; ++i) registro.RangosCR[i] = i % 2;
}

} // namespace

const std::vector<CasoBloques>& CasosBloques() {
    static const std::vector<CasoBloques> casos{
        {"POSICIONES", kPOSICIONES, 4, ElegirPOSICIONES},
        {"VALORACIONES, 1 grupo", kVALORACIONES, 4, ElegirVALORACIONES<1>},
        {"VALORACIONES, 3 grupos", kVALORACIONES, 12, ElegirVALORACIONES<3>},
        {"GRUPOS, 10 con posiciones", kGRUPOS, 7, ElegirGRUPOS<10>},
        {"GRUPOSRELACIONADOS, 3 y 2", kGRUPOSRELACIONADOS, 6, ElegirGRUPOSRELACIONADOS<3, 2>},
        {"GRUPOSRELACIONADOS, 6 y 6", kGRUPOSRELACIONADOS, 25, ElegirGRUPOSRELACIONADOS<6, 6>},
        {"GRUPOSENTRELIMITES, 20", kGRUPOSENTRELIMITES, 12, ElegirGRUPOSENTRELIMITES<20>},
        {"GRUPOSENTRELIMITES, 210", kGRUPOSENTRELIMITES, 70, ElegirGRUPOSENTRELIMITES<210>},
        {"COEFICIENTERENTABILIDAD, 9 a 16 %", kCOEFICIENTERENTABILIDAD, 13, [](Condiciones& c) { ElegirCR(c, 9, 7); }},
        {"COEFICIENTERENTABILIDAD, 4 a 25 %", kCOEFICIENTERENTABILIDAD, 13, [](Condiciones& c) { ElegirCR(c, 4, 21); }},
        {"COEFICIENTERENTABILIDAD, 0,2 a 0,5 %", kCOEFICIENTERENTABILIDAD, 13,
         [](Condiciones& c) { ElegirCR(c, 0.2, 0.3); }},
    };
    return casos;
}
