// The guarantees as they are told: every candidate against every bet, number by number.
#pragma once

#include <vector>

#include "EstadoTrabajo.h"
#include "TablaGarantias.h"

using Numeros = std::vector<int>;

/// All k-subsets of the base's numbers, in lexicographic order.
inline std::vector<Numeros> SubconjuntosLiteral(const EstadoTrabajo& trabajo, int k) {
    std::vector<Numeros> subconjuntos;
    Numeros posiciones;
    const auto elegir = [&](const auto& seguir, int desde) -> void {
        if (static_cast<int>(posiciones.size()) == k) {
            Numeros numeros;
            for (const int p : posiciones) numeros.push_back(trabajo.BaseNumeros[static_cast<size_t>(p)]);
            subconjuntos.push_back(numeros);
            return;
        }
        for (int p = desde; p <= trabajo.NumerosBase; ++p) {
            posiciones.push_back(p);
            seguir(seguir, p + 1);
            posiciones.pop_back();
        }
    };
    elegir(elegir, 1);
    return subconjuntos;
}

inline int AciertosLiteral(const Numeros& candidata, const Tabla& sistema, int64_t apuesta) {
    int aciertos = 0;
    for (const int numero : candidata)
        for (int r = 1; r <= 6; ++r)
            if (sistema(r, apuesta) == numero) {
                ++aciertos;
                break;
            }
    return aciertos;
}

inline TablaGarantias GarantiasLiteral(const std::vector<Numeros>& candidatas, const Tabla& sistema) {
    TablaGarantias tabla;
    for (const Numeros& candidata : candidatas) {
        int contador[7] = {};
        for (int64_t b = 1; b <= sistema.Apuestas(); ++b) ++contador[AciertosLiteral(candidata, sistema, b)];
        int clase = -1;
        for (int h = 0; h <= 6; ++h)
            if (contador[h] > 0) clase = h;
        if (clase < 0) continue;
        const auto c = static_cast<size_t>(clase);
        ++tabla.CasosClase[c];
        for (size_t h = 0; h <= c; ++h) {
            if (contador[h] > tabla.MaximoBets[c][h]) tabla.MaximoBets[c][h] = contador[h];
            if (contador[h] < tabla.MinimoBets[c][h]) tabla.MinimoBets[c][h] = contador[h];
        }
    }
    return tabla;
}

/// How many y-subsets have a bet with at least x hits, at x from 2 to y.
inline std::vector<int> MiniGarantiasLiteral(const EstadoTrabajo& trabajo, int y) {
    std::vector<int> contador(static_cast<size_t>(y) + 1);
    for (const Numeros& subconjunto : SubconjuntosLiteral(trabajo, y)) {
        std::vector<bool> alcanzado(static_cast<size_t>(y) + 1);
        for (int64_t b = 1; b <= trabajo.ApuestasReducidas.Apuestas(); ++b) {
            const int aciertos = AciertosLiteral(subconjunto, trabajo.ApuestasReducidas, b);
            for (int x = 2; x <= aciertos; ++x)
                if (!alcanzado[static_cast<size_t>(x)]) {
                    alcanzado[static_cast<size_t>(x)] = true;
                    ++contador[static_cast<size_t>(x)];
                }
        }
    }
    return contador;
}
