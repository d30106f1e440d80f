#include <algorithm>
#include <map>
#include <numeric>

#include "Simetria.h"

namespace {

using Ciclo = std::vector<uint8_t>;
using CiclosIguales = std::vector<Ciclo>; // of one length, within one class

constexpr int MaximoLargos = 3; // different lengths of cycle in one permutation

Permutacion Identidad() {
    Permutacion p;
    std::iota(p.begin(), p.end(), uint8_t{0});
    return p;
}

Permutacion Componer(const Permutacion& a, const Permutacion& b) {
    Permutacion p;
    for (size_t i = 0; i < p.size(); ++i) p[i] = b[a[i]];
    return p;
}

// Cuts the bits of a class into cycles; those left over are cycles of one.
void Partir(std::vector<uint8_t> bits, Azar& azar, std::vector<CiclosIguales>& partes) {
    for (int i = 0; i < MaximoLargos && bits.size() > 1; ++i) {
        const auto quedan = static_cast<int32_t>(bits.size());
        const int32_t largo = 2 + azar.Entero(quedan - 1), caben = quedan / largo;
        const int32_t cuantos = azar.Entero(2) == 0 ? caben : 1 + azar.Entero(caben);
        CiclosIguales iguales;
        for (int32_t c = 0; c < cuantos; ++c) {
            iguales.emplace_back(bits.end() - largo, bits.end());
            bits.resize(bits.size() - static_cast<size_t>(largo));
        }
        partes.push_back(std::move(iguales));
        if (azar.Entero(2) == 0) break;
    }
    if (bits.empty()) return;
    partes.emplace_back();
    for (const uint8_t bit : bits) partes.back().push_back({bit});
}

// Cuts the bits of a class into as many cycles of one length as there is room for.
void PartirPorIgual(const std::vector<uint8_t>& bits, int32_t largo, std::vector<CiclosIguales>& partes) {
    const size_t en = bits.size() / static_cast<size_t>(largo) * static_cast<size_t>(largo);
    CiclosIguales iguales, sueltos;
    for (size_t i = 0; i < en; i += static_cast<size_t>(largo))
        iguales.emplace_back(bits.data() + i, bits.data() + i + largo);
    for (size_t i = en; i < bits.size(); ++i) sueltos.push_back({bits[i]});
    if (!iguales.empty()) partes.push_back(std::move(iguales));
    if (!sueltos.empty()) partes.push_back(std::move(sueltos));
}

// An order of n things: drawn, turned round, or exchanged in pairs.
std::vector<int32_t> OrdenAlAzar(int32_t n, Azar& azar) {
    std::vector<int32_t> orden(n);
    std::iota(orden.begin(), orden.end(), 0);
    const int32_t clase = azar.Entero(4);
    if (clase == 1) {
        for (int32_t i = n; i > 1; --i) std::swap(orden[i - 1], orden[azar.Entero(i)]);
    } else if (clase == 2) {
        std::rotate(orden.begin(), orden.begin() + azar.Entero(n), orden.end());
    } else if (clase == 3) {
        for (int32_t i = 0; i + 1 < n; i += 2) std::swap(orden[i], orden[i + 1]);
    }
    return orden;
}

// Turns cycles into cycles of the same length: place i of one goes to place i x factor + offset of another.
Permutacion Normalizadora(const std::vector<CiclosIguales>& partes, Azar& azar) {
    int64_t periodo = 1, factor = 1;
    for (const CiclosIguales& iguales : partes)
        periodo = std::lcm(periodo, static_cast<int64_t>(iguales.front().size()));
    if (periodo > 2 && azar.Entero(2) == 0) do
            factor = 1 + static_cast<int64_t>(static_cast<double>(periodo - 1) * azar.Rnd());
        while (std::gcd(factor, periodo) != 1);
    if (periodo > 2 && azar.Entero(4) == 0) factor = periodo - 1;
    Permutacion p = Identidad();
    for (const CiclosIguales& iguales : partes) {
        const std::vector<int32_t> destino = OrdenAlAzar(static_cast<int32_t>(iguales.size()), azar);
        const bool desplazar = azar.Entero(2) == 0;
        for (size_t c = 0; c < iguales.size(); ++c) {
            const Ciclo &de = iguales[c], &a = iguales[destino[c]];
            const auto largo = static_cast<int64_t>(de.size());
            const int64_t desde = desplazar ? azar.Entero(static_cast<int32_t>(largo)) : 0;
            for (int64_t i = 0; i < largo; ++i) p[de[i]] = a[(i * factor + desde) % largo];
        }
    }
    return p;
}

// A turn of the cycles, or not, and up to two that turn cycles into cycles.
void MoverCiclos(const std::vector<CiclosIguales>& partes, Azar& azar, Simetria& simetria) {
    if (azar.Entero(8) != 0) {
        simetria.push_back(Identidad());
        for (const CiclosIguales& iguales : partes)
            for (const Ciclo& ciclo : iguales)
                for (size_t i = 0; i < ciclo.size(); ++i) simetria.back()[ciclo[i]] = ciclo[(i + 1) % ciclo.size()];
    }
    const int32_t mas = azar.Entero(4);
    for (int32_t i = 0; i < (mas == 3 ? 1 : mas); ++i) simetria.push_back(Normalizadora(partes, azar));
}

// Cuts the bits of a class into parts of one length, some of which move, each on its own: by turns, or, where the
// length is a power of two, by exchanges in pairs.
void MoverPorPartes(const std::vector<uint8_t>& bits, Azar& azar, Simetria& simetria) {
    constexpr int32_t MayorParte = 6, MayorPotencia = 4;
    const bool enParejas = azar.Entero(2) == 0;
    const int32_t generadores = enParejas ? 2 + azar.Entero(MayorPotencia - 1) : 1;
    const int32_t largo = enParejas ? 1 << generadores : 2 + azar.Entero(MayorParte - 1);
    const int32_t caben = static_cast<int32_t>(bits.size()) / largo;
    if (caben == 0) return;
    const int32_t cuantas = 1 + azar.Entero(caben);
    for (const uint8_t* parte = bits.data(); parte != bits.data() + cuantas * largo; parte += largo)
        for (int32_t g = 0; g < generadores; ++g) {
            simetria.push_back(Identidad());
            for (int32_t i = 0; i < largo; ++i)
                simetria.back()[parte[i]] = parte[enParejas ? i ^ (1 << g) : (i + 1) % largo];
        }
}

} // namespace

