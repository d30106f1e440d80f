// Both routes of the reduction, step by step and slow: what the fast ones must give bet for bet.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <numeric>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Rnd.h"

struct ReduccionLiteral {
    using Bet = std::array<int, 6>;

    // Asked.
    int n = 6;
    std::vector<Bet> apuestas; // positions 1 to n
    bool SinEliminadas = false;
    int TipoReduccion = 0, Porcentaje = 100, NApuestas = 1;
    bool PorNumero = false, Exactas = false, Ciclos = false;
    double TopeCiclos = 1; // stands for the user's stop

    // Found.
    double CicloActual = 0;
    int MejorApuestas = 0;
    std::vector<Bet> Mejor;
    std::vector<int> Tamanios;

    void Reducir() {
        N = static_cast<int>(apuestas.size());
        orden.resize(apuestas.size());
        std::iota(orden.begin(), orden.end(), 1);
        if (TipoReduccion <= (n <= 22 ? 2 : 1)) {
            RadioBits = 2 * TipoReduccion;
            ReducirPorCobertura();
        } else {
            RadioBits = TipoReduccion;
            ReducirSecuencial();
        }
    }

  private:
    using Mascara = uint64_t;

    static Mascara MascaraDe(const Bet& b) {
        Mascara m = 0;
        for (const int p : b) m |= Mascara{1} << p;
        return m;
    }
    Mascara MascaraDe(int j) const { return MascaraDe(apuestas[static_cast<size_t>(j - 1)]); }
    bool Existe(Mascara m) const { return std::popcount(m) == 6 && (SinEliminadas || cobertura.contains(m)); }
    static void Sumar(std::unordered_map<Mascara, int>& tabla, Mascara m, int cuanto) {
        if (const auto entrada = tabla.find(m); entrada != tabla.end()) entrada->second += cuanto;
    }

    // The mask, those one swap away and those two swaps away, as far as the radius goes.
    template <class Ver>
    void Bola(Mascara m, Ver ver) const {
        ver(m);
        const auto bit = [](int p) { return Mascara{1} << p; };
        if (RadioBits < 2) return;
        for (int p = 1; p <= n; ++p)
            for (int q = p + 1; q <= n; ++q)
                if (((m >> p) & 1) != ((m >> q) & 1)) ver(m ^ bit(p) ^ bit(q));
        if (RadioBits < 4) return;
        for (int p = 1; p <= n; ++p)
            for (int q = p + 1; q <= n; ++q)
                for (int r = q + 1; r <= n; ++r)
                    for (int s = r + 1; s <= n; ++s)
                        if (const Mascara v = m ^ bit(p) ^ bit(q) ^ bit(r) ^ bit(s); std::popcount(v) == 6) ver(v);
    }

    void PrepararCobertura() {
        for (const Bet& b : apuestas) cobertura[MascaraDe(b)] = 0;
        for (const Bet& b : apuestas) Bola(MascaraDe(b), [&](Mascara m) { Sumar(cobertura, m, 1); });
    }

    int ElegirApuesta() {
        int best = 0, chosen = 0;
        while (true) {
            for (int i = Inicio; i <= N; ++i) {
                const int j = orden[static_cast<size_t>(i - 1)];
                const int c = cobertura.at(MascaraDe(j));
                if (c <= best) continue;
                best = c;
                chosen = j;
                if (c == Objetivo) {
                    Inicio = i + 1;
                    Objetivo = best;
                    Covered += best;
                    return chosen;
                }
            }
            if (Inicio == 1) break;
            Inicio = 1;
            --Objetivo;
            --best;
        }
        Objetivo = best;
        Covered += best;
        return chosen;
    }

    bool FueraDeLoCubierto(Mascara m) const {
        for (const int j : elegidas)
            if (std::popcount(m ^ MascaraDe(j)) <= RadioBits) return false;
        return true;
    }

    void ActualizarCobertura(int elegida) {
        Bola(MascaraDe(elegida), [&](Mascara m) {
            if (Existe(m) && (RadioBits == 0 || FueraDeLoCubierto(m)))
                Bola(m, [&](Mascara v) { Sumar(cobertura, v, -1); });
        });
    }

    void ReducirPorCobertura() {
        PrepararCobertura();
        MejorApuestas = N + 1;
        const auto inicial = cobertura;
        int maxima = 0;
        for (const auto& [m, c] : inicial) maxima = std::max(maxima, c);
        while (true) {
            elegidas.clear();
            int count = 0;
            Covered = 0;
            Inicio = 1;
            Objetivo = maxima;
            while (true) {
                const int chosen = ElegirApuesta();
                if (++count >= MejorApuestas) break;
                ActualizarCobertura(chosen);
                elegidas.push_back(chosen);
                const int p = static_cast<int>(int64_t{100} * Covered / N);
                if (PorNumero && !Exactas) {
                    if (p >= 100 || (!Ciclos && count == NApuestas)) break;
                } else if (p >= Porcentaje) {
                    break;
                }
            }
            ++CicloActual;
            if (count < MejorApuestas) {
                Tomar(count);
                if (count == 1 || (PorNumero && !Exactas && count <= NApuestas)) return;
            }
            cobertura = inicial;
            if (CicloActual >= TopeCiclos) return;
            BarajarOrden();
            if (!Ciclos) return;
        }
    }

    void ReducirSecuencial() {
        MejorApuestas = N + 1;
        while (true) {
            std::vector<bool> marcada(apuestas.size() + 1);
            elegidas.clear();
            int count = 0;
            Covered = 0;
            for (const int j : orden) {
                if (marcada[static_cast<size_t>(j)]) continue;
                marcada[static_cast<size_t>(j)] = true;
                ++Covered;
                if (++count > MejorApuestas) break;
                elegidas.push_back(j);
                for (int m = 1; m <= N; ++m)
                    if (!marcada[static_cast<size_t>(m)] &&
                        std::popcount(MascaraDe(m) & MascaraDe(j)) >= 6 - RadioBits) {
                        marcada[static_cast<size_t>(m)] = true;
                        ++Covered;
                    }
                const int p = static_cast<int>(int64_t{100} * Covered / N);
                if (!PorNumero && p >= Porcentaje) break;
                if (PorNumero && !Ciclos && count == NApuestas) break;
            }
            if (count < MejorApuestas) {
                Tomar(count);
                if (!PorNumero && !Ciclos) return;
                if (count == 1 || (PorNumero && !Exactas && count <= NApuestas)) return;
            }
            ++CicloActual;
            if (CicloActual >= TopeCiclos) return;
            BarajarOrden();
        }
    }

    void Tomar(int count) {
        MejorApuestas = count;
        Tamanios.push_back(count);
        Mejor.clear();
        for (const int j : elegidas) Mejor.push_back(apuestas[static_cast<size_t>(j - 1)]);
    }

    void BarajarOrden() {
        Azar azar;
        azar.Sembrar(static_cast<uint64_t>(CicloActual));
        for (int i = 1; i <= N; ++i) {
            const int r = static_cast<int>(N * azar.Rnd() + 1);
            std::swap(orden[static_cast<size_t>(i - 1)], orden[static_cast<size_t>(r - 1)]);
        }
    }

    int N = 0, RadioBits = 0, Inicio = 1, Objetivo = 0, Covered = 0;
    std::vector<int> orden, elegidas;
    std::unordered_map<Mascara, int> cobertura;
};
