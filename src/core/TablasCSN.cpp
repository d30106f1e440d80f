#include "TablasCSN.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>

#include "modGeneral.h"

namespace {

// The place from the end of a bet c is the sum over its elements of C(49 - c[j], 6 - j), j from 0. The
// first three terms name a head, the last three a tail whose place does not depend on the head: there
// are as many of the one as of the other.
constexpr int Cabezas = 15180; // C(46,3)

int32_t Termino(int numero, int j) {
    return static_cast<int32_t>(
        Combinaciones(static_cast<int16_t>(NumeroMaximoBoleto - numero), static_cast<int16_t>(6 - j)));
}

// Indexed by any byte, so that what stands behind a table's last bet is harmless.
using Terminos = std::array<std::array<int32_t, 256>, 6>;

const Terminos& TerminosCSN() {
    static const Terminos terminos = [] {
        Terminos t{};
        for (int j = 0; j < 6; ++j)
            for (int c = 1; c <= NumeroMaximoBoleto; ++c)
                t[static_cast<size_t>(j)][static_cast<size_t>(c)] = Termino(c, j);
        return t;
    }();
    return terminos;
}

using Bloque = std::array<std::array<uint8_t, ApuestasPorBloqueCSN>, 6>;
using SeisFilas = std::array<uint8_t*, 6>;

// Plain pointers that do not overlap, so that the loop is a few vector instructions.
void Ordenar(uint8_t* __restrict a, uint8_t* __restrict b) {
    for (int64_t i = 0; i < ApuestasPorBloqueCSN; ++i) {
        const uint8_t menor = std::min(a[i], b[i]), mayor = std::max(a[i], b[i]);
        a[i] = menor;
        b[i] = mayor;
    }
}

// A sorting network of six, on all bets of a block at once.
void OrdenarBloque(const SeisFilas& fila) {
    constexpr std::array<std::array<uint8_t, 2>, 12> Red{
        {{0, 5}, {1, 3}, {2, 4}, {1, 2}, {3, 4}, {0, 3}, {2, 5}, {0, 1}, {2, 3}, {4, 5}, {1, 2}, {3, 4}}};
    for (const auto& [x, y] : Red) Ordenar(fila[x], fila[y]);
}

SeisFilas Filas(Tabla& apuestas, int64_t primera) {
    SeisFilas fila;
    for (int r = 0; r < 6; ++r) fila[static_cast<size_t>(r)] = apuestas.Fila(r + 1) + primera - 1;
    return fila;
}

// Three numbers in the low bytes of a word.
using Terna = uint32_t;

constexpr Terna Juntar(int a, int b, int c) {
    return static_cast<Terna>(a | b << 8 | c << 16);
}

struct TablasInversas {
    static constexpr int Bits = 8; // places that share an entry of `pista`

    std::array<int32_t, Cabezas + 1> inicio{};                   // first place from the end of each head, ascending
    std::array<Terna, Cabezas> cabeza{}, cola{};                 // by place among the heads, among the tails
    std::array<uint16_t, (ApuestasMaximas >> Bits) + 1> pista{}; // head of the first place of each 256

    TablasInversas() {
        size_t n = 0;
        for (int a = 44; a >= 1; --a)
            for (int b = 45; b > a; --b)
                for (int c = 46; c > b; --c, ++n) {
                    inicio[n] = Termino(a, 0) + Termino(b, 1) + Termino(c, 2);
                    cabeza[n] = Juntar(a, b, c);
                }
        assert(n == Cabezas);
        inicio[n] = ApuestasMaximas;
        for (int a = 47; a >= 4; --a)
            for (int b = 48; b > a; --b)
                for (int c = 49; c > b; --c)
                    cola[static_cast<size_t>(Termino(a, 3) + Termino(b, 4) + Termino(c, 5))] = Juntar(a, b, c);
        size_t k = 0;
        for (size_t i = 0; i < pista.size(); ++i) {
            while (inicio[k + 1] <= static_cast<int32_t>(i << Bits)) ++k;
            pista[i] = static_cast<uint16_t>(k);
        }
    }

