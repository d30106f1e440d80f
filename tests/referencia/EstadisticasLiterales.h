// The texts of the ten statistics by plain loops over each draw, row by row.
#pragma once

#include <set>
#include <string>

#include <fmt/format.h>

#include "Sorteos.h"

struct EstadisticasLiterales {
    Sorteos sorteos; // those that match, numbers ascending

    // How many numbers of all draws, or draws by how many such numbers they have.
    template <class Es>
    int Numeros(Es es) const {
        int veces = 0;
        for (const Sorteo& s : sorteos)
            for (int j = 0; j < 6; ++j) veces += es(s.numeros[static_cast<size_t>(j)]) ? 1 : 0;
        return veces;
    }
    template <class Es>
    int Con(int cuantos, Es es) const {
        int veces = 0;
        for (const Sorteo& s : sorteos) veces += EstadisticasLiterales{{s}}.Numeros(es) == cuantos ? 1 : 0;
        return veces;
    }
    int Distancia(int d) const {
        int veces = 0;
        for (const Sorteo& s : sorteos)
            for (size_t j = 1; j < 6; ++j) veces += s.numeros[j] - s.numeros[j - 1] == d ? 1 : 0;
        return veces;
    }
    int Seguidos(int largo) const {
        int veces = 0;
        for (const Sorteo& s : sorteos) {
            int mejor = 1, seguidos = 1;
            for (size_t j = 1; j < 6; ++j) {
                if (s.numeros[j] == s.numeros[j - 1] + 1) {
                    ++seguidos;
                } else {
                    if (seguidos > mejor) mejor = seguidos;
                    seguidos = 1;
                }
            }
            if (seguidos > mejor) mejor = seguidos;
            veces += mejor == largo ? 1 : 0;
        }
        return veces;
    }
    int Suma(int suma) const {
        int veces = 0;
        for (const Sorteo& s : sorteos) {
            int total = 0;
            for (size_t j = 0; j < 6; ++j) total += s.numeros[j];
            veces += total == suma ? 1 : 0;
        }
        return veces;
    }

    std::string Texto(int tipo) const {
        static const std::set<int> exteriores{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 19, 20, 29,
                                              30, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49};
        static const std::set<int> superiores{1,  2,  3,  4,  10, 11, 12, 13, 14, 20, 21, 22,
                                              23, 24, 30, 31, 32, 33, 34, 40, 41, 42, 43, 44};
        const auto alto = [](int n) { return n > 24; };
        const auto par = [](int n) { return n % 2 == 0; };
        const auto exterior = [](int n) { return exteriores.count(n) > 0; };
        const auto superior = [](int n) { return superiores.count(n) > 0; };
        std::string t;
        if (tipo == 0)
            for (int n = 1; n <= 49; ++n) {
                const int c = Numeros([n](int m) { return m == n; });
                if (c > 0) t += fmt::format("{:02} ---> {}\n", n, c);
            }
        if (tipo == 1)
            for (int h = 0; h <= 6; ++h) t += fmt::format("{}    {}  ---> {}\n", 6 - h, h, Con(h, alto));
        if (tipo == 2) {
            t += fmt::format("01-09 ---> {}\n", Numeros([](int n) { return n < 10; }));
            t += fmt::format("10-19 ---> {}\n", Numeros([](int n) { return n >= 10 && n < 20; }));
            t += fmt::format("20-29 ---> {}\n", Numeros([](int n) { return n >= 20 && n < 30; }));
            t += fmt::format("30-39 ---> {}\n", Numeros([](int n) { return n >= 30 && n < 40; }));
            t += fmt::format("40-49 ---> {}", Numeros([](int n) { return n >= 40; }));
        }
        if (tipo == 3)
            for (int d = 1; d <= 44; ++d) t += fmt::format("{:>2}  --->  {}\n", d, Distancia(d));
        if (tipo == 4)
            for (int e = 6; e >= 0; --e) t += fmt::format("{}     {}  --->  {}\n", e, 6 - e, Con(e, par));
        if (tipo == 5)
            for (int k = 1; k <= 6; ++k) t += fmt::format("{}  --->  {}\n", k, Seguidos(k));
        if (tipo == 6)
            for (int i = 21; i <= 279; i += 10) {
                int c = 0;
                for (int s = i; s <= i + 10 && s <= 279; ++s) c += Suma(s);
                if (c > 0) t += fmt::format("{:03}-{:03} ---> {}\n", i, i + 11, c);
            }
        if (tipo == 7)
            for (int d = 0; d <= 9; ++d)
                t += fmt::format("   {}    --->   {}\n", d, Numeros([d](int n) { return n % 10 == d; }));
        if (tipo == 8)
            for (int x = 6; x >= 0; --x) t += fmt::format("{}       {}  --->  {}\n", x, 6 - x, Con(x, exterior));
        if (tipo == 9)
            for (int s = 6; s >= 0; --s) t += fmt::format("{}       {}  --->  {}\n", s, 6 - s, Con(s, superior));
        return t;
    }
};
