#include "Registros.h"

#include <algorithm>

RegistroCOEFICIENTERENTABILIDAD::RegistroCOEFICIENTERENTABILIDAD() {
    static constexpr std::array<double, 49> Apostados{
        12.60, 11.87, 14.59, 12.66, 13.96, 12.27, 15.73, 12.90, 13.25, 11.89, 13.41, 13.36, 14.56,
        12.46, 13.59, 11.15, 12.36, 12.12, 11.84, 10.60, 12.58, 12.59, 14.28, 12.76, 14.10, 12.15,
        12.67, 11.87, 11.71, 10.63, 11.90, 12.02, 12.98, 11.65, 11.29, 12.25, 10.81, 11.04, 11.06,
        9.92,  11.07, 11.53, 11.00, 11.34, 11.93, 10.44, 12.51, 11.71, 11.05};
    std::copy(Apostados.begin(), Apostados.end(), PorcentajesApostados.begin() + 1);
    std::fill(PorcentajesReales.begin() + 1, PorcentajesReales.end(), 12.25);
}