    // The head of a place from the end.
    size_t CabezaDe(int32_t lugar) const {
        size_t k = pista[static_cast<size_t>(lugar >> Bits)];
        while (inicio[k + 1] <= lugar) ++k;
        return k;
    }
};

const TablasInversas& Inversas() {
    static const TablasInversas t;
    return t;
}

void Repartir(Terna terna, uint8_t* a, uint8_t* b, uint8_t* c) {
    *a = static_cast<uint8_t>(terna);
    *b = static_cast<uint8_t>(terna >> 8);
    *c = static_cast<uint8_t>(terna >> 16);
}

} // namespace

void CombinacionesaCSN(const Tabla& apuestas, int64_t primera, int64_t n, int32_t* csn) {
    assert(n == 0 || (primera >= 1 && primera + n - 1 <= apuestas.Apuestas()));
    const Terminos& t = TerminosCSN();
    Bloque b;
    SeisFilas fila;
    for (size_t r = 0; r < 6; ++r) fila[r] = b[r].data();
    for (int64_t hechas = 0; hechas < n; hechas += ApuestasPorBloqueCSN) {
        for (int r = 0; r < 6; ++r)
            std::copy_n(apuestas.Fila(r + 1) + primera - 1 + hechas, ApuestasPorBloqueCSN,
                        fila[static_cast<size_t>(r)]);
        OrdenarBloque(fila);
        const auto cuantas = static_cast<size_t>(std::min(n - hechas, ApuestasPorBloqueCSN));
        for (size_t i = 0; i < cuantas; ++i)
            *csn++ = ApuestasMaximas -
                     (t[0][b[0][i]] + t[1][b[1][i]] + t[2][b[2][i]] + t[3][b[3][i]] + t[4][b[4][i]] + t[5][b[5][i]]);
    }
}

void CSNaCombinaciones(const int32_t* csn, int64_t n, Tabla& apuestas, int64_t primera) {
    assert(n == 0 || (primera >= 1 && primera + n - 1 <= apuestas.Apuestas()));
    const TablasInversas& t = Inversas();
    const SeisFilas fila = Filas(apuestas, primera);
    for (int64_t i = 0; i < n; ++i) {
        assert(csn[i] >= 1 && csn[i] <= ApuestasMaximas);
        const int32_t lugar = ApuestasMaximas - csn[i];
        const size_t k = t.CabezaDe(lugar);
        Repartir(t.cabeza[k], fila[0] + i, fila[1] + i, fila[2] + i);
        Repartir(t.cola[static_cast<size_t>(lugar - t.inicio[k])], fila[3] + i, fila[4] + i, fila[5] + i);
    }
}

void OrdenarNumeros(Tabla& apuestas) {
    // The last block reaches into the spare bytes behind the rows.
    for (int64_t i = 1; i <= apuestas.Apuestas(); i += ApuestasPorBloqueCSN) OrdenarBloque(Filas(apuestas, i));
}

ConjuntoCSN::ConjuntoCSN() : bits_(NPalabras) {}

int64_t ConjuntoCSN::Cuantas() const {
    int64_t cuantas = 0;
    for (const uint64_t palabra : bits_) cuantas += std::popcount(palabra);
    return cuantas;
}

// Bets in ascending order share their head for long runs.
int64_t CombinacionesDeConjunto(const ConjuntoCSN& conjunto, int32_t desde, int32_t hasta, Tabla& apuestas,
                                int64_t primera) {
    assert(desde >= 1 && hasta <= ApuestasMaximas);
    if (desde > hasta || apuestas.Apuestas() == 0) return 0;
    const TablasInversas& t = Inversas();
    SeisFilas fila = Filas(apuestas, primera);
    int64_t escritas = 0;
    size_t k = t.CabezaDe(ApuestasMaximas - desde);
    for (int32_t csn = desde; csn <= hasta; --k) {
        const int32_t cabo = ApuestasMaximas - t.inicio[k]; // last bet of the head
        const int32_t fin = std::min(hasta, cabo);
        const Terna* cola = t.cola.data();
        uint8_t *d = fila[3], *e = fila[4], *f = fila[5];
        conjunto.Recorrer(csn, fin, [&](int32_t c) { Repartir(cola[cabo - c], d++, e++, f++); });
        const auto n = static_cast<size_t>(d - fila[3]);
        for (size_t r = 0; r < 3; ++r) std::memset(fila[r], static_cast<uint8_t>(t.cabeza[k] >> 8 * r), n);
        for (uint8_t*& destino : fila) destino += n;
        escritas += static_cast<int64_t>(n);
        csn = fin + 1;
    }
    return escritas;
}
