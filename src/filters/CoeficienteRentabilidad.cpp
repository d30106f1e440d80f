#include "CoeficienteRentabilidad.h"

#include "modGeneral.h"

double ProbabilidadCR(const SeisPorcentajes& porcentajes) {
    double producto = 1.0;
    for (const double p : porcentajes)
        if (p > 0) producto = producto * p / 100;
    return RedondearPar(producto * 1e14) / 1e14;
}

int ClaseCR(double apostada, double real) {
    const double decimas = RedondearPar(real / apostada * 10) / 10 * 10;
    return decimas < 99 ? static_cast<int>(RedondearPar(decimas)) : 99;
}
