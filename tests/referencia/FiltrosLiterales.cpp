#include "FiltrosLiterales.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "Figuras.h"
#include "VisitaLiteral.h"

namespace {

using Numeros = std::array<int, 7>; // numbers of a bet, 1 to 6

template <class Falla>
int32_t Visitar(Sesion& sesion, Falla falla) {
    return VisitarVivas<int>(sesion, falla);
}

template <class EsDeClase>
size_t Cuantos(const Numeros& n, EsDeClase esDeClase) {
    size_t cuenta = 0;
    for (size_t r = 1; r <= 6; ++r) cuenta += esDeClase(n[r]);
    return cuenta;
}

template <class Pasa>
bool Rechaza(const Pasa& tabla, size_t cuenta) {
    return EnVigor(tabla) && tabla[cuenta] != 1;
}

bool Tiene(const std::string& texto, char c) {
    return texto.find(c) != std::string::npos;
}

// The name of a figure from the counts of its classes, each written as a digit.
std::string Figura(const std::string& s) {
    switch (s.size()) {
    case 1:
        return "6-0";
    case 2:
        return Tiene(s, '5') ? "5-1" : Tiene(s, '4') ? "4-2" : "3-3";
    case 3:
        return Tiene(s, '4') ? "4-1-1" : Tiene(s, '3') ? "3-2-1" : "2-2-2";
    case 4:
        return Tiene(s, '3') ? "3-1-1-1" : "2-2-1-1";
    case 5:
        return "2-1-1-1-1";
    default:
        return "1-1-1-1-1-1";
    }
}

template <class Figuras>
bool RechazaFigura(const Figuras& figuras, size_t primera, const std::string& clases) {
    if (!EnVigor(figuras)) return false;
    const auto nombre = std::find(NombresFiguras.begin(), NombresFiguras.end(), Figura(clases));
    const auto posicion = static_cast<size_t>(nombre - NombresFiguras.begin());
    return posicion >= primera && figuras[posicion - primera] != 1;
}

template <class Intervalos>
bool RechazaSuma(const Intervalos& intervalos, int suma) {
    bool alguno = false;
    for (const Intervalo& i : intervalos) {
        if (i.Minimo == 0 && i.Maximo == 0) continue;
        if (i.Minimo <= suma && suma <= i.Maximo) return false;
        alguno = true;
    }
    return alguno;
}

std::string Rachas(const Numeros& n, size_t& mayor) {
    std::string rachas;
    size_t racha = 1;
    mayor = 1;
    for (size_t k = 2; k <= 7; ++k) {
        if (k <= 6 && n[k] == n[k - 1] + 1) {
            ++racha;
            continue;
        }
        mayor = std::max(mayor, racha);
        rachas += std::to_string(racha);
        racha = 1;
    }
    return rachas;
}

bool SonColindantes(int a, int b) {
    return a != b && std::abs(a / 10 - b / 10) <= 1 && std::abs(a % 10 - b % 10) <= 1;
}

} // namespace

int32_t LiteralALTOSBAJOS(Sesion& sesion) {
    const auto& registro = sesion.condiciones.ALTOSBAJOS;
    return Visitar(sesion, [&](const Numeros& n) {
        const size_t altos = Cuantos(n, [](int x) { return x > 24; });
        return Rechaza(registro.Altos, altos) || Rechaza(registro.Bajos, 6 - altos);
    });
}

int32_t LiteralDECENAS(Sesion& sesion) {
    const auto& registro = sesion.condiciones.DECENAS;
    return Visitar(sesion, [&](const Numeros& n) {
        std::string clases;
        bool falla = false;
        for (int decena = 0; decena < 5; ++decena) {
            const size_t cuenta = Cuantos(n, [&](int x) { return x >= decena * 10 && x <= decena * 10 + 9; });
            if (cuenta > 0) clases += std::to_string(cuenta);
            falla |= Rechaza(registro.Decena[static_cast<size_t>(decena)], cuenta);
        }
        return falla || RechazaFigura(registro.FigurasDecenas, 0, clases);
    });
}

int32_t LiteralDISTANCIAS(Sesion& sesion) {
    const auto& distancias = sesion.condiciones.DISTANCIAS.Distancia;
    return Visitar(sesion, [&](const Numeros& n) {
        const std::array<int, 6> d{n[2] - n[1], n[3] - n[2], n[4] - n[3], n[5] - n[4], n[6] - n[5], n[6] - n[1]};
        for (size_t k = 0; k < 6; ++k) {
            const bool enVigor = distancias[k].Minimo != 0 || distancias[k].Maximo != 0;
            if (enVigor && (d[k] < distancias[k].Minimo || d[k] > distancias[k].Maximo)) return true;
        }
        return false;
    });
}

