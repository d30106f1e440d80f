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

// A group with marks or intervals while it is counted, by the sum from `Minimo` on.
struct GrupoContado {
    std::string Nombre;
    TablasValoraciones Tablas;
    int32_t Minimo;
    Cuentas PorSuma;
    CuentaPalabras Palabras{};

    bool EnPalabras() const { return Tablas.SumaEn16Bits && PorSuma.size() <= CuentaPalabras::Valores; }
};

std::vector<GrupoContado> GruposParaContar(const Sesion& sesion) {
    std::vector<GrupoContado> contados;
    const auto& grupos = sesion.condiciones.VALORACIONES.grupo;
    for (size_t g = 0; g < grupos.size(); ++g) {
        if (!TieneAlgo(grupos[g])) continue;
        const auto [minimo, maximo] = Alcance(sesion.trabajo, grupos[g]);
        contados.push_back({"Grupo " + std::to_string(g + 1), Preparar(sesion.trabajo, grupos[g]), minimo,
                            Cuentas(static_cast<size_t>(maximo - minimo) + 1)});
    }
    return contados;
}

void ContarUnaAUna(const Tramo& tramo, GrupoContado& grupo) {
    for (int64_t i = 0; i < tramo.n; ++i)
        if (tramo.eliminada[i] != ApuestaMuerta)
            grupo.PorSuma[static_cast<size_t>(SumaDeMarcas(tramo, i, grupo.Tablas.Marca) - grupo.Minimo)].Sumar(
                {1, tramo.eliminada[i] == ApuestaPasa});
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
    std::vector<GrupoContado> grupos = GruposParaContar(sesion);
    BarrerContando(sesion.trabajo, entorno, [&](const Tramo& tramo) {
        for (GrupoContado& grupo : grupos) {
            if (grupo.EnPalabras())
                NucleoContarSumas(tramo, grupo.Tablas.Marca, static_cast<int16_t>(grupo.Minimo), grupo.Palabras);
            else
                ContarUnaAUna(tramo, grupo);
        }
    });
    Apartados apartados;
    for (GrupoContado& grupo : grupos) {
        if (grupo.EnPalabras())
            for (size_t v = 0; v < grupo.PorSuma.size(); ++v) grupo.PorSuma[v] = grupo.Palabras.De(v);
        apartados.push_back(ApartadoRecortado(std::move(grupo.Nombre), grupo.PorSuma, grupo.Minimo));
    }
    return apartados;
}
