#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "Apartados.h"
#include "Evaluadores.h"
#include "Intervalos.h"
#include "NucleosValores.h"
#include "Repartidores.h"

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

bool TieneAlgo(const GrupoValoraciones& grupo) {
    return AlgunoEnUso(grupo.intervalos) ||
           std::any_of(grupo.valoraciones.begin(), grupo.valoraciones.end(), [](int16_t marca) { return marca != 0; });
}

// The sums that six numbers of the base can reach.
std::pair<int32_t, int32_t> Alcance(const EstadoTrabajo& trabajo, const GrupoValoraciones& grupo) {
    std::vector<int32_t> marcas;
    for (size_t p = 1; p <= static_cast<size_t>(trabajo.NumerosBase); ++p)
        marcas.push_back(grupo.valoraciones[trabajo.BaseNumeros[p]]);
    if (marcas.size() < 6) return {0, 0};
    std::sort(marcas.begin(), marcas.end());
    return {std::accumulate(marcas.begin(), marcas.begin() + 6, 0), std::accumulate(marcas.end() - 6, marcas.end(), 0)};
}

Cuentas ContarSumas(EstadoTrabajo& trabajo, Entorno& entorno, const TablasValoraciones& tablas, int32_t minimo,
                    size_t valores) {
    if (!tablas.SumaEn16Bits || valores > CuentaPalabras::Valores)
        return ContarUnaAUna(trabajo, entorno, valores, [&](const Tramo& tramo, int64_t i) {
            return SumaDeMarcas(tramo, i, tablas.Marca) - minimo;
        });
    const FilasDeTramo<2> filas;
    CuentaPalabras cuenta;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasPalabras(tramo, tablas.Marca, static_cast<int16_t>(minimo), filas.Todas());
        NucleoContarBytes(tramo, filas[0], filas[1], cuenta);
    });
    Cuentas cuentas;
    for (size_t v = 0; v < valores; ++v) cuentas.push_back(cuenta.De(v));
    return cuentas;
}

} // namespace

int32_t FiltrarVALORACIONES(Sesion& sesion, Entorno& entorno) {
    std::vector<TablasValoraciones> tablas;
    for (const GrupoValoraciones& grupo : sesion.condiciones.VALORACIONES.grupo)
        if (AlgunoEnUso(grupo.intervalos)) tablas.push_back(Preparar(sesion.trabajo, grupo));
    if (tablas.empty()) return 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoValoraciones(tramo, tablas); });
}

// Groups with marks and no interval yet are told too.
Apartados RepartirVALORACIONES(Sesion& sesion, Entorno& entorno) {
    Apartados apartados;
    const auto& grupos = sesion.condiciones.VALORACIONES.grupo;
    for (size_t g = 0; g < grupos.size(); ++g) {
        if (!TieneAlgo(grupos[g])) continue;
        const auto [minimo, maximo] = Alcance(sesion.trabajo, grupos[g]);
        const Cuentas cuentas = ContarSumas(sesion.trabajo, entorno, Preparar(sesion.trabajo, grupos[g]), minimo,
                                            static_cast<size_t>(maximo - minimo) + 1);
        apartados.push_back(ApartadoRecortado("Grupo " + std::to_string(g + 1), cuentas, minimo));
    }
    return apartados;
}