Clases ClasesDe(const Familia& familia) {
    std::array<int64_t, 49> cuenta{};
    for (int32_t i = 0; i < familia.Cuantas(); ++i)
        for (uint64_t m = familia.Mascara(i); m != 0; m &= m - 1) cuenta[std::countr_zero(m)] += familia.Veces(i);
    std::map<int64_t, uint8_t> clase;
    Clases clases{};
    for (int bit = 0; bit < familia.n(); ++bit)
        clases[bit] = clase.try_emplace(cuenta[bit], static_cast<uint8_t>(clase.size())).first->second;
    return clases;
}

Simetria SimetriaAlAzar(const Clases& clases, int n, Azar& azar) {
    const int32_t manera = azar.Entero(3);
    const int32_t largo = 2 + azar.Entero(n - 1);
    Simetria simetria;
    std::vector<CiclosIguales> partes;
    for (int clase = 0; clase < n; ++clase) {
        std::vector<uint8_t> bits;
        for (int bit = n; bit-- > 0;)
            if (clases[bit] == clase) bits.push_back(static_cast<uint8_t>(bit));
        if (manera == 0)
            Partir(bits, azar, partes);
        else if (manera == 1)
            PartirPorIgual(bits, largo, partes);
        else
            MoverPorPartes(bits, azar, simetria);
    }
    if (manera != 2) MoverCiclos(partes, azar, simetria);
    std::erase(simetria, Identidad());
    return simetria;
}

Simetria SimetriaMenor(const Simetria& simetria, Azar& azar) {
    Simetria menor = simetria;
    const int32_t cual = azar.Entero(static_cast<int32_t>(menor.size()));
    if (menor.size() > 1 && azar.Entero(2) == 0) {
        menor.erase(menor.begin() + cual);
        return menor;
    }
    const int32_t potencia = 2 + azar.Entero(4);
    const Permutacion una = menor[cual];
    for (int32_t i = 1; i < potencia; ++i) menor[cual] = Componer(menor[cual], una);
    std::erase(menor, Identidad());
    return menor;
}
