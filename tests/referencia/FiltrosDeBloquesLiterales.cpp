#include "FiltrosDeBloquesLiterales.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "VisitaLiteral.h"

namespace {

using Numeros = std::array<size_t, 7>; // numbers of a bet, 1 to 6

template <class Falla>
int32_t Visitar(Sesion& sesion, Falla falla) {
    return VisitarVivas<size_t>(sesion, falla);
}

std::vector<size_t> Lista(const MarcasNumeros& marcas) {
    std::vector<size_t> numeros;
    for (size_t n = 1; n <= 49; ++n)
        if (marcas[n] == 1) numeros.push_back(n);
    return numeros;
}

size_t Aciertos(const std::vector<size_t>& numeros, const Numeros& apuesta) {
    size_t aciertos = 0;
    for (const size_t x : numeros) aciertos += std::count(apuesta.begin() + 1, apuesta.end(), x) > 0;
    return aciertos;
}

// Whether each condition from `j` on finds a subgroup of its own among those not taken.
bool Casa(const std::vector<TablaAciertos>& condiciones, size_t j, const std::vector<size_t>& aciertos,
          std::vector<bool>& tomado) {
    if (j == condiciones.size()) return true;
    for (size_t i = 0; i < aciertos.size(); ++i) {
        if (tomado[i] || condiciones[j][aciertos[i]] != 1) continue;
        tomado[i] = true;
        const bool casan = Casa(condiciones, j + 1, aciertos, tomado);
        tomado[i] = false;
        if (casan) return true;
    }
    return false;
}

double Redondear(double x, int decimales) {
    const double potencia = decimales == 14 ? 1e14 : 10;
    return std::nearbyint(x * potencia) / potencia;
}

double Producto(const Numeros& apuesta, const std::array<double, 50>& porcentajes) {
    double producto = 1.0;
    for (size_t r = 1; r <= 6; ++r) {
        const double p = porcentajes[apuesta[r]];
        if (p > 0) producto = producto * p / 100;
    }
    return Redondear(producto, 14);
}

} // namespace

int32_t LiteralGRUPOS(Sesion& sesion) {
    int32_t eliminadas = 0;
    for (const GrupoNumeros& grupo : sesion.condiciones.GRUPOS.grupo) {
        const std::vector<size_t> numeros = Lista(grupo.numeros);
        if (numeros.empty()) continue;
        eliminadas += Visitar(sesion, [&](const Numeros& apuesta) {
            size_t aciertos = 0;
            for (const size_t x : numeros) {
                bool esta = false;
                for (size_t k = 1; k <= 6; ++k) esta |= grupo.posiciones[k - 1] == 1 && apuesta[k] == x;
                aciertos += esta;
            }
            return grupo.aciertos[aciertos] != 1;
        });
    }
    return eliminadas;
}

int32_t LiteralGRUPOSENTRELIMITES(Sesion& sesion) {
    const RegistroGRUPOSENTRELIMITES& registro = sesion.condiciones.GRUPOSENTRELIMITES;
    std::vector<std::vector<size_t>> numeros;
    for (const GrupoLimites& grupo : registro.grupo) numeros.push_back(Lista(grupo.numeros));
    return Visitar(sesion, [&](const Numeros& apuesta) {
        int32_t acertados = 0;
        for (size_t g = 0; g < numeros.size(); ++g)
            if (!numeros[g].empty() && registro.grupo[g].aciertos[Aciertos(numeros[g], apuesta)] == 1) ++acertados;
        return acertados < registro.aciertosMinimoGRUPOSENTRELIMITES ||
               acertados > registro.aciertosMaximoGRUPOSENTRELIMITES;
    });
}

int32_t LiteralPOSICIONES(Sesion& sesion) {
    const auto& bola = sesion.condiciones.POSICIONES.Bola;
    return Visitar(sesion, [&](const Numeros& apuesta) {
        for (size_t k = 1; k <= 6; ++k)
            if (EnVigor(bola[k - 1]) && bola[k - 1][apuesta[k]] != 1) return true;
        return false;
    });
}

int32_t LiteralGRUPOSRELACIONADOS(Sesion& sesion) {
    const RegistroGRUPOSRELACIONADOS& registro = sesion.condiciones.GRUPOSRELACIONADOS;
    int32_t eliminadas = 0;
    for (size_t b = 0; b < registro.subgrupos.size(); b += 6) {
        size_t s = 0;
        std::vector<TablaAciertos> condiciones;
        for (size_t fila = b; fila < b + 6; ++fila) {
            if (!Lista(registro.subgrupos[fila]).empty()) ++s;
            if (EnVigor(registro.condiciones[fila])) condiciones.push_back(registro.condiciones[fila]);
        }
        if (s == 0) continue;
        eliminadas += Visitar(sesion, [&](const Numeros& apuesta) {
            if (condiciones.empty()) return true;
            std::vector<size_t> aciertos;
            for (size_t i = 0; i < s; ++i) aciertos.push_back(Aciertos(Lista(registro.subgrupos[b + i]), apuesta));
            std::vector<bool> tomado(s, false);
            return !Casa(condiciones, 0, aciertos, tomado);
        });
    }
    return eliminadas;
}

int32_t LiteralVALORACIONES(Sesion& sesion) {
    int32_t eliminadas = 0;
    for (const GrupoValoraciones& grupo : sesion.condiciones.VALORACIONES.grupo) {
        bool enUso = false;
        for (const Intervalo& i : grupo.intervalos) enUso |= i.Minimo != 0 || i.Maximo != 0;
        if (!enUso) continue;
        eliminadas += Visitar(sesion, [&](const Numeros& apuesta) {
            int32_t suma = 0;
            for (size_t r = 1; r <= 6; ++r) suma += grupo.valoraciones[apuesta[r]];
            for (const Intervalo& i : grupo.intervalos)
                if ((i.Minimo != 0 || i.Maximo != 0) && i.Minimo <= suma && suma <= i.Maximo) return false;
            return true;
        });
    }
    return eliminadas;
}

size_t ClaseLiteralCR(const RegistroCOEFICIENTERENTABILIDAD& registro, const Numeros& apuesta) {
    const double apostada = Producto(apuesta, registro.PorcentajesApostados);
    const double real = Producto(apuesta, registro.PorcentajesReales);
    double c = Redondear(real / apostada, 1) * 10;
    if (apostada == 0 || std::isnan(c) || c >= 99) c = 99;
    return static_cast<size_t>(std::nearbyint(c));
}

int32_t LiteralCOEFICIENTERENTABILIDAD(Sesion& sesion) {
    const RegistroCOEFICIENTERENTABILIDAD& registro = sesion.condiciones.COEFICIENTERENTABILIDAD;
    if (!EnVigor(registro.RangosCR)) return 0;
    return Visitar(sesion,
                   [&](const Numeros& apuesta) { return registro.RangosCR[ClaseLiteralCR(registro, apuesta)] != 1; });
}
