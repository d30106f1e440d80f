#include "CondicionesEjemplo.h"

void ElegirCondicionesEjemplo(Condiciones& c) {
    c.ALTOSBAJOS.Bajos = c.ALTOSBAJOS.Altos = {0, 0, 1, 1, 1, 0, 0};
    for (auto& decena : c.DECENAS.Decena) decena = {1, 1, 1, 1, 0, 0, 0};
    c.DECENAS.FigurasDecenas = {0, 0, 1, 0, 1, 1, 1, 1, 1, 1};
    c.DISTANCIAS.Distancia = {{{1, 20}, {1, 20}, {1, 20}, {1, 20}, {1, 20}, {20, 47}}};
    c.HOMOLOGOS.HomologosAcertados = {0, 0, 1, 0, 0, 0, 0};
    c.PARESIMPARES.ParesActivos = {0, 0, 1, 1, 1, 0, 0};
    c.SEGUIDOS.NumerosSeguidos = {0, 1, 1, 0, 0, 0, 0};
    c.SEGUIDOS.FigurasSeguidos = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1};
    c.SUMAS.intervalos = {{{100, 140}, {150, 170}, {0, 0}, {180, 200}}};
    for (auto& digito : c.TERMINACIONES.TerminadosEn) digito = {1, 1, 1, 0, 0, 0, 0};
    c.TERMINACIONES.SumaMinima = 15;
    c.TERMINACIONES.SumaMaxima = 40;
    c.TERMINACIONES.FigurasTerminaciones = {0, 0, 0, 0, 1, 1, 1, 1, 1, 1};
    c.EXTERIORESINTERIORES.ExterioresInterioresActivos = {0, 0, 1, 1, 1, 0, 0};
    c.SUPERIORESINFERIORES.SuperioresInferioresActivos = {0, 0, 1, 1, 1, 0, 0};
    c.COLINDANTES.ColindantesAcertados = {1, 0, 1, 1, 1, 0, 0};
    c.SUMASPORTRIOS.intervalosT1 = {{{20, 60}, {65, 80}}};
    c.SUMASPORTRIOS.intervalosT2 = {{{80, 100}, {105, 130}}};
}