int32_t LiteralHOMOLOGOS(Sesion& sesion) {
    const auto& acertados = sesion.condiciones.HOMOLOGOS.HomologosAcertados;
    if (!EnVigor(acertados)) return 0;
    return Visitar(sesion, [&](const Numeros& n) {
        for (int grupo = 1; grupo <= 9; ++grupo)
            if (acertados[Cuantos(n, [&](int x) { return (x - 1) % 9 == grupo - 1; })] == 1) return false;
        return true;
    });
}

int32_t LiteralPARESIMPARES(Sesion& sesion) {
    const auto& activos = sesion.condiciones.PARESIMPARES.ParesActivos;
    return Visitar(sesion,
                   [&](const Numeros& n) { return Rechaza(activos, Cuantos(n, [](int x) { return (x & 1) == 0; })); });
}

int32_t LiteralSEGUIDOS(Sesion& sesion) {
    const auto& registro = sesion.condiciones.SEGUIDOS;
    return Visitar(sesion, [&](const Numeros& n) {
        size_t mayor = 0;
        const std::string rachas = Rachas(n, mayor);
        return RechazaFigura(registro.FigurasSeguidos, 0, rachas) || Rechaza(registro.NumerosSeguidos, mayor);
    });
}

int32_t LiteralSUMAS(Sesion& sesion) {
    const auto& registro = sesion.condiciones.SUMAS;
    return Visitar(sesion, [&](const Numeros& n) {
        return RechazaSuma(registro.intervalos, n[1] + n[2] + n[3] + n[4] + n[5] + n[6]);
    });
}

int32_t LiteralTERMINACIONES(Sesion& sesion) {
    const auto& registro = sesion.condiciones.TERMINACIONES;
    return Visitar(sesion, [&](const Numeros& n) {
        std::string clases;
        bool falla = false;
        int suma = 0;
        for (int digito = 0; digito < 10; ++digito) {
            const size_t cuenta = Cuantos(n, [&](int x) { return x % 10 == digito; });
            if (cuenta > 0) clases += std::to_string(cuenta);
            suma += digito * static_cast<int>(cuenta);
            falla |= Rechaza(registro.TerminadosEn[static_cast<size_t>(digito)], cuenta);
        }
        return RechazaFigura(registro.FigurasTerminaciones, 1, clases) || suma < registro.SumaMinima ||
               suma > registro.SumaMaxima || falla;
    });
}

int32_t LiteralEXTERIORESINTERIORES(Sesion& sesion) {
    static const std::set<int> Exteriores{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 19, 20, 29,
                                          30, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49};
    const auto& activos = sesion.condiciones.EXTERIORESINTERIORES.ExterioresInterioresActivos;
    return Visitar(sesion, [&](const Numeros& n) {
        return Rechaza(activos, Cuantos(n, [](int x) { return Exteriores.contains(x); }));
    });
}

int32_t LiteralSUPERIORESINFERIORES(Sesion& sesion) {
    static const std::set<int> Superiores{1,  2,  3,  4,  10, 11, 12, 13, 14, 20, 21, 22,
                                          23, 24, 30, 31, 32, 33, 34, 40, 41, 42, 43, 44};
    const auto& activos = sesion.condiciones.SUPERIORESINFERIORES.SuperioresInferioresActivos;
    return Visitar(sesion, [&](const Numeros& n) {
        return Rechaza(activos, Cuantos(n, [](int x) { return Superiores.contains(x); }));
    });
}

int32_t LiteralCOLINDANTES(Sesion& sesion) {
    const auto& acertados = sesion.condiciones.COLINDANTES.ColindantesAcertados;
    return Visitar(sesion, [&](const Numeros& n) {
        const size_t cuenta =
            Cuantos(n, [&](int a) { return Cuantos(n, [&](int b) { return SonColindantes(a, b); }) > 0; });
        return Rechaza(acertados, cuenta);
    });
}

int32_t LiteralSUMASPORTRIOS(Sesion& sesion) {
    const auto& registro = sesion.condiciones.SUMASPORTRIOS;
    return Visitar(sesion, [&](const Numeros& n) {
        return RechazaSuma(registro.intervalosT1, n[1] + n[2] + n[3]) ||
               RechazaSuma(registro.intervalosT2, n[4] + n[5] + n[6]);
    });
}
