#include <cmath>

#include "CasosFiltros.h"
#include "Evaluadores.h"
#include "FiltrosDeBloquesLiterales.h"

namespace {

// Groups of few and of many numbers; flags other than 0 and 1 mean nothing.
void SortearNumeros(Dados& s, MarcasNumeros& numeros) {
    const int32_t densidad = s.Entre(1, 12);
    for (size_t n = 1; n < numeros.size(); ++n)
        numeros[n] = static_cast<uint8_t>(s.UnaDe(40) ? s.Entre(2, 255) : s.UnaDe(densidad));
}

void SortearAciertos(Dados& s, TablaAciertos& aciertos) {
    for (uint8_t& marca : aciertos) marca = static_cast<uint8_t>(s.UnaDe(30) ? 2 : !s.UnaDe(4));
}

void SortearGRUPOS(Dados& s, Condiciones& c) {
    const int32_t usados = s.UnaDe(4) ? s.Entre(9, 30) : s.Entre(1, 8);
    for (int32_t i = 0; i < usados; ++i) {
        GrupoNumeros& grupo = c.GRUPOS.grupo[static_cast<size_t>(s.Entre(0, 209))];
        if (!s.UnaDe(20)) SortearNumeros(s, grupo.numeros);
        if (usados > 8)
            grupo.aciertos = {1, 1, 1, 1, s.UnaDe(9), 1, 1};
        else
            SortearAciertos(s, grupo.aciertos);
        for (uint8_t& posicion : grupo.posiciones) posicion = static_cast<uint8_t>(s.UnaDe(3) ? s.Entre(0, 3) : 1);
    }
}

void SortearGRUPOSENTRELIMITES(Dados& s, Condiciones& c) {
    const bool todos = s.UnaDe(5);
    const int32_t usados = todos ? 210 : s.Entre(0, 40);
    for (int32_t i = 0; i < usados; ++i) {
        GrupoLimites& grupo = c.GRUPOSENTRELIMITES.grupo[static_cast<size_t>(todos ? i : s.Entre(0, 209))];
        SortearNumeros(s, grupo.numeros);
        SortearAciertos(s, grupo.aciertos);
    }
    if (s.UnaDe(5)) return;
    c.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES = s.UnaDe(10) ? -300000 : usados / 3 + s.Entre(0, usados / 3);
    c.GRUPOSENTRELIMITES.aciertosMaximoGRUPOSENTRELIMITES = s.UnaDe(10)   ? 466
                                                            : s.UnaDe(10) ? -1
                                                                          : usados / 2 + s.Entre(0, usados / 2);
}

// Groups with gaps, with more conditions than subgroups and without conditions, as a base file may
// bring them.
void SortearGRUPOSRELACIONADOS(Dados& s, Condiciones& c) {
    for (int32_t usados = s.Entre(1, 3); usados > 0; --usados) {
        const auto b = static_cast<size_t>(6 * s.Entre(0, 59));
        const bool raro = s.UnaDe(6);
        const int32_t subgrupos = s.Entre(1, 6), condiciones = s.Entre(1, raro ? 6 : subgrupos);
        for (size_t fila = 0; fila < 6; ++fila) {
            const auto i = static_cast<int32_t>(fila);
            if (raro ? s.UnaDe(2) : i < subgrupos) SortearNumeros(s, c.GRUPOSRELACIONADOS.subgrupos[b + fila]);
            if (raro ? s.UnaDe(3) : i < condiciones)
                for (uint8_t& marca : c.GRUPOSRELACIONADOS.condiciones[b + fila]) marca = s.UnaDe(2);
        }
    }
}

void SortearVALORACIONES(Dados& s, Condiciones& c) {
    for (int32_t usados = s.Entre(1, 3); usados > 0; --usados) {
        GrupoValoraciones& grupo = c.VALORACIONES.grupo[static_cast<size_t>(s.Entre(0, 9))];
        const bool deFichero = s.UnaDe(4);
        for (size_t n = 1; n <= 49; ++n)
            grupo.valoraciones[n] = deFichero ? (s.UnaDe(2) ? s.Entre(-32768, 32767) : s.Entre(-6000, 6000))
                                              : (s.UnaDe(5) ? int16_t{0} : s.Entre(1, 100));
        s.LlenarIntervalos(grupo.intervalos, deFichero ? -30000 : 100, deFichero ? 30000 : 450);
    }
}

// From percentages that a ticket really has to those that only a base file could bring: with products
// that the rounding to 14 decimals distorts or wipes out, and with products out of all range.
double SortearPorcentaje(Dados& s, int clase) {
    const double azar = s.azar.Rnd();
    switch (clase) {
    case 0:
        return 9 + 7 * azar;
    case 1:
        return s.UnaDe(4) ? 0 : s.UnaDe(10) ? -3 : 1 + 40 * azar;
    case 2:
        return 0.05 + azar;
    case 3:
        return s.UnaDe(3) ? 150 * azar : std::pow(10, -12 + 14 * azar);
    case 4:
        return s.Entre(1, 40);
    default:
        return s.UnaDe(4) ? std::pow(10, -320 + 620 * azar) : 10;
    }
}

void SortearCOEFICIENTERENTABILIDAD(Dados& s, Condiciones& c) {
    RegistroCOEFICIENTERENTABILIDAD& registro = c.COEFICIENTERENTABILIDAD;
    if (!s.UnaDe(8)) {
        const int apostados = s.Entre(0, 5), reales = s.UnaDe(2) ? apostados : s.Entre(0, 5);
        for (size_t n = 1; n <= 49; ++n) {
            registro.PorcentajesApostados[n] = SortearPorcentaje(s, apostados);
            if (!s.UnaDe(3)) registro.PorcentajesReales[n] = SortearPorcentaje(s, reales);
        }
    }
    const int32_t densidad = s.Entre(1, 4);
    for (size_t i = s.UnaDe(20) ? 100 : 0; i <= 100; ++i)
        registro.RangosCR[i] = static_cast<uint8_t>(i % 37 == 36 ? 2 : s.UnaDe(densidad));
}

} // namespace

const std::vector<CasoEvaluador>& CasosDeBloques() {
    static const std::vector<CasoEvaluador> casos{
        {"GRUPOS", FiltrarGRUPOS, LiteralGRUPOS, SortearGRUPOS},
        {"GRUPOSENTRELIMITES", FiltrarGRUPOSENTRELIMITES, LiteralGRUPOSENTRELIMITES, SortearGRUPOSENTRELIMITES},
        {"GRUPOSRELACIONADOS", FiltrarGRUPOSRELACIONADOS, LiteralGRUPOSRELACIONADOS, SortearGRUPOSRELACIONADOS},
        {"POSICIONES", FiltrarPOSICIONES, LiteralPOSICIONES,
         [](Dados& s, Condiciones& c) {
             for (MarcasNumeros& bola : c.POSICIONES.Bola)
                 if (!s.UnaDe(3))
                     for (uint8_t& marca : bola) marca = static_cast<uint8_t>(s.UnaDe(20) ? 2 : !s.UnaDe(4));
         }},
        {"VALORACIONES", FiltrarVALORACIONES, LiteralVALORACIONES, SortearVALORACIONES},
        {"COEFICIENTERENTABILIDAD", FiltrarCOEFICIENTERENTABILIDAD, LiteralCOEFICIENTERENTABILIDAD,
         SortearCOEFICIENTERENTABILIDAD},
    };
    return casos;
}
