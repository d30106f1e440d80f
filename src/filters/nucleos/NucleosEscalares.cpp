// The scalar twins of the kernels.
#include <algorithm>
#include <cstdlib>

#include "Escalares.h"

namespace {

using Seis = SeisValores;

template <class Prueba>
int32_t Recorrer(const Tramo& tramo, const PorPosicion& tabla, Prueba pasa) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) { return pasa(Valores(tramo, i, tabla)); });
}

int Suma(const Seis& v, size_t desde, size_t hasta) {
    int suma = 0;
    for (size_t r = desde; r < hasta; ++r) suma += v[r];
    return suma;
}

bool EnMapa(const MapaSumas& mapa, int suma) {
    return (mapa[static_cast<size_t>(suma / 8)] >> (suma % 8) & 1) != 0;
}

} // namespace

int32_t NucleoCuentaEscalar(const Tramo& tramo, const TablasCuenta& t) {
    return Recorrer(tramo, t.Valor,
                    [&](const Seis& v) { return t.Pasa[static_cast<size_t>(Suma(v, 0, 6) & 15)] != 0; });
}

int32_t NucleoClasesEscalar(const Tramo& tramo, const TablasClases& t) {
    return Recorrer(tramo, t.Clase, [&](const Seis& clases) {
        std::array<size_t, 10> cuenta{};
        for (const int c : clases) ++cuenta[static_cast<size_t>(c)];
        int codigo = 0;
        for (size_t c = 0; c < 10; ++c) codigo = std::min(codigo + t.Codigo[c][cuenta[c]], 255);
        return codigo < TablasClases::Rechazo && t.Pasa[static_cast<size_t>(codigo & 15)] != 0 &&
               t.SumaPasa[static_cast<size_t>(Suma(clases, 0, 6))] != 0;
    });
}

int32_t NucleoSumasEscalar(const Tramo& tramo, const TablasSumas& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) { return EnMapa(t.Mapa, Suma(n, 0, 6)); });
}

int32_t NucleoTriosEscalar(const Tramo& tramo, const TablasTrios& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) {
        return EnMapa(t.Primeros, Suma(n, 0, 3)) && EnMapa(t.Ultimos, Suma(n, 3, 6));
    });
}

int32_t NucleoDistanciasEscalar(const Tramo& tramo, const TablasDistancias& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) {
        for (size_t k = 0; k < 6; ++k) {
            const int distancia = (k < 5 ? n[k + 1] - n[k] : n[5] - n[0]) - t.Minimo[k];
            if (distancia < 0 || distancia > t.Ancho[k]) return false;
        }
        return true;
    });
}

int32_t NucleoSeguidosEscalar(const Tramo& tramo, const TablasSeguidos& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) {
        size_t patron = 0;
        for (size_t k = 0; k < 5; ++k) patron |= static_cast<size_t>(n[k + 1] == n[k] + 1) << k;
        return t.Pasa[patron] != 0;
    });
}

int32_t NucleoColindantesEscalar(const Tramo& tramo, const TablasColindantes& t) {
    const auto toca = [&](int a, int b) {
        const auto diferencia = static_cast<size_t>(std::abs(a - b));
        return diferencia < t.Toca.size() && t.Toca[diferencia] != 0;
    };
    return Recorrer(tramo, t.Celda, [&](const Seis& celdas) {
        const auto cuenta = std::count_if(celdas.begin(), celdas.end(), [&](int a) {
            return std::any_of(celdas.begin(), celdas.end(), [&](int b) { return toca(a, b); });
        });
        return t.Pasa[static_cast<size_t>(cuenta)] != 0;
    });
}
