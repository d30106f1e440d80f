#include <algorithm>
#include <cstdlib>

#include "Evaluadores.h"
#include "Intervalos.h"
#include "NucleosValores.h"

namespace {

TablasValoraciones Preparar(const EstadoTrabajo& trabajo, const GrupoValoraciones& grupo) {
    TablasValoraciones tablas;
    for (size_t p = 1; p <= static_cast<size_t>(trabajo.NumerosBase); ++p) {
        const int16_t marca = grupo.valoraciones[trabajo.BaseNumeros[p]];
        tablas.Marca.Poner(p, marca);
        if (std::abs(marca) > TablasValoraciones::MayorMarca) tablas.SumaEn16Bits = false;
    }
    std::copy_if(grupo.intervalos.begin(), grupo.intervalos.end(), std::back_inserter(tablas.Intervalos),
                 [](const Intervalo& i) { return i.EnUso(); });
    return tablas;
}

} // namespace

int32_t FiltrarVALORACIONES(Sesion& sesion, Entorno& entorno) {
    std::vector<TablasValoraciones> tablas;
    for (const GrupoValoraciones& grupo : sesion.condiciones.VALORACIONES.grupo)
        if (AlgunoEnUso(grupo.intervalos)) tablas.push_back(Preparar(sesion.trabajo, grupo));
    if (tablas.empty()) return 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoValoraciones(tramo, tablas); });
}
